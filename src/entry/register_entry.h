// The register keys: they complete an opcode by arithmetic, by mouse or by their letters.
#ifndef QUILLA_ENTRY_REGISTER_ENTRY_H_
#define QUILLA_ENTRY_REGISTER_ENTRY_H_

#include <string>

#include "isa/instruction_set.h"
#include "program/entry_line.h"
#include "program/key_array.h"
#include "program/session.h"
#include "program/state_machine.h"

namespace quilla {

class RegisterEntry {
 public:
  RegisterEntry(Session& session, StateMachine& states, EntryLine& line);

  /// Empties the hint above the register keys.
  void ClearRegisterHint() { RegisterLabel_.set_caption({}); }

 private:
  void RegisterStatus(bool status);
  void REG_Click(int index);
  void RegisterBox_KeyPress(char key);
  bool IsOffered(int index) const;

  Session& session_;
  StateMachine& states_;
  EntryLine& line_;

  Box RegisterBox_{&session_.ProgrammingPanel, "RegisterBox"};
  Label RegisterCaption_{&RegisterBox_, "RegisterCaption", "Register:"};
  Label RegisterLabel_{&RegisterBox_, "RegisterLabel"};
  KeyArray REG_{&RegisterBox_,
                "REG",
                kRegisterKeyCount,
                RegCaption,
                [this](int index) { REG_Click(index); },
                [this](int index) { RegisterLabel_.set_caption(std::string(RegCaption(index))); }};
};

}  // namespace quilla

#endif  // QUILLA_ENTRY_REGISTER_ENTRY_H_
