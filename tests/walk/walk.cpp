#include "walk/walk.h"

#include <csignal>
#include <cstdio>
#include <istream>
#include <optional>
#include <ostream>
#include <sstream>
#include <streambuf>
#include <utility>

#include "robot/robot.h"
#include "scenario.h"
#include "walk/files.h"
#include "walk/rules.h"
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
