// The 80 instruction keys in the families that a student knows, with the hint of the key under
// the pointer. The keyboard reaches every key: arrows move between them, letters look one up by
// the beginning of its name, blank or Enter presses it.
#ifndef QUILLA_WINDOW_INSTRUCTION_PAGE_H_
#define QUILLA_WINDOW_INSTRUCTION_PAGE_H_

#include <QElapsedTimer>
#include <QHash>
#include <QPoint>
#include <optional>
#include <vector>

#include "window/box_page.h"
#include "window/form_mirror.h"

class QKeyEvent;
class QGridLayout;

namespace quilla {

class InstructionPage : public BoxPage {
  Q_OBJECT

 public:
  InstructionPage(FormMirror& mirror, QWidget* parent);

  /// Puts the focus on the key that had it last.
  void FocusLastKey();
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Key {
    QWidget* widget = nullptr;
    const Button* button = nullptr;
    QPoint place;  // column and row in the layout
  };

  QLayout* MakeHintLine();
  QLayout* MakeFamilies();
  void AddKey(const char* name, QGridLayout& layout, QPoint place);
  bool HandleKey(const QKeyEvent& event);
  bool MoveBy(QPoint direction);
  bool LookUp(const QString& letter);
  /// The key with that name, else the next one whose name begins so.
  std::optional<std::size_t> KeyOf(const QString& beginning) const;
  void MoveTo(std::size_t key);
  void MakeTabStop(std::size_t key);

  FormMirror& mirror_;
  std::vector<Key> keys_;
  QHash<const QObject*, std::size_t> key_of_;
  std::size_t last_key_ = 0;
  QString typed_;
  QElapsedTimer since_typed_;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_INSTRUCTION_PAGE_H_
