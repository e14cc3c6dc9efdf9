#include "robot/commands.h"

#include <limits>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "platform/characters.h"
#include "platform/grid.h"
#include "platform/text_box.h"
#include "platform/text_list.h"
#include "robot/answers.h"
#include "robot/report.h"

namespace quilla::robot {
namespace {

constexpr char kWindowMark = '.';

Cell TakeCell(Words& words) {
  const int row = words.TakeNumber();
  return {row, words.TakeNumber()};
}

bool Has(const Grid& grid, Cell cell) {
  return cell.row >= 0 && cell.row < grid.Rows() && cell.column >= 0 && cell.column < grid.Cols();
}

}  // namespace

Commands::Command Commands::CommandNamed(std::string_view name) {
  static const std::map<std::string_view, Command> kCommands = {
      {"click", &Commands::Click},         {"press", &Commands::Press},
      {"release", &Commands::Release},     {"type", &Commands::Type},
      {"clear", &Commands::Clear},         {"key", &Commands::Key},
      {"pick", &Commands::Pick},           {"cell", &Commands::ClickCell},
      {"drag", &Commands::Drag},           {"hover", &Commands::Hover},
      {"enter", &Commands::Enter},         {"escape", &Commands::Escape},
      {"close", &Commands::Close},         {"answer", &Commands::Answer},
      {"path", &Commands::Path},           {"nopath", &Commands::NoPath},
      {"port", &Commands::Port},           {"feed", &Commands::Feed},
      {"tick", &Commands::Tick},           {"settle", &Commands::Settle},
      {"state", &Commands::State},         {"show", &Commands::Show},
      {"dump", &Commands::Dump},           {"colors", &Commands::Colors},
      {"list", &Commands::List},           {"row", &Commands::Row},
      {"changes", &Commands::PrintChanges}};
  const auto found = kCommands.find(name);
  return found == kCommands.end() ? nullptr : found->second;
}

void Commands::Run(Words words) {
  const std::string name = words.Take();
  const Command command = CommandNamed(name);
  if (command == nullptr) throw NotACommand("unknown command " + Quoted(name));
  (this->*command)(words);
}

Form* Commands::FindWindow(std::string_view name) {
  for (Form* form : quilla_.Forms()) {
    if (form->name() == name) return form;
  }
  return nullptr;
}

Commands::Target<Control> Commands::TakeControl(Words& words) {
  const std::string name = words.Take();
  const auto mark = name.find(kWindowMark);
  const bool has_window = mark != std::string::npos;
  const Form* const form = has_window ? FindWindow(name.substr(0, mark)) : &Panel();
  const std::string own_name = has_window ? name.substr(mark + 1) : name;
  Control* control = form == nullptr ? nullptr : form->Find(own_name);
  if (form != nullptr && control == nullptr && words.AreLeft()) {
    control = form->Find(own_name, words.TakeNumber());
  }
  if (control == nullptr) throw NotACommand("unknown name " + Quoted(name));
  return {name, *control};
}

template <typename Type>
Commands::Target<Type> Commands::TakeControlOf(Words& words, const char* type) {
  const Target<Control> target = TakeControl(words);
  auto* const control = dynamic_cast<Type*>(&target.control);
  if (control == nullptr) throw NotACommand(Quoted(target.name) + " is no " + type);
  return {target.name, *control};
}

bool Commands::MayUse(const std::string& name, const Control& control, bool is_inside) {
  const Form* const modal = surroundings_.modal();
  const char* reason = nullptr;
  if (!control.IsEnabled()) {
    reason = "disabled";
  } else if (!control.IsVisible()) {
    reason = "hidden";
  } else if (modal != nullptr && modal != control.form()) {
    reason = "modal";
  } else if (!is_inside) {
    reason = "outside";
  }
  if (reason != nullptr) {
    transcript_ << "refused " << name << ' ' << reason << '\n';
    return false;
  }
  surroundings_.Use(*control.form());
  return true;
}

void Commands::Click(Words& words) {
  const auto target = TakeControl(words);
  words.End();
  if (MayUse(target)) hands_.Click(target.control);
}

void Commands::Press(Words& words) {
  const auto target = TakeControl(words);
  words.End();
  if (MayUse(target)) hands_.Press(target.control);
}

void Commands::Release(Words& words) {
  const auto target = TakeControl(words);
  words.End();
  if (MayUse(target)) hands_.Release(target.control);
}

void Commands::Type(Words& words) {
  const auto target = TakeControlOf<TextBox>(words, "text box");
  const std::string text = words.Take();
  words.End();
  TypeInto(target, text);
}

bool Commands::TypeInto(const Target<TextBox>& target, std::string_view text) {
  for (const std::string& character : SplitCharacters(text)) {
    if (!MayUse(target)) return false;
    hands_.Type(target.control, character);
  }
  return true;
}

void Commands::Clear(Words& words) {
  const auto target = TakeControlOf<TextBox>(words, "text box");
  words.End();
  if (MayUse(target)) hands_.Clear(target.control);
}

void Commands::Key(Words& words) {
  const auto target = TakeControl(words);
  const std::string text = words.Take();
  words.End();
  for (const std::string& character : SplitCharacters(text)) {
    if (!MayUse(target)) return;
    hands_.Key(target.control, character);
  }
}

void Commands::Pick(Words& words) {
  const auto list = TakeControlOf<ComboBox>(words, "drop-down list");
  const int position = words.TakeNumber();
  words.End();
  PickFrom(list, position);
}

bool Commands::PickFrom(const Target<ComboBox>& list, int position) {
  if (!MayUse(list, position >= 0 && position < list.control.Count())) return false;
  hands_.Pick(list.control, position);
  return true;
}

void Commands::ClickCell(Words& words) {
  const auto grid = TakeControlOf<Grid>(words, "grid");
  const Cell cell = TakeCell(words);
  words.End();
  DragBetween(grid, cell, cell);
}

void Commands::Drag(Words& words) {
  const auto grid = TakeControlOf<Grid>(words, "grid");
  const Cell from = TakeCell(words);
  const Cell to = TakeCell(words);
  words.End();
  DragBetween(grid, from, to);
}

void Commands::DragBetween(const Target<Grid>& grid, Cell from, Cell to) {
  if (MayUse(grid, Has(grid.control, from) && Has(grid.control, to))) {
    hands_.Drag(grid.control, from, to);
  }
}

void Commands::Hover(Words& words) {
  Words name_only = words;
  const std::string name = name_only.Take();
  if (Form* const form = FindWindow(name)) {
    name_only.End();
    if (MayUse(name, *form)) hands_.Hover(*form);
    return;
  }
  const auto target = TakeControl(words);
  if (auto* const grid = dynamic_cast<Grid*>(&target.control)) {
    const Cell cell = TakeCell(words);
    words.End();
    if (MayUse(target, Has(*grid, cell))) hands_.HoverCell(*grid, cell);
  } else {
    words.End();
    if (MayUse(target)) hands_.Hover(target.control);
  }
}

void Commands::Row(Words& words) {
  std::vector<RowKeys> rows;
  do {
    rows.push_back(KeysOf(words.Take()));
  } while (words.AreLeft());
  for (const RowKeys& keys : rows) {
    if (!EnterRow(keys)) return;
  }
}

bool Commands::EnterRow(const RowKeys& keys) {
  if (!PressKey("INST", keys.instruction)) return false;
  for (const int index : keys.registers) {
    if (!PressKey("REG", index)) return false;
  }
  for (const int digit : keys.digits) {
    if (!PressKey("NUM", digit)) return false;
  }
  if (!keys.label.empty()) {
    return EnterName({"LabelText", "ExistingLabelOption", "LabelCombo", "LabelAcceptButton"},
                     keys.label);
  }
  return keys.variable.empty() ||
         EnterName({"XXText", "ExistingXXOption", "XXCombo", "XXAcceptButton"}, keys.variable);
}

bool Commands::PressKey(const std::string& name, int index) {
  const Target<Control> key{name, *Panel().Find(name, index)};
  if (!MayUse(key)) return false;
  hands_.Click(key.control);
  return true;
}

bool Commands::EnterName(const NameBox& box, const std::string& name) {
  auto& list = dynamic_cast<ComboBox&>(*Panel().Find(box.list));
  const int position = list.Find(name);
  if (position >= 0) {
    if (!PressKey(box.known) || !PickFrom({box.list, list}, position)) return false;
  } else if (!TypeInto({box.text, dynamic_cast<TextBox&>(*Panel().Find(box.text))}, name)) {
    return false;
  }
  return PressKey(box.accept);
}

Form& Commands::ActiveWindow() {
  Form* const active = surroundings_.active();
  return active == nullptr ? Panel() : *active;
}

bool Commands::MayPress(const Form& form, const Button* button) {
  if (button == nullptr) return false;
  const std::string window = &form == &Panel() ? std::string() : form.name() + kWindowMark;
  return MayUse(window + button->name(), *button);
}

void Commands::Enter(Words& words) {
  words.End();
  Form& form = ActiveWindow();
  if (MayPress(form, form.default_button())) hands_.Enter(form);
}

void Commands::Escape(Words& words) {
  words.End();
  Form& form = ActiveWindow();
  if (MayPress(form, form.cancel_button())) hands_.Escape(form);
}

void Commands::Close(Words& words) {
  const std::string name = words.Take();
  words.End();
  Form* const form = FindWindow(name);
  if (form == nullptr) throw NotACommand("unknown window " + Quoted(name));
  if (MayUse(name, *form)) hands_.Close(*form);
}

void Commands::Answer(Words& words) {
  const std::string name = words.Take();
  words.End();
  const std::optional<BoxAnswer> answer = ButtonNamed(name);
  if (!answer) throw NotACommand("unknown button " + Quoted(name));
  surroundings_.QueueAnswer(*answer);
}

void Commands::Path(Words& words) {
  const std::string path = words.Take();
  words.End();
  surroundings_.QueuePath(path);
}

void Commands::NoPath(Words& words) {
  words.End();
  surroundings_.QueuePath(std::nullopt);
}

void Commands::Port(Words& words) {
  const int number = words.TakeNumber();
  const std::string name = words.Take();
  words.End();
  const std::optional<PortState> state = PortStateNamed(name);
  if (!state) throw NotACommand("unknown port state " + Quoted(name));
  if (number < 1 || number > ScriptedPort::kPorts) throw NotACommand("unknown port");
  surroundings_.SetPortState(number, *state);
}

void Commands::Feed(Words& words) {
  const std::string bytes = words.Take();
  words.End();
  surroundings_.Feed(bytes);
}

void Commands::Tick(Words& words) {
  const int milliseconds = words.TakeNumber();
  words.End();
  if (milliseconds < 0) throw NotACommand("time does not run back");
  surroundings_.Pass(milliseconds);
}

void Commands::Settle(Words& words) {
  words.End();
  surroundings_.PassAll();
}

void Commands::State(Words& words) {
  words.End();
  PrintState(transcript_, quilla_.panel()->session());
  hands_.OnState();
}

void Commands::Show(Words& words) {
  const auto target = TakeControl(words);
  words.End();
  if (target.control.form()->visible()) PrintControl(transcript_, target.name, target.control);
}

void Commands::Dump(Words& words) {
  const auto grid = TakeControlOf<Grid>(words, "grid");
  const int first = words.AreLeft() ? words.TakeNumber() : 0;
  const int last = words.AreLeft() ? words.TakeNumber() : std::numeric_limits<int>::max();
  words.End();
  if (grid.control.form()->visible()) PrintRows(transcript_, grid.name, grid.control, first, last);
}

void Commands::Colors(Words& words) {
  const auto grid = TakeControlOf<Grid>(words, "grid");
  words.End();
  if (grid.control.form()->visible()) PrintColors(transcript_, grid.name, grid.control);
}

void Commands::List(Words& words) {
  const auto list = TakeControlOf<TextList>(words, "list");
  words.End();
  if (list.control.form()->visible()) PrintList(transcript_, list.name, list.control);
}

void Commands::PrintChanges(Words& words) {
  words.End();
  changes_.Print(transcript_);
  hands_.OnState();
}

}  // namespace quilla::robot
