// What differs since the script last asked: the variables, tables and lists of the session, and
// what the user sees of the open windows.
#ifndef QUILLA_ROBOT_CHANGES_H_
#define QUILLA_ROBOT_CHANGES_H_

#include <map>
#include <ostream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "panel/quilla.h"
#include "robot/table_record.h"
#include "robot/wrapped_line.h"

namespace quilla::robot {

class Changes {
 public:
  explicit Changes(Quilla& quilla) : quilla_(quilla) {}

  /// Remembers all as it stands; once, when the panel has opened.
  void Begin();
  /// Writes all that differs from what is remembered, and remembers it; nothing where nothing
  /// does. A control in a box that is hidden stays remembered as it was when it was last seen.
  void Print(std::ostream& transcript);

 private:
  /// A control: its window, empty for the panel, its name, and its index.
  using Name = std::tuple<std::string, std::string, int>;
  /// What is compared of a control.
  struct Look {
    std::string caption;
    std::string text;
    bool visible = true;
    bool enabled = true;
    bool checked = false;
  };
  /// What has changed of the controls, by kind.
  struct News;

  static std::vector<std::pair<std::string, std::string>> VariablesOf(const Session& session);
  static Look LookOf(const Control& control);
  static std::string TextOf(const Name& name);
  Name NameOf(const Control& control);
  /// The text for a control of a form, also for none.
  std::string NameOf(const Form& form, const Control* control);
  /// Whether the entries of a list are compared: not those of the copies of the label list while
  /// their boxes are hidden.
  bool IsTold(const TextList& list);

  /// `cursor_moved` if the mark of the cursor has gone with it, and nothing else has another
  /// colour.
  void PrintVariables(std::ostream& transcript, bool cursor_moved);
  /// Writes what differs in lists that are parallel; nothing where they are not of one length.
  void PrintStrings(std::ostream& transcript, const char* name,
                    const std::vector<const TextList*>& lists);
  /// Says whether that is so.
  bool PrintTables(std::ostream& transcript, const std::map<Name, Control*>& controls);
  /// Adds the name of the control with the focus, or the default button, if it is in sight and
  /// another one than before.
  void Add(WrappedLine& line, std::string& before, const Form& form, const Control* control);

  Quilla& quilla_;
  std::map<std::string, std::string> variables_;
  std::map<Name, TableRecord> tables_;
  std::map<Name, Look> looks_;
  std::map<const Form*, std::string> focus_;
  std::map<const Form*, std::string> default_;
};

}  // namespace quilla::robot

#endif  // QUILLA_ROBOT_CHANGES_H_
