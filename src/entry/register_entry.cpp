#include "entry/register_entry.h"

#include <cctype>
#include <string>
#include <string_view>

#include "entry/operands.h"
#include "isa/instruction_set.h"

namespace quilla {
namespace {

/// The letter of each register key, in order of their indexes: SP is S and PSW is P.
constexpr std::string_view kRegisterLetters = "BCDEHLMASP";

}  // namespace

RegisterEntry::RegisterEntry(Session& session, StateMachine& states, EntryLine& line)
    : session_(session), states_(states), line_(line) {
  RegisterBox_.KeyPress = [this](char key) { RegisterBox_KeyPress(key); };
  RegisterBox_.Hide();
  states_.SetStatus(BoxId::kRegister, [this](bool status) { RegisterStatus(status); });
}

void RegisterEntry::RegisterStatus(bool status) {
  if (!status) {
    RegisterBox_.Hide();
    return;
  }
  for (int index = 0; index < kRegisterKeyCount; ++index) REG_[index].set_enabled(false);
  RegisterBox_.Show();
  for (int index = 0; index < kRegisterKeyCount; ++index) {
    REG_[index].set_enabled(IsOffered(index));
  }
  RegisterBox_.SetFocus();
}

bool RegisterEntry::IsOffered(int index) const {
  const RegisterOperand* const operand = RegisterOperandOf(session_.CurrentPanelState);
  if (operand == nullptr || !operand->Offers(index)) return false;
  // There is no MOV M, M.
  return index != reg::kM || operand->state != PanelState::kMovSource ||
         session_.CurrentOpcode != opcode::kMovToM;
}

void RegisterEntry::REG_Click(int index) {
  const RegisterOperand* const operand = RegisterOperandOf(session_.CurrentPanelState);
  if (operand == nullptr) return;
  const int row = session_.CurrentRow;
  session_.Table1.SetTextMatrix(row, kMnemonicColumn,
                                session_.Table1.TextMatrix(row, kMnemonicColumn) + "  " +
                                    std::string(RegCaption(index)) + operand->behind);
  session_.CurrentOpcode += RegisterBits(*operand, session_.CurrentOpcode, index);
  if (operand->next == PanelState::kReady) {
    line_.FinishLine();
  } else if (operand->next != PanelState::kMovSource) {
    RegisterBox_.Hide();
    line_.DisplayOpcode(row);
  }
  states_.ControlTransfer(operand->next);
}

void RegisterEntry::RegisterBox_KeyPress(char key) {
  const auto letter = static_cast<char>(std::toupper(static_cast<unsigned char>(key)));
  const std::size_t found = kRegisterLetters.find(letter);
  if (found == std::string_view::npos) return;
  const auto index = static_cast<int>(found);
  if (REG_[index].enabled()) REG_Click(index);
}

}  // namespace quilla
