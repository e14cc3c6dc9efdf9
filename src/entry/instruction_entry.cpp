#include "entry/instruction_entry.h"

#include "entry/operands.h"
#include "isa/instruction_set.h"

namespace quilla {
InstructionEntry::InstructionEntry(Session& session, StateMachine& states, EntryLine& line,
                                   RegisterEntry& registers)
    : session_(session),
      states_(states),
      line_(line),
      registers_(registers),
      InstructionBox_(&session.ProgrammingPanel, "InstructionBox"),
      InstructionCaption_(&InstructionBox_, "InstructionCaption", "Instruction:"),
      InstructionLabel_{Label(&InstructionBox_, "InstructionLabel", {}, 0),
                        Label(&InstructionBox_, "InstructionLabel", {}, 1)} {
  for (int index = 0; index < kInstructionKeyCount; ++index) {
    const InstructionKey& key = Inst(index);
    INST_.push_back(
        std::make_unique<Button>(&InstructionBox_, "INST", std::string(key.caption), index));
    INST_.back()->Click = [this, index] { INST_Click(index); };
    INST_.back()->MouseMove = [this, index] { INST_MouseMove(index); };
    InstructionHints_.emplace_back(key.hint.substr(0, key.caption.size()),
                                   std::string(" ").append(key.hint.substr(key.caption.size())));
  }
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
  session_.Table1.SetTextMatrix(session_.CurrentRow, kMnemonicColumn, std::string(key.caption));
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
  const auto& [name, operands] = InstructionHints_[static_cast<std::size_t>(index)];
  if (InstructionLabel_[0].caption() == INST_[static_cast<std::size_t>(index)]->caption()) return;
  InstructionLabel_[0].set_caption(name);
  InstructionLabel_[1].set_caption(operands);
}

void InstructionEntry::ClearInstructionHint() {
  for (Label& label : InstructionLabel_) label.set_caption({});
}

void InstructionEntry::Form_MouseMove() {
  ClearInstructionHint();
  registers_.ClearRegisterHint();
}

}  // namespace quilla
