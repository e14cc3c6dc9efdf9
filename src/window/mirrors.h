// One small class for each kind of model: it shows the model's properties on a widget and takes
// what the user does to the widget into the model. The widget holds nothing of its own; wherever
// Qt changes it first, it is brought back in line with the model.
#ifndef QUILLA_WINDOW_MIRRORS_H_
#define QUILLA_WINDOW_MIRRORS_H_

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "platform/button.h"
#include "platform/text_box.h"
#include "platform/text_list.h"
#include "window/gate.h"

namespace quilla {

/// Shows what every control has. It lives as long as its widget, and the control lives longer.
class WidgetMirror : public QObject, public ControlObserver {
  Q_DISABLE_COPY_MOVE(WidgetMirror)

 public:
  WidgetMirror(Gate& gate, Control& control, QWidget& widget);
  ~WidgetMirror() override;

  void PropertyChanged(Property property) override;

 protected:
  /// Shows the properties of the one kind of model.
  virtual void Refresh(Property /*property*/) {}

  Gate& gate_;

 private:
  Control& control_;
  QWidget& widget_;
};

class ButtonMirror final : public WidgetMirror {
 public:
  ButtonMirror(Gate& gate, Button& button, QAbstractButton& widget);
  /// A button that acts while it is held takes the right mouse button like the left one.
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void Refresh(Property property) override;

 private:
  Button& button_;
  QAbstractButton& widget_;
};

class OptionMirror final : public WidgetMirror {
 public:
  OptionMirror(Gate& gate, Option& option, QRadioButton& widget);

 protected:
  void Refresh(Property property) override;

 private:
  Option& option_;
  QRadioButton& widget_;
};

class LabelMirror final : public WidgetMirror {
 public:
  LabelMirror(Gate& gate, Label& label, QLabel& widget);
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void Refresh(Property property) override;

 private:
  void ShowColor();

  Label& label_;
  QLabel& widget_;
};

class TextBoxMirror final : public WidgetMirror {
 public:
  TextBoxMirror(Gate& gate, TextBox& text_box, QLineEdit& widget);

 protected:
  void Refresh(Property property) override;

 private:
  void ShowText();

  TextBox& text_box_;
  QLineEdit& widget_;
};

/// A list may change thousands of times while nobody sees it: its entries are brought in line when
/// a handler is over and the list is on view.
class ComboBoxMirror final : public WidgetMirror {
 public:
  ComboBoxMirror(Gate& gate, ComboBox& combo, QComboBox& widget);
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void Refresh(Property property) override;

 private:
  void ShowEntries();

  ComboBox& combo_;
  QComboBox& widget_;
  bool outdated_ = true;
};

/// An entry of the menu bar, or the menu that an entry opens.
class MenuEntryMirror final : public QObject, public ControlObserver {
  Q_DISABLE_COPY_MOVE(MenuEntryMirror)

 public:
  MenuEntryMirror(Gate& gate, MenuEntry& entry, QAction& action);
  ~MenuEntryMirror() override;

  void PropertyChanged(Property property) override;

 private:
  MenuEntry& entry_;
  QAction& action_;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_MIRRORS_H_
