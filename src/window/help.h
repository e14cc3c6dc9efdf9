// Help at hand: F1 in every window, and the "?" in the menu bar, open the guide where it tells of
// what is under way.
#ifndef QUILLA_WINDOW_HELP_H_
#define QUILLA_WINDOW_HELP_H_

#include <QObject>
#include <memory>

#include "panel/quilla.h"
#include "window/guide_window.h"

namespace quilla {

/// The anchor of the guide's heading for a window and, in the panel, for its state; empty where no
/// task is under way.
QString SectionOf(const Form& form, PanelState state);

class Help : public QObject {
  Q_OBJECT

 public:
  explicit Help(Quilla& quilla) : quilla_(quilla) {}

  /// Puts the ways to the guide on the window of a form.
  void AddTo(Form& form, QWidget& window);
  GuideWindow& guide();

 Q_SIGNALS:
  /// A demonstration was chosen in the guide, by its name.
  void DemonstrationChosen(const QString& name);

 private:
  void Open(const Form& form, QWidget& window);

  Quilla& quilla_;
  std::unique_ptr<GuideWindow> guide_;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_HELP_H_
