// Hands that act on the models, without a window.
#ifndef QUILLA_ROBOT_MODEL_HANDS_H_
#define QUILLA_ROBOT_MODEL_HANDS_H_

#include <memory>

#include "robot/hands.h"

namespace quilla::robot {

class ModelHands : public Hands {
 public:
  explicit ModelHands(EventLoop& event_loop) : event_loop_(event_loop) {}

  void Click(Control& control) override;
  void Press(Control& control) override;
  void Release(Control& control) override;
  void Type(TextBox& text_box, std::string_view character) override;
  void Clear(TextBox& text_box) override;
  void Key(Control& control, std::string_view character) override;
  void Pick(ComboBox& list, int position) override;
  void Drag(Grid& grid, Cell from, Cell to) override;
  void Hover(Control& control) override;
  void HoverCell(Grid& grid, Cell cell) override;
  void Enter(Form& form) override;
  void Escape(Form& form) override;
  void Close(Form& form) override;

 private:
  EventLoop& event_loop_;
};

std::unique_ptr<Hands> MakeModelHands(Quilla& quilla, ScriptedEventLoop& event_loop);

}  // namespace quilla::robot

#endif  // QUILLA_ROBOT_MODEL_HANDS_H_
