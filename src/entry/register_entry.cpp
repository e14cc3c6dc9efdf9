#include "entry/register_entry.h"

#include <cctype>
#include <string>
#include <string_view>

#include "isa/instruction_set.h"

namespace quilla {
namespace {

/// The letter of each register key, in order of their indexes: SP is S and PSW is P.
constexpr std::string_view kRegisterLetters = "BCDEHLMASP";

constexpr int kFirstArithmetic = 0x80;  // ADD B
constexpr int kLastArithmetic = 0xB8;   // CMP B
constexpr int kDestinationStep = 8;     // from one register to the next in bits 3 to 5
constexpr int kPairStep = 16;           // from one pair to the next in bits 4 and 5

bool IsPairKey(int index) { return index == reg::kB || index == reg::kD || index == reg::kH; }

/// What a key adds to the opcode as one of four pairs; SP and PSW both stand for the fourth.
int PairContribution(int index) {
  switch (index) {
    case reg::kD:
      return kPairStep;
    case reg::kH:
      return 2 * kPairStep;
    case reg::kSP:
    case reg::kPSW:
      return 3 * kPairStep;
    default:
      return 0;
  }
}

/// Arithmetic has its register in the low bits, INR and DCR in bits 3 to 5.
int ArithmeticContribution(int opcode, int index) {
  if (opcode == opcode::kInrBase || opcode == opcode::kDcrBase) return index * kDestinationStep;
  const bool arithmetic =
      opcode >= kFirstArithmetic && opcode <= kLastArithmetic && opcode % kDestinationStep == 0;
  return arithmetic ? index : 0;
}

/// What a register key does in a state.
struct KeyEffect {
  int contribution = 0;
  const char* behind = "";  // what stands behind the register in the mnemonic
  bool finishes = true;     // whether the instruction is complete
};

KeyEffect EffectOf(PanelState state, int opcode, int index) {
  switch (state) {
    case PanelState::kRegister:
      return {ArithmeticContribution(opcode, index)};
    case PanelState::kPair:
    case PanelState::kStackPair:
      return {PairContribution(index)};
    case PanelState::kLxiPair:
      return {PairContribution(index), ",", false};
    case PanelState::kMovDestination:
    case PanelState::kMviRegister:
      return {index * kDestinationStep, ",", false};
    case PanelState::kIndirectPair:
      return {index * kDestinationStep};
    default:
      return {index};
  }
}

bool TakesRegister(PanelState state) {
  switch (state) {
    case PanelState::kRegister:
    case PanelState::kPair:
    case PanelState::kLxiPair:
    case PanelState::kMovDestination:
    case PanelState::kMovSource:
    case PanelState::kStackPair:
    case PanelState::kIndirectPair:
    case PanelState::kMviRegister:
      return true;
    default:
      return false;
  }
}

}  // namespace

RegisterEntry::RegisterEntry(Session& session, StateMachine& states, EntryLine& line)
    : session_(session),
      states_(states),
      line_(line),
      RegisterBox_(&session.ProgrammingPanel, "RegisterBox"),
      RegisterCaption_(&RegisterBox_, "RegisterCaption", "Register:"),
      RegisterLabel_(&RegisterBox_, "RegisterLabel") {
  for (int index = 0; index < kRegisterKeyCount; ++index) {
    REG_.push_back(
        std::make_unique<Button>(&RegisterBox_, "REG", std::string(RegCaption(index)), index));
    REG_.back()->Click = [this, index] { REG_Click(index); };
    REG_.back()->MouseMove = [this, index] {
      RegisterLabel_.set_caption(std::string(RegCaption(index)));
    };
  }
  RegisterBox_.KeyPress = [this](char key) { RegisterBox_KeyPress(key); };
  RegisterBox_.Hide();
  states_.SetStatus(BoxId::kRegister, [this](bool status) { RegisterStatus(status); });
}

void RegisterEntry::RegisterStatus(bool status) {
  if (!status) {
    RegisterBox_.Hide();
    return;
  }
  for (const auto& key : REG_) key->set_enabled(false);
  RegisterBox_.Show();
  for (int index = 0; index < kRegisterKeyCount; ++index) {
    REG_[static_cast<std::size_t>(index)]->set_enabled(IsOffered(index));
  }
  RegisterBox_.SetFocus();
}

bool RegisterEntry::IsOffered(int index) const {
  switch (session_.CurrentPanelState) {
    case PanelState::kRegister:
    case PanelState::kMovDestination:
    case PanelState::kMviRegister:
      return index <= reg::kA;
    case PanelState::kMovSource:  // there is no MOV M, M
      return index <= reg::kA && !(index == reg::kM && session_.CurrentOpcode == opcode::kMovToM);
    case PanelState::kPair:
    case PanelState::kLxiPair:
      return IsPairKey(index) || index == reg::kSP;
    case PanelState::kStackPair:
      return IsPairKey(index) || index == reg::kPSW;
    case PanelState::kIndirectPair:
      return index == reg::kB || index == reg::kD;
    default:
      return false;
  }
}

void RegisterEntry::REG_Click(int index) {
  const PanelState state = session_.CurrentPanelState;
  if (!TakesRegister(state)) return;
  const int row = session_.CurrentRow;
  const KeyEffect effect = EffectOf(state, session_.CurrentOpcode, index);
  session_.Table1.SetTextMatrix(row, kMnemonicColumn,
                                session_.Table1.TextMatrix(row, kMnemonicColumn) + "  " +
                                    std::string(RegCaption(index)) + effect.behind);
  session_.CurrentOpcode += effect.contribution;
  if (effect.finishes) {
    line_.FinishLine();
    states_.ControlTransfer(PanelState::kReady);
  } else if (state == PanelState::kMovDestination) {
    states_.ControlTransfer(PanelState::kMovSource);
  } else {
    RegisterBox_.Hide();
    line_.DisplayOpcode(row);
    states_.ControlTransfer(state == PanelState::kLxiPair ? PanelState::kLxiOperand
                                                          : PanelState::kMviOperand);
  }
}

void RegisterEntry::RegisterBox_KeyPress(char key) {
  const auto letter = static_cast<char>(std::toupper(static_cast<unsigned char>(key)));
  const std::size_t index = kRegisterLetters.find(letter);
  if (index != std::string_view::npos && REG_[index]->enabled()) {
    REG_Click(static_cast<int>(index));
  }
}

}  // namespace quilla
