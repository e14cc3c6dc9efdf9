#include "walk/script_maker.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/button.h"
#include "platform/text_box.h"
#include "platform/text_list.h"
#include "robot/words.h"
#include "symbols/string_lists.h"

namespace quilla::walk {
namespace {

/// What a user does instead of what cannot or must not be done.
constexpr const char* kPause = "tick 10";

constexpr const char* kNames[] = {"a1", "x", "loop", "sub", "count", "z9", "1a", "Z", "toolong"};
constexpr const char* kComments[] = {"load, store", "&", "größer", "終", "x&&", "'", "  "};
constexpr std::string_view kKeys = "0123456789ABCDEFabcdefHLMPShlmpsxZ.";
constexpr std::string_view kLetters = "abcdef";
constexpr std::string_view kDigits = "0123456789";
constexpr const char* kAnswers[] = {"ok", "cancel", "yes", "no"};
constexpr const char* kPortStates[] = {"present", "missing", "busy", "broken"};

/// Files that are there, that are none, and that may come to be.
constexpr const char* kFileNames[] = {
    "a.baf",   "b.baf",      "c.txt",        "a.hex",       "b.hex",    "odd.baf",
    "odd.baf", "folder.baf", "absent/a.baf", "cut.baf",     "huge.baf", "x",
    "",        "good.hex",   "empty.baf",    "missing.hex", "folder.x",
};

/// The control as a script names it.
std::string NameOf(const Control& control) {
  std::string name = control.name();
  if (control.form()->name() != kProgrammingPanel) name.insert(0, control.form()->name() + '.');
  if (control.index() != Control::kNoIndex) name += ' ' + std::to_string(control.index());
  return name;
}

}  // namespace

std::string ScriptMaker::NextLine() {
  if (!planned_.empty()) return std::exchange(planned_, {});
  const int dice = Below(100);
  if (dice < 40) return GoOn();
  if (dice < 46) return Use<MenuEntry>();
  if (dice < 66) return Use<Grid>();
  if (dice < 78) return Use<Button>();
  if (dice < 82) return Use<ComboBox>();
  if (dice < 87) return Use<TextBox>();
  if (dice < 89) return Below(2) == 0 ? Use<Box>() : Use<Label>();
  if (dice < 94) return QueueAnswer();
  const Form* const modal = event_loop_.modal();
  if (dice < 96 && modal != nullptr) return "close " + modal->name();
  if (dice < 98) return Below(4) == 0 ? "settle" : "tick " + std::to_string(Below(40));
  return Below(3) == 0 ? "escape" : "enter";
}

template <typename Type>
std::vector<const Type*> ScriptMaker::Usable() {
  const Form* const modal = event_loop_.modal();
  std::vector<const Type*> usable;
  for (const Form* form : quilla_.Forms()) {
    if (!form->visible() || (modal != nullptr && modal != form)) continue;
    for (const Control* control : form->controls()) {
      // The button that Esc presses stands out of sight: nobody clicks it.
      const auto* const fitting = dynamic_cast<const Type*>(control);
      if (fitting != nullptr && control->IsVisible() && control->IsEnabled() &&
          control != form->cancel_button()) {
        usable.push_back(fitting);
      }
    }
  }
  return usable;
}

template <typename Type>
std::string ScriptMaker::Use() {
  const auto usable = Usable<Type>();
  if (usable.empty()) return kPause;
  return Act(*AnyOf(usable));
}

std::string ScriptMaker::GoOn() {
  const Form* const modal = event_loop_.modal();
  const Form& form = modal == nullptr ? quilla_.panel()->form() : *modal;
  const Button* const accept = form.default_button();
  if (accept != nullptr && accept->IsVisible() && accept->IsEnabled() && Below(4) > 0) {
    return Act(static_cast<const Control&>(*accept));
  }
  if (!Usable<Option>().empty() && Below(6) == 0) return Use<Option>();
  const auto texts = Usable<TextBox>();
  if (!texts.empty() && Below(3) > 0) {
    return IsGoodName(texts.front()->text()) ? Use<Grid>() : Act(*texts.front());
  }
  return Usable<Button>().empty() ? "escape" : Use<Button>();
}

std::string ScriptMaker::Act(const Control& control) {
  const std::string& name = control.name();
  if (name == "AssembleFile" || name == "QuitFile") return kPause;  // it may never end, or does
  if (name == "SimulationView" && Below(8) > 0) return kPause;      // it fills a whole memory
  if (name.ends_with("File") && Below(2) == 0) {
    planned_ = "click " + NameOf(control);
    return QueuePath();
  }
  if (control.TakesKeys() && Below(2) == 0) {
    std::string keys;
    for (int left = 1 + Below(4); left > 0; --left) keys += AnyOf(kKeys);
    return "key " + NameOf(control) + ' ' + robot::Quoted(keys);
  }
  static constexpr const char* kRare[] = {"press ", "release ", "hover "};
  return (Below(20) == 0 ? AnyOf(kRare) : "click ") + NameOf(control);
}

std::string ScriptMaker::Act(const Grid& grid) {
  if (grid.Rows() == 0) return kPause;
  const int used = std::clamp(quilla_.panel()->session().LastLine + 4, 1, grid.Rows());
  const auto any_cell = [&](int column) {
    const int row = Below(Below(6) == 0 ? grid.Rows() : used);
    return ' ' + std::to_string(row) + ' ' + std::to_string(column);
  };
  const int column = Below(grid.Cols());
  if (Below(5) > 0) return "cell " + NameOf(grid) + any_cell(column);
  const int mnemonics = std::min(grid.Cols() - 1, int{kMnemonicColumn});
  return "drag " + NameOf(grid) + any_cell(mnemonics) + any_cell(column);
}

std::string ScriptMaker::Act(const ComboBox& list) {
  return "pick " + NameOf(list) + ' ' + std::to_string(Below(list.Count() + 1));
}

std::string ScriptMaker::Act(const TextBox& text_box) {
  if (!text_box.text().empty() && Below(2) == 0) return "clear " + NameOf(text_box);
  const std::string text = Below(9) == 0 ? AnyOf(kComments) : AnyName();
  return "type " + NameOf(text_box) + ' ' + robot::Quoted(text);
}

std::string ScriptMaker::AnyName() {
  if (Below(2) == 0) return {AnyOf(kLetters), AnyOf(kDigits)};
  const Session& session = quilla_.panel()->session();
  const ComboBox& list = Below(2) == 0 ? session.LabelCombo : session.XXCombo;
  return list.IsEmpty() || Below(2) == 0 ? AnyOf(kNames) : AnyOf(list.items());
}

std::string ScriptMaker::QueueAnswer() {
  if (Below(20) == 0) return "port " + std::to_string(1 + Below(2)) + ' ' + AnyOf(kPortStates);
  if (Below(20) == 0) return "feed " + robot::Quoted(AnyName() + "\r\n:00");
  return Below(3) == 0 ? QueuePath() : std::string("answer ") + AnyOf(kAnswers);
}

std::string ScriptMaker::QueuePath() {
  return Below(5) == 0 ? "nopath" : "path " + robot::Quoted(AnyOf(kFileNames));
}

}  // namespace quilla::walk
