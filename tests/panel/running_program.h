// The program as it runs, with a world outside that answers as a test has queued.
#ifndef QUILLA_TESTS_PANEL_RUNNING_PROGRAM_H_
#define QUILLA_TESTS_PANEL_RUNNING_PROGRAM_H_

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "panel/quilla.h"
#include "robot/scripted_outside.h"

namespace quilla {

class RunningProgram {
 public:
  RunningProgram() : RunningProgram(nullptr) {}
  /// `storage` takes the place of the disk, unless it is null.
  explicit RunningProgram(Storage* storage)
      : ports_{outside_.boxes,
               outside_.file_dialogs,
               outside_.port,
               outside_.clock,
               outside_.printer,
               outside_.event_loop,
               storage == nullptr ? outside_.storage : *storage} {
    quilla_.Start();
    Wait();
    TakeBoxes();
  }

  Session& session() { return quilla_.panel()->session(); }
  /// Chooses a menu entry, with a path for the file dialog if it shows one.
  void Choose(MenuEntry& entry, const std::string& path = {}) {
    if (!path.empty()) outside_.file_dialogs.Queue(path);
    entry.Choose();
    Wait();
  }
  /// Lets time pass until no timer is enabled.
  void Wait() { outside_.clock.PassAll(); }
  /// Runs an action in the modal dialog that the next command opens.
  void InDialog(const std::function<void(Form&)>& action) {
    outside_.event_loop.play_command = [this, action] {
      action(*outside_.event_loop.active());
      return true;
    };
  }
  void Open(const std::string& path) {
    session().FileChanged = false;
    Choose(session().menu.OpenFile, path);
  }
  void SaveAs(const std::string& path) { Choose(session().menu.SaveAsFile, path); }

  /// The texts of the message boxes since the last call, a line each.
  std::string TakeBoxes() {
    std::istringstream lines(transcript_.str());
    transcript_.str({});
    std::string boxes;
    for (std::string line; std::getline(lines, line);) {
      if (line.starts_with("box ")) boxes += line.substr(line.find('"')) + '\n';
    }
    return boxes;
  }

  /// All that a project file keeps: rows of six texts, then the strings.
  std::vector<std::vector<std::string>> Content() {
    std::vector<std::vector<std::string>> content;
    for (int row = 0; row < session().Table1.Rows(); ++row) {
      auto& cells = content.emplace_back();
      for (int column = 0; column < kProgramColumns; ++column) {
        cells.push_back(session().Table1.TextMatrix(row, column));
      }
      cells.push_back(session().OperandOf(row));
    }
    for (const TextList* list : {static_cast<const TextList*>(&session().LabelCombo),
                                 static_cast<const TextList*>(&session().LabelEqtList),
                                 static_cast<const TextList*>(&session().XXCombo),
                                 static_cast<const TextList*>(&session().XXEqtList)}) {
      content.push_back(list->items());
    }
    return content;
  }

 private:
  std::ostringstream transcript_;
  robot::ScriptedOutside outside_{transcript_};
  Outside ports_;
  Quilla quilla_{ports_};
};

inline std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace quilla

#endif  // QUILLA_TESTS_PANEL_RUNNING_PROGRAM_H_
