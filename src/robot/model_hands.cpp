#include "robot/model_hands.h"

#include "platform/button.h"

namespace quilla::robot {

void ModelHands::Click(Control& control) {
  control.Press();
  control.Release();
  control.Choose();
}

void ModelHands::Press(Control& control) { control.Press(); }

void ModelHands::Release(Control& control) { control.Release(); }

void ModelHands::Type(TextBox& text_box, std::string_view character) { text_box.Type(character); }

void ModelHands::Clear(TextBox& text_box) { text_box.Edit({}); }

void ModelHands::Key(Control& control, std::string_view character) {
  if (auto* const text_box = dynamic_cast<TextBox*>(&control)) {
    text_box->Type(character);
  } else if (character.size() == 1) {  // Other keys are told by ASCII characters alone.
    control.PressKey(character.front());
  }
}

void ModelHands::Pick(ComboBox& list, int position) { list.Pick(position); }

void ModelHands::Drag(Grid& grid, Cell from, Cell to) {
  grid.PressCell(from.row, from.column);
  grid.ReleaseAt(to.row);
  grid.ClickCell();
}

void ModelHands::Hover(Control& control) { control.Hover(); }

void ModelHands::HoverCell(Grid& grid, Cell cell) { grid.HoverCell(cell.row, cell.column); }

void ModelHands::Enter(Form& form) {
  if (Button* const button = form.default_button()) button->Choose();
}

void ModelHands::Escape(Form& form) {
  if (Button* const button = form.cancel_button()) button->Choose();
}

void ModelHands::Close(Form& form) { event_loop_.CloseByFrame(form); }

std::unique_ptr<Hands> MakeModelHands(Quilla& /*quilla*/, ScriptedEventLoop& event_loop) {
  return std::make_unique<ModelHands>(event_loop);
}

}  // namespace quilla::robot
