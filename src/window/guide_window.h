// The guide inside the program: the pages of docs/, compiled in, in a window that one reads beside
// the panel.
#ifndef QUILLA_WINDOW_GUIDE_WINDOW_H_
#define QUILLA_WINDOW_GUIDE_WINDOW_H_

#include <QTextBrowser>
#include <QWidget>

namespace quilla {

/// A page of the guide: Markdown whose headings can be linked to.
class GuidePage : public QTextBrowser {
  Q_OBJECT

 public:
  explicit GuidePage(QWidget* parent);

  /// Turns to the guide's heading of that anchor, or to its head if there is none.
  void TurnTo(const QString& anchor);
  /// Makes the letters larger or smaller by so many steps.
  void Zoom(int steps);
  void ZoomBack() { Zoom(-zoom_); }
  QVariant loadResource(int type, const QUrl& url) override;

 protected:
  void changeEvent(QEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 Q_SIGNALS:
  /// A demonstration was chosen, by its name.
  void DemonstrationChosen(const QString& name);

 private:
  void Follow(const QUrl& link);
  /// The picture as large as there is room for it, in the dots of the screen.
  QImage Fitting(const QImage& picture) const;

  int zoom_ = 0;
};

class GuideWindow : public QWidget {
  Q_OBJECT

 public:
  GuideWindow();

  GuidePage& page() { return *page_; }
  /// Shows the guide over a window of the program, at the heading of that anchor.
  void Open(QWidget& owner, const QString& anchor);

 private:
  GuidePage* const page_ = new GuidePage(this);
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_GUIDE_WINDOW_H_
