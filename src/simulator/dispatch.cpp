#include <array>
#include <cstddef>

#include "isa/instruction_set.h"
#include "simulator/instructions.h"

namespace quilla {
namespace {

StepEnd Nop(Step& /*step*/) { return StepEnd::kNormal; }

// The opcodes from `first` to `last`, `apart` from one to the next, and what they do.
struct Family {
  int first;
  int last;
  int apart;
  Instruction instruction;
};

constexpr int kRegisters = 0x08;  // apart by a register code in the middle, or by a condition
constexpr int kPairs = 0x10;
constexpr int kInARow = 1;

// A later row takes opcodes from an earlier one.
constexpr Family kFamilies[] = {
    {0x40, 0x7F, kInARow, instruction::Mov},
    {0x76, 0x76, kInARow, instruction::Hlt},
    {0x06, 0x3E, kRegisters, instruction::Mvi},
    {0x01, 0x31, kPairs, instruction::Lxi},
    {0x02, 0x12, kPairs, instruction::Stax},
    {0x0A, 0x1A, kPairs, instruction::Ldax},
    {0x22, 0x22, kInARow, instruction::Shld},
    {0x2A, 0x2A, kInARow, instruction::Lhld},
    {0x32, 0x32, kInARow, instruction::Sta},
    {0x3A, 0x3A, kInARow, instruction::Lda},
    {0xEB, 0xEB, kInARow, instruction::Xchg},
    {0xF9, 0xF9, kInARow, instruction::Sphl},
    {0x03, 0x33, kPairs, instruction::Inx},
    {0x0B, 0x3B, kPairs, instruction::Dcx},

    {0xC5, 0xE5, kPairs, instruction::Push},
    {0xF5, 0xF5, kInARow, instruction::PushPsw},
    {0xC1, 0xE1, kPairs, instruction::Pop},
    {0xF1, 0xF1, kInARow, instruction::PopPsw},
    {0xE3, 0xE3, kInARow, instruction::Xthl},

    {0xC3, 0xC3, kInARow, instruction::Jmp},
    {0xE9, 0xE9, kInARow, instruction::Pchl},
    {0xC2, 0xFA, kRegisters, instruction::JumpIf},
    {0xCD, 0xCD, kInARow, instruction::Call},
    {0xC4, 0xFC, kRegisters, instruction::CallIf},
    {0xC9, 0xC9, kInARow, instruction::Ret},
    {0xC0, 0xF8, kRegisters, instruction::RetIf},
    {0xC7, 0xFF, kRegisters, instruction::Rst},

    {0x80, 0x8F, kInARow, instruction::Add},
    {0xC6, 0xCE, kRegisters, instruction::Add},
    {0x90, 0x9F, kInARow, instruction::Sub},
    {0xD6, 0xDE, kRegisters, instruction::Sub},
    {0xB8, 0xBF, kInARow, instruction::Cmp},
    {0xFE, 0xFE, kInARow, instruction::Cmp},
    {0xA0, 0xA7, kInARow, instruction::Ana},
    {0xE6, 0xE6, kInARow, instruction::Ana},
    {0xA8, 0xAF, kInARow, instruction::Xra},
    {0xEE, 0xEE, kInARow, instruction::Xra},
    {0xB0, 0xB7, kInARow, instruction::Ora},
    {0xF6, 0xF6, kInARow, instruction::Ora},
    {0x04, 0x3C, kRegisters, instruction::Inr},
    {0x05, 0x3D, kRegisters, instruction::Dcr},
    {0x09, 0x39, kPairs, instruction::Dad},
    {0x27, 0x27, kInARow, instruction::Daa},
    {0x2F, 0x2F, kInARow, instruction::Cma},
    {0x37, 0x37, kInARow, instruction::Stc},
    {0x3F, 0x3F, kInARow, instruction::Cmc},
    {0x07, 0x17, kPairs, instruction::RotateLeft},
    {0x0F, 0x1F, kPairs, instruction::RotateRight},

    {0x30, 0x30, kInARow, instruction::Sim},
    {0x20, 0x20, kInARow, instruction::Rim},
    {0xF3, 0xFB, kRegisters, instruction::EnableInterrupts},
    {0xDB, 0xDB, kInARow, instruction::In},
    {0xD3, 0xD3, kInARow, instruction::Out},
};

constexpr std::array<Instruction, kOpcodeCount> kInstructions = [] {
  std::array<Instruction, kOpcodeCount> table{};
  table.fill(Nop);
  for (const Family& family : kFamilies) {
    for (int op = family.first; op <= family.last; op += family.apart) {
      table[static_cast<std::size_t>(op)] = family.instruction;
    }
  }
  return table;
}();

}  // namespace

Instruction InstructionOf(int op) { return kInstructions[static_cast<std::size_t>(op)]; }

}  // namespace quilla
