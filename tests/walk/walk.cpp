#include "walk/walk.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <istream>
#include <optional>
#include <ostream>
#include <sstream>
#include <streambuf>
#include <string_view>
#include <utility>

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

/// What holds in every state of the program, whatever the user has done.
class Rules {
 public:
  /// The session must outlive the object.
  explicit Rules(const Session& session) : session_(session) {}

  /// Says which of the rules is broken; empty if all hold.
  std::string Broken() const;
  /// The same for what the lists say of labels. It holds where they have just been brought up to
  /// date, as at the start of the place tool.
  std::string BrokenLabelList() const;
  /// The same for the strings of the clipboard, where it has just been pasted.
  std::string BrokenPaste() const;

 private:
  const Session& session_;
};

std::string Rules::Broken() const {
  struct Rule {
    const char* text;
    bool holds;
  };
  const int rows = session_.Table1.Rows();
  const auto open_boxes = std::ranges::count_if(kBoxes, [this](std::string_view name) {
    const Control* const box = session_.ProgrammingPanel.Find(name);
    return box != nullptr && box->visible();
  });
  const Rule rules[] = {
      {"StringTable is as tall as Table1", session_.StringTable.Rows() == rows},
      {"EditStringTable is as long as EditTable",
       session_.EditStringTable.Count() == session_.EditTable.Rows()},
      {"LabelEqtList is as long as LabelCombo",
       session_.LabelEqtList.Count() == session_.LabelCombo.Count()},
      {"XXEqtList is as long as XXCombo", session_.XXEqtList.Count() == session_.XXCombo.Count()},
      {"CurrentRow is in the table", session_.CurrentRow >= 0 && session_.CurrentRow < rows},
      {"the commands are offered when the panel is ready",
       session_.menu.SaveFile.enabled() == session_.IsReady()},
      {"one box is open at most", open_boxes <= 1},
  };
  for (const Rule& rule : rules) {
    if (!rule.holds) return std::string("no more: ") + rule.text;
  }
  return {};
}

std::string Rules::BrokenLabelList() const {
  for (const ComboBox* copy : {&session_.FindCombo, &session_.PlaceCombo, &session_.ReplaceCombo}) {
    if (copy->items() != session_.LabelCombo.items()) return copy->name() + " is no copy";
  }
  for (int i = 0; i < session_.LabelCombo.Count(); ++i) {
    const std::string& label = session_.LabelCombo[i];
    int line = 0;
    bool used = false;
    for (int row = session_.Table1.Rows() - 1; row > 0; --row) {
      if (session_.Table1.TextMatrix(row, kLabelColumn) == label) line = row;
      used = used || (session_.OperandOf(row) == label &&
                      HasLabel(session_.Table1.TextMatrix(row, kOpcodeColumn)));
    }
    if (session_.LabelLineList[i] != std::to_string(line) ||
        session_.LabelPlacedList[i] != (line > 0 ? kYesFlag : kNoFlag) ||
        session_.LabelUsedList[i] != (used ? kYesFlag : kNoFlag)) {
      return "the lists are wrong about '" + label + "'";
    }
  }
  return {};
}

std::string Rules::BrokenPaste() const {
  if (session_.TipsLabel.caption() != "Completed pasting.") return {};
  for (int row = 0; row < session_.EditTable.Rows(); ++row) {
    const std::string& name = session_.EditStringTable[row];
    const bool variable = HasVariable(session_.EditTable.TextMatrix(row, kOpcodeColumn));
    const TextList& names = variable ? session_.XXCombo : session_.LabelCombo;
    if (!name.empty() && names.Find(name) < 0) return "the pasted '" + name + "' is not listed";
  }
  return BrokenLabelList();
}

void Write(const std::string& name, const std::string& bytes) {
  std::ofstream(name, std::ios::binary) << bytes;
}

/// A project that no panel has made: two origins in a row, labels under two addresses and on two
/// rows, names that are both kinds, cells of odd lengths.
std::string OddProject() {
  return "odd\n8085\n9\n"
         "Origin,7000,,,,\n"
         "Origin,2000,,,,\n"
         "twice,,JMP  twice,C3   XX   XX,,twice\n"
         "twice,,MVI  A,3E,both,both\n"
         ",,LXI  H,21   00   80,both,both\n"
         "Origin,FFF0,NOP,00,,x\n"
         ",,J,C3,short,longer\n"
         ",,DFB,ZZ   00,odd,both\n"
         "last,,RNC,D0,,\n"
         "EOT\n4\ntwice,8000\ntwice,9000\nboth,XXXX\nnone,\n2\nboth,XX\nfree,12\nEOF\n";
}

/// The files that a walk finds.
void WriteFiles() {
  const std::string project = OddProject();
  Write("odd.baf", project);
  Write("cut.baf", project.substr(0, project.size() / 2));
  Write("huge.baf", "x\n8085\n2000000000\n");
  Write("empty.baf", "");
  Write("good.hex", "\":0380000021008059\"\r\n\":00000001FF\"\r\n");
  std::filesystem::create_directory("folder.baf");
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
    return fault_.empty() && rules_ ? rules_->Broken() : fault_;
  }

 private:
  Session& session() { return robot_.quilla().panel()->session(); }

  int_type underflow() override {
    if (!rules_) rules_.emplace(session());
    if (fault_.empty()) fault_ = rules_->Broken();
    if (fault_.empty()) fault_ = broken_();
    if (fault_.empty() && line_ == "click PasteEdit\n") fault_ = rules_->BrokenPaste();
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
  std::optional<Rules> rules_;  // as soon as there is a panel
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
      fault_ = rules_->BrokenLabelList();
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
  const robot::ScratchFolder folder("no files");
  WriteFiles();
  std::string fault = Walk(seed, make_hands, std::move(broken)).Play();
  if (!fault.empty()) fault += " in " + walk_under_way;
  walk_under_way.clear();
  return fault;
}

std::string BrokenRule(const Session& session) { return Rules(session).Broken(); }

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
