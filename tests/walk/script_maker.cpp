#include "walk/script_maker.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <optional>
#include <utility>

#include "platform/button.h"
#include "platform/failure.h"
#include "platform/number_text.h"
#include "platform/text_box.h"
#include "platform/text_list.h"
#include "robot/words.h"
#include "symbols/string_lists.h"
#include "walk/files.h"

namespace quilla::walk {
namespace {

/// What a user does instead of a command that must not be run.
constexpr const char* kPause = "tick 10";

constexpr std::string_view kNames[] = {"a1", "a2", "x",       "loop", "sub", "count", "z9",
                                       "1a", "Z",  "toolong", "end",  "go",  "n"};
constexpr char kLetters[] = "abcdef";
constexpr std::string_view kComments[] = {"load, store", "&", "größer", "終", "x&&", "'", "  "};
constexpr std::string_view kKeys = "0123456789ABCDEFabcdefHLMPShlmpsxZ.";
constexpr std::string_view kAnswers[] = {"ok", "cancel", "yes", "no"};
constexpr std::string_view kPortStates[] = {"present", "missing", "busy", "broken"};

/// The control as a script names it.
std::string NameOf(const Control& control) {
  std::string name = control.name();
  if (control.form()->name() != kProgrammingPanel) name.insert(0, control.form()->name() + '.');
  if (control.index() != Control::kNoIndex) name += ' ' + std::to_string(control.index());
  return name;
}

bool IsClickable(const Control& control) {
  if (const auto* const button = dynamic_cast<const Button*>(&control)) {
    return button->Click || button->MouseDown;
  }
  if (const auto* const entry = dynamic_cast<const MenuEntry*>(&control)) {
    return static_cast<bool>(entry->Click);
  }
  if (const auto* const label = dynamic_cast<const Label*>(&control)) {
    return static_cast<bool>(label->Click);
  }
  return dynamic_cast<const Option*>(&control) != nullptr;
}

/// The button that Esc presses stands out of sight: nobody clicks it.
bool IsInSight(const Control& control) { return &control != control.form()->cancel_button(); }

bool TakesKeys(const Control& control) {
  if (const auto* const button = dynamic_cast<const Button*>(&control)) {
    return static_cast<bool>(button->KeyPress);
  }
  const auto* const box = dynamic_cast<const Box*>(&control);
  return box != nullptr && box->KeyPress;
}

bool IsInput(const Control& control) {
  return dynamic_cast<const TextBox*>(&control) != nullptr ||
         dynamic_cast<const ComboBox*>(&control) != nullptr || TakesKeys(control);
}

std::optional<std::int64_t> AddressOf(const std::string& text) {
  try {
    return HexValue(text);
  } catch (const Failure&) {
    return std::nullopt;
  }
}

/// Whether assembling comes to an end: no record begins where its head is never padded to length.
bool MayAssemble(const Session& session) {
  constexpr std::int64_t kFirstEndless = 0x0100;
  constexpr std::int64_t kLastEndless = 0x0FFF;
  constexpr std::int64_t kMostBytesInRow = 3;
  for (int row = 0; row < session.Table1.Rows(); ++row) {
    if (row > 0 && !session.IsOrigin(row)) continue;
    const auto address = AddressOf(session.Table1.TextMatrix(row, kAddressColumn));
    const std::int64_t longest_block = kMostBytesInRow * session.Table1.Rows();
    if (address && *address <= kLastEndless && *address + longest_block >= kFirstEndless) {
      return false;
    }
  }
  return true;
}

}  // namespace

std::string ScriptMaker::NextLine() {
  using Deed = std::string (ScriptMaker::*)();
  struct Habit {
    int percent;
    Deed deed;
  };
  static constexpr Habit kHabits[] = {
      {34, &ScriptMaker::GoOn},        {12, &ScriptMaker::ChooseCommand},
      {11, &ScriptMaker::ClickUsable}, {20, &ScriptMaker::ClickCell},
      {9, &ScriptMaker::UseInput},     {6, &ScriptMaker::QueueAnswer},
      {2, &ScriptMaker::Wait},         {1, &ScriptMaker::Hover},
      {1, &ScriptMaker::CloseWindow},  {2, &ScriptMaker::ClickAnything},
  };
  if (!planned_.empty()) return std::exchange(planned_, {});
  int dice = Below(100);
  for (const Habit& habit : kHabits) {
    if (dice < habit.percent) return (this->*habit.deed)();
    dice -= habit.percent;
  }
  return Below(3) == 0 ? "escape" : "enter";
}

std::vector<Control*> ScriptMaker::Usable(const Choice& choice) {
  const Form* const modal = event_loop_.modal();
  std::vector<Control*> usable;
  for (const Form* form : quilla_.Forms()) {
    if (!form->visible() || (modal != nullptr && modal != form)) continue;
    for (Control* control : form->controls()) {
      if (control->IsVisible() && control->IsEnabled() && choice(*control)) {
        usable.push_back(control);
      }
    }
  }
  return usable;
}

std::string ScriptMaker::GoOn() {
  const Form* const modal = event_loop_.modal();
  const Form& form = modal == nullptr ? quilla_.panel()->form() : *modal;
  const Button* const accept = form.default_button();
  if (accept != nullptr && accept->IsVisible() && accept->IsEnabled() && Below(4) > 0) {
    return ClickOn(*accept);
  }
  const std::vector<Control*> options = Usable(
      [](const Control& control) { return dynamic_cast<const Option*>(&control) != nullptr; });
  if (!options.empty() && Below(6) == 0) return ClickOn(*AnyOf(options));
  const std::vector<Control*> texts = Usable(
      [](const Control& control) { return dynamic_cast<const TextBox*>(&control) != nullptr; });
  if (!texts.empty() && Below(3) > 0) {
    const auto& text_box = dynamic_cast<const TextBox&>(*AnyOf(texts));
    if (text_box.text().empty()) return TypeInto(text_box);
    return IsGoodName(text_box.text()) ? ClickCell() : "clear " + NameOf(text_box);
  }
  const std::vector<Control*> buttons = Usable([](const Control& control) {
    return IsInSight(control) && dynamic_cast<const Button*>(&control) != nullptr;
  });
  if (buttons.empty()) return Below(2) == 0 ? "escape" : ClickCell();
  return ClickOn(*AnyOf(buttons));
}

std::string ScriptMaker::ChooseCommand() {
  const std::vector<Control*> commands = Usable([](const Control& control) {
    return IsClickable(control) && dynamic_cast<const MenuEntry*>(&control) != nullptr;
  });
  if (commands.empty()) return GoOn();
  const bool task_is_open = !quilla_.panel()->session().IsReady();
  return task_is_open && Below(8) > 0 ? GoOn() : ClickOn(*AnyOf(commands));
}

std::string ScriptMaker::ClickUsable() {
  const std::vector<Control*> usable =
      Usable([](const Control& control) { return IsInSight(control) && IsClickable(control); });
  if (usable.empty()) return kPause;
  // Control arrays are long: a key of one is drawn again, so that it does not crowd out all else.
  const Control& first = *AnyOf(usable);
  if (first.index() != Control::kNoIndex && Below(3) > 0) return ClickOn(*AnyOf(usable));
  return ClickOn(first);
}

std::string ScriptMaker::ClickOn(const Control& control) {
  const std::string& name = control.name();
  if (name == "AssembleFile" && !MayAssemble(quilla_.panel()->session())) return kPause;
  if (name == "QuitFile" && Below(20) > 0) return kPause;
  if (name == "SimulationView" && Below(8) > 0) return kPause;  // it fills a whole memory
  if (name.ends_with("File") && Below(2) == 0) {
    planned_ = "click " + NameOf(control);
    return QueuePath();
  }
  switch (Below(60)) {
    case 0:
      return "press " + NameOf(control);
    case 1:
      return "release " + NameOf(control);
    default:
      return "click " + NameOf(control);
  }
}

std::string ScriptMaker::ClickAnything() {
  std::vector<Control*> all;
  for (const Form* form : quilla_.Forms()) {
    std::copy_if(form->controls().begin(), form->controls().end(), std::back_inserter(all),
                 [](const Control* control) { return IsClickable(*control); });
  }
  return ClickOn(*AnyOf(all));
}

int ScriptMaker::AnyRow(const Grid& grid) {
  if (Below(8) == 0) return grid.Rows() - 1 - Below(std::min(grid.Rows(), 3));
  const int used = quilla_.panel()->session().LastLine + 4;
  return Below(Below(6) == 0 ? grid.Rows() : std::clamp(used, 1, grid.Rows()));
}

std::string ScriptMaker::ClickCell() {
  const std::vector<Control*> grids = Usable([](const Control& control) {
    const auto* const grid = dynamic_cast<const Grid*>(&control);
    return grid != nullptr && grid->Rows() > 0;
  });
  if (grids.empty()) return kPause;
  const auto& grid = dynamic_cast<const Grid&>(*AnyOf(grids));
  const auto any_cell_of = [&](int column) {
    return ' ' + std::to_string(AnyRow(grid)) + ' ' + std::to_string(column);
  };
  const int column = Below(grid.Cols());
  const std::string cell = any_cell_of(column);
  if (Below(5) > 0) return "cell " + NameOf(grid) + cell;
  const int mnemonics = std::min(grid.Cols() - 1, int{kMnemonicColumn});
  return "drag " + NameOf(grid) + any_cell_of(Below(6) == 0 ? column : mnemonics) + cell;
}

std::string ScriptMaker::UseInput() {
  const std::vector<Control*> inputs = Usable(IsInput);
  if (inputs.empty()) return kPause;
  const Control& input = *AnyOf(inputs);
  if (const auto* const list = dynamic_cast<const ComboBox*>(&input)) return PickFrom(*list);
  if (dynamic_cast<const TextBox*>(&input) != nullptr) return TypeInto(input);
  return PressKeys(input);
}

std::string ScriptMaker::PickFrom(const ComboBox& list) {
  return "pick " + NameOf(list) + ' ' + std::to_string(Below(list.Count() + 1));
}

std::string ScriptMaker::TypeInto(const Control& text_box) {
  const int dice = Below(10);
  if (dice == 0) return "clear " + NameOf(text_box);
  const std::string text =
      dice == 1 ? std::string(kComments[Below(static_cast<int>(std::size(kComments)))]) : AnyName();
  return "type " + NameOf(text_box) + ' ' + robot::Quoted(text);
}

std::string ScriptMaker::PressKeys(const Control& control) {
  std::string keys;
  for (int left = 1 + Below(4); left > 0; --left) {
    keys += kKeys[static_cast<std::size_t>(Below(static_cast<int>(kKeys.size())))];
  }
  return "key " + NameOf(control) + ' ' + robot::Quoted(keys);
}

std::string ScriptMaker::AnyName() {
  if (Below(2) == 0) return {kLetters[Below(6)], static_cast<char>('0' + Below(10))};
  const Session& session = quilla_.panel()->session();
  for (const TextList* list : {static_cast<const TextList*>(&session.LabelCombo),
                               static_cast<const TextList*>(&session.XXCombo)}) {
    if (!list->IsEmpty() && Below(4) == 0) return (*list)[Below(list->Count())];
  }
  return std::string(kNames[Below(static_cast<int>(std::size(kNames)))]);
}

std::string ScriptMaker::QueueAnswer() {
  if (Below(20) == 0) {
    return "port " + std::to_string(1 + Below(2)) + ' ' +
           std::string(kPortStates[Below(static_cast<int>(std::size(kPortStates)))]);
  }
  if (Below(20) == 0) return "feed " + robot::Quoted(AnyName() + "\r\n:00");
  if (Below(3) == 0) return QueuePath();
  return "answer " + std::string(kAnswers[Below(static_cast<int>(std::size(kAnswers)))]);
}

std::string ScriptMaker::QueuePath() {
  return Below(5) == 0 ? "nopath" : "path " + robot::Quoted(AnyOf(FileNames()));
}

std::string ScriptMaker::Wait() {
  return Below(4) == 0 ? "settle" : "tick " + std::to_string(Below(40));
}

std::string ScriptMaker::Hover() {
  const std::vector<Control*> all = Usable([](const Control&) { return true; });
  if (all.empty() || Below(10) == 0) return "hover ProgrammingPanel";
  const Control& control = *AnyOf(all);
  const auto* const grid = dynamic_cast<const Grid*>(&control);
  if (grid == nullptr) return "hover " + NameOf(control);
  if (grid->Rows() == 0) return kPause;
  return "hover " + NameOf(control) + ' ' + std::to_string(AnyRow(*grid)) + ' ' +
         std::to_string(Below(grid->Cols()));
}

std::string ScriptMaker::CloseWindow() {
  std::vector<std::string> open;
  for (const Form* form : quilla_.Forms()) {
    if (form->visible() && (form->name() != kProgrammingPanel || Below(20) == 0))
      open.push_back(form->name());
  }
  return open.empty() ? kPause : "close " + AnyOf(open);
}

}  // namespace quilla::walk
