#include "robot/model_hands.h"

#include <functional>
#include <string>

#include "platform/button.h"
#include "platform/failure.h"

namespace quilla::robot {
namespace {

/// Runs a change that may run a handler of its own: a failure ends it where it stands.
void Guarded(const std::function<void()>& change) { Dispatch(change); }

}  // namespace

void ModelHands::Click(Control& control) {
  if (const auto* const button = dynamic_cast<Button*>(&control)) {
    Press(control);
    Release(control);
    Dispatch(button->Click);
  } else if (auto* const option = dynamic_cast<Option*>(&control)) {
    option->Choose();
  } else if (const auto* const label = dynamic_cast<Label*>(&control)) {
    Dispatch(label->Click);
  } else if (const auto* const menu_entry = dynamic_cast<MenuEntry*>(&control)) {
    Dispatch(menu_entry->Click);
  }
}

void ModelHands::Press(Control& control) {
  if (const auto* const button = dynamic_cast<Button*>(&control)) Dispatch(button->MouseDown);
}

void ModelHands::Release(Control& control) {
  if (const auto* const button = dynamic_cast<Button*>(&control)) Dispatch(button->MouseUp);
}

void ModelHands::Type(TextBox& text_box, std::string_view character) {
  Guarded([&] { text_box.Type(character); });
}

void ModelHands::Clear(TextBox& text_box) {
  Guarded([&] { text_box.set_text({}); });
}

void ModelHands::Key(Control& control, std::string_view character) {
  if (auto* const text_box = dynamic_cast<TextBox*>(&control)) {
    Type(*text_box, character);
    return;
  }
  if (character.size() != 1) return;  // Keys are told by ASCII characters alone.
  if (const auto* const button = dynamic_cast<Button*>(&control)) {
    Dispatch(button->KeyPress, character.front());
  } else if (const auto* const box = dynamic_cast<Box*>(&control)) {
    Dispatch(box->KeyPress, character.front());
  }
}

void ModelHands::Pick(ComboBox& list, int position) { list.Pick(position); }

void ModelHands::Drag(Grid& grid, Cell from, Cell to) {
  Guarded([&] { grid.PressCell(from.row, from.column); });
  grid.ReleaseAt(to.row);
  grid.ClickCell();
}

void ModelHands::Hover(Control& control) { Dispatch(control.MouseMove); }

void ModelHands::HoverCell(Grid& grid, Cell cell) {
  Guarded([&] { grid.HoverCell(cell.row, cell.column); });
}

void ModelHands::Enter(Form& form) {
  if (const Button* const button = form.default_button()) Dispatch(button->Click);
}

void ModelHands::Escape(Form& form) {
  if (const Button* const button = form.cancel_button()) Dispatch(button->Click);
}

void ModelHands::Close(Form& form) { event_loop_.CloseByFrame(form); }

std::unique_ptr<Hands> MakeModelHands(Quilla& /*quilla*/, ScriptedEventLoop& event_loop) {
  return std::make_unique<ModelHands>(event_loop);
}

}  // namespace quilla::robot
