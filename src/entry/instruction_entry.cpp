#include "entry/instruction_entry.h"

#include <string>

#include "entry/operands.h"
#include "isa/instruction_set.h"

namespace quilla {
InstructionEntry::InstructionEntry(Session& session, StateMachine& states, EntryLine& line,
                                   RegisterEntry& registers)
    : session_(session), states_(states), line_(line), registers_(registers) {
  session_.ProgrammingPanel.MouseMove = [this] { Form_MouseMove(); };
  states_.SetStatus(BoxId::kInstruction, [this](bool status) { InstructionStatus(status); });
}

void InstructionEntry::InstructionStatus(bool status) { InstructionBox_.set_visible(status); }

void InstructionEntry::INST_Click(int index) {
  if (!session_.IsReady()) return;
  session_.FileChanged = true;
  session_.SelectedInstruction = index;
  SaveCells();
  const InstructionKey& key = Inst(index);
  session_.Table1.SetTextMatrix(session_.CurrentRow, kMnemonicColumn, key.caption);
  session_.CurrentOpcode = key.base_opcode;
  const FirstOperand& operand = FirstOperandOf(ClassOf(index));
  if (operand.state == PanelState::kReady) {
    line_.FinishLine();
  } else {
    session_.EntryPending = true;
    if (operand.has_opcode_at_once) line_.DisplayOpcode(session_.CurrentRow);
  }
  states_.ControlTransfer(operand.state);
}

void InstructionEntry::SaveCells() {
  const int row = session_.CurrentRow;
  for (int column = kAddressColumn; column <= kCommentColumn; ++column) {
    session_.SavedCells[static_cast<std::size_t>(column)] = session_.Table1.TextMatrix(row, column);
    session_.Table1.SetTextMatrix(row, column, {});
  }
  session_.SavedCells[kSavedOperand] = session_.OperandOf(row);
  session_.StringTable.SetTextMatrix(row, 0, {});
}

void InstructionEntry::INST_MouseMove(int index) {
  const InstructionKey& key = Inst(index);
  if (InstructionLabel_[0].caption() == key.caption) return;
  InstructionLabel_[0].set_caption(std::string(key.caption));
  InstructionLabel_[1].set_caption(std::string(" ").append(key.hint.substr(key.caption.size())));
}

void InstructionEntry::ClearInstructionHint() {
  for (Label& label : InstructionLabel_) label.set_caption({});
}

void InstructionEntry::Form_MouseMove() {
  ClearInstructionHint();
  registers_.ClearRegisterHint();
}

}  // namespace quilla
