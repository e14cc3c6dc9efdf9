#include "walk/walk.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <istream>
#include <ostream>
#include <sstream>
#include <streambuf>
#include <string_view>
#include <utility>

#include "panel/running_program.h"
#include "program/opcode_cell.h"
#include "robot/robot.h"
#include "scenario.h"
#include "walk/script_maker.h"

// Sanitizers end a broken program by a signal, which can be caught, and not at once. The names are
// theirs.
// NOLINTBEGIN(*-reserved-identifier)
extern "C" const char* __asan_default_options() { return "abort_on_error=1"; }
extern "C" const char* __ubsan_default_options() { return "abort_on_error=1"; }
// NOLINTEND(*-reserved-identifier)

namespace quilla::walk {
namespace {

constexpr int kShortestWalk = 40;
constexpr int kMoreLines = 160;
constexpr int kMostClosings = 20;

/// The walk that is under way, for a report from beyond.
std::string walk_under_way;

/// The boxes of tasks, of which one stands in the panel at a time.
constexpr std::string_view kBoxes[] = {"InstructionBox", "RegisterBox", "NumberBox", "DataBox",
                                       "LabelBox",       "XXBox",       "PlaceBox",  "FindBox",
                                       "ReplaceBox",     "CommentsBox"};

/// Says what is wrong in what the lists say of labels. It holds where they have just been brought
/// up to date, as at the start of the place tool.
std::string BrokenLabelList(const Session& session) {
  for (const ComboBox* copy : {&session.FindCombo, &session.PlaceCombo, &session.ReplaceCombo}) {
    if (copy->items() != session.LabelCombo.items()) return copy->name() + " is no copy";
  }
  for (int i = 0; i < session.LabelCombo.Count(); ++i) {
    const std::string& label = session.LabelCombo[i];
    int line = 0;
    bool used = false;
    for (int row = session.Table1.Rows() - 1; row > 0; --row) {
      if (session.Table1.TextMatrix(row, kLabelColumn) == label) line = row;
      used = used || (session.OperandOf(row) == label &&
                      HasLabel(session.Table1.TextMatrix(row, kOpcodeColumn)));
    }
    if (session.LabelLineList[i] != std::to_string(line) ||
        session.LabelPlacedList[i] != (line > 0 ? kYesFlag : kNoFlag) ||
        session.LabelUsedList[i] != (used ? kYesFlag : kNoFlag)) {
      return "the lists are wrong about '" + label + "'";
    }
  }
  return {};
}

/// The same for the strings of the clipboard, where it has just been pasted.
std::string BrokenPaste(const Session& session) {
  if (session.TipsLabel.caption() != "Completed pasting.") return {};
  for (int row = 0; row < session.EditTable.Rows(); ++row) {
    const std::string& name = session.EditStringTable[row];
    const bool variable = HasVariable(session.EditTable.TextMatrix(row, kOpcodeColumn));
    const TextList& names = variable ? session.XXCombo : session.LabelCombo;
    if (!name.empty() && names.Find(name) < 0) return "the pasted '" + name + "' is not listed";
  }
  return BrokenLabelList(session);
}

void Write(const std::string& name, const std::string& bytes) {
  std::ofstream(name, std::ios::binary) << bytes;
}

/// The files that a walk finds besides those of the scenarios. One is a project that no panel has
/// made: two origins in a row, labels under two addresses and on two rows, names that are both
/// kinds, cells of odd lengths.
void WriteFiles() {
  const std::string project = BytesOf(QUILLA_SOURCE_DIR "/tests/fuzz/corpus/project/odd");
  Write("odd.baf", project);
  Write("cut.baf", project.substr(0, project.size() / 2));
  Write("huge.baf", "x\n8085\n2000000000\n");
  Write("empty.baf", "");
}

/// A script as a stream: each line is made when the player asks for it.
class Walk : private std::streambuf {
 public:
  Walk(unsigned seed, const robot::HandsFactory& make_hands, std::function<std::string()> broken)
      : script_(this),
        nowhere_(nullptr),
        broken_(std::move(broken)),
        robot_(script_, nowhere_, errors_, make_hands),
        maker_(seed, robot_.quilla(), robot_.event_loop()),
        lines_left_(kShortestWalk + maker_.Below(kMoreLines)) {
    walk_under_way = "seed " + std::to_string(seed) + ":\n";
  }

  /// Gives the rule that broke, or nothing.
  std::string Play() {
    if (robot_.Play() != robot::kPlayed) return errors_.str();
    return fault_.empty() ? BrokenRule(session()) : fault_;
  }

 private:
  Session& session() { return robot_.quilla().panel()->session(); }

  int_type underflow() override {
    if (fault_.empty()) fault_ = BrokenRule(session());
    if (fault_.empty()) fault_ = broken_();
    if (fault_.empty() && line_ == "click PasteEdit\n") fault_ = BrokenPaste(session());
    line_ = fault_.empty() ? NextLine() : std::string();
    if (line_.empty()) return traits_type::eof();
    line_ += '\n';
    walk_under_way += line_;
    setg(line_.data(), line_.data(), line_.data() + line_.size());
    return traits_type::to_int_type(line_.front());
  }

  /// The next line; empty at the end of the script, or with a fault.
  std::string NextLine();
  /// The name of a window besides the panel, the one that blocks the others first; or empty.
  std::string OpenWindow();

  std::istream script_;
  std::ostream nowhere_;
  std::ostringstream errors_;
  const std::function<std::string()> broken_;
  robot::Robot robot_;
  ScriptMaker maker_;
  int lines_left_;
  std::string line_;
  std::string fault_;
  int closings_left_ = kMostClosings;
  int steps_home_ = 0;
};

std::string Walk::NextLine() {
  if (lines_left_-- > 0) return maker_.NextLine();
  if (const std::string window = OpenWindow(); !window.empty()) {
    if (--closings_left_ > 0) return "close " + window;
    fault_ = window + " does not close";
    return {};
  }
  switch (steps_home_++) {
    case 0:
      return "settle";
    case 1:
    case 3:
      return "escape";
    case 2: {
      // A row that was picked once and is gone holds the task open, until another one is picked.
      if (session().ClickedRow < session().Table1.Rows()) return "tick 10";
      int row = 1;
      while (session().IsOrigin(row)) ++row;
      return "cell Table1 " + std::to_string(row) + " 0";
    }
    case 4:
      if (session().IsReady()) return "click PlaceLabelTool";
      fault_ = "Esc does not lead back";
      return {};
    default:
      fault_ = BrokenLabelList(session());
      return {};
  }
}

std::string Walk::OpenWindow() {
  if (const Form* const modal = robot_.event_loop().modal()) return modal->name();
  for (const Form* form : robot_.quilla().Forms()) {
    if (form->visible() && form != &session().ProgrammingPanel) return form->name();
  }
  return {};
}

}  // namespace

std::string FaultOfWalk(unsigned seed, const robot::HandsFactory& make_hands,
                        std::function<std::string()> broken) {
  const robot::ScratchFolder folder(robot::kScenarios / "files");
  WriteFiles();
  std::string fault = Walk(seed, make_hands, std::move(broken)).Play();
  if (!fault.empty()) fault += " in " + walk_under_way;
  walk_under_way.clear();
  return fault;
}

std::string BrokenRule(const Session& session) {
  struct Rule {
    const char* text;
    bool holds;
  };
  const int rows = session.Table1.Rows();
  const auto open_boxes = std::ranges::count_if(kBoxes, [&](std::string_view name) {
    const Control* const box = session.ProgrammingPanel.Find(name);
    return box != nullptr && box->visible();
  });
  const Rule rules[] = {
      {"StringTable is as tall as Table1", session.StringTable.Rows() == rows},
      {"EditStringTable is as long as EditTable",
       session.EditStringTable.Count() == session.EditTable.Rows()},
      {"LabelEqtList is as long as LabelCombo",
       session.LabelEqtList.Count() == session.LabelCombo.Count()},
      {"XXEqtList is as long as XXCombo", session.XXEqtList.Count() == session.XXCombo.Count()},
      {"CurrentRow is in the table", session.CurrentRow >= 0 && session.CurrentRow < rows},
      {"the commands are offered when the panel is ready",
       session.menu.SaveFile.enabled() == session.IsReady()},
      {"one box is open at most", open_boxes <= 1},
  };
  for (const Rule& rule : rules) {
    if (!rule.holds) return std::string("no more: ") + rule.text;
  }
  return {};
}

void TellScriptOnDeath() {
  for (const int signal : {SIGABRT, SIGINT, SIGTERM}) {
    std::signal(signal, [](int caught) {
      std::fputs(walk_under_way.c_str(), stderr);
      std::signal(caught, SIG_DFL);
      std::raise(caught);
    });
  }
}

}  // namespace quilla::walk
