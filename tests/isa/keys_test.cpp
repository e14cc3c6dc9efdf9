#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "isa/instruction_set.h"

namespace quilla {
namespace {

TEST(InstructionKeyTest, StandsInItsPlace) {
  std::istringstream expected(
      "MOV 64 MVI 6 LXI 1 LDAX 10 LHLD 42 LDA 58 STA 50 STAX 2 SHLD 34 XCHG 235 "
      "ADD 128 ADC 136 SUB 144 SBB 152 DAD 9 ADI 198 ACI 206 SUI 214 SBI 222 DAA 39 "
      "DCR 5 DCX 11 INR 4 INX 3 ANA 160 XRA 168 ORA 176 ANI 230 XRI 238 ORI 246 "
      "CMA 47 RLC 7 RRC 15 RAL 23 RAR 31 CMP 184 CPI 254 JMP 195 JPO 226 JNZ 194 "
      "JC 218 JP 242 PCHL 233 JPE 234 JZ 202 JNC 210 JM 250 IN 219 OUT 211 CALL 205 "
      "CPO 228 CPE 236 CNZ 196 CZ 204 CC 220 CNC 212 CP 244 CM 252 RET 201 RPO 224 "
      "RPE 232 RNZ 192 RZ 200 RC 216 RNC 208 RP 240 RM 248 RST 199 PUSH 197 POP 193 "
      "XTHL 227 SPHL 249 DI 243 EI 251 RIM 32 SIM 48 STC 55 CMC 63 NOP 0 HLT 118");
  for (int index = 0; index < kInstructionKeyCount; ++index) {
    std::string caption;
    int base_opcode = -1;
    expected >> caption >> base_opcode;
    EXPECT_EQ(Inst(index).caption, caption) << index;
    EXPECT_EQ(Inst(index).base_opcode, base_opcode) << caption;
  }
}

// The operations of one kind, by caption.
struct Kind {
  std::string operands;  // As the hint names them.
  InstructionClass instruction_class;
  int length;
  std::string captions;
};

TEST(InstructionKeyTest, HintClassAndLengthAgreeWithTheOperands) {
  using enum InstructionClass;
  const std::vector<Kind> kinds = {
      {"", kNoOperand, 1,
       "XCHG DAA CMA RLC RRC RAL RAR PCHL RET RPO RPE RNZ RZ RC RNC RP RM "
       "XTHL SPHL DI EI RIM SIM STC CMC NOP HLT"},
      {" 8-Bit Data", kByteData, 2, "ADI ACI SUI SBI ANI XRI ORI CPI"},
      {" Port Address", kByteData, 2, "IN OUT"},
      {" Register/Memory", kRegister, 1, "ADD ADC SUB SBB DCR INR ANA XRA ORA CMP"},
      {" Memory Address", kLabel, 3, "LHLD LDA STA SHLD"},
      {" Label", kLabel, 3, "JMP JPO JNZ JC JP JPE JZ JNC JM CALL CPO CPE CNZ CZ CC CNC CP CM"},
      {" Register Pair/Stack Pointer", kPair, 1, "DAD DCX INX"},
      {" Register Pair/Stack Pointer, 16-Bit Data", kLxi, 3, "LXI"},
      {" Register/Memory, Register/Memory", kMov, 1, "MOV"},
      {" Register Pair/PSW", kStack, 1, "PUSH POP"},
      {" Number", kRestart, 1, "RST"},
      {" Register Pair", kIndirect, 1, "LDAX STAX"},
      {" Register/Memory, 8-Bit Data", kMvi, 2, "MVI"},
  };
  std::set<int> seen;
  for (const Kind& kind : kinds) {
    std::istringstream captions(kind.captions);
    for (std::string caption; captions >> caption;) {
      const int index = FindInstructionKey(caption);
      ASSERT_EQ(Inst(index).caption, caption);
      EXPECT_TRUE(seen.insert(index).second) << caption;
      EXPECT_EQ(Inst(index).hint, caption + kind.operands);
      EXPECT_EQ(ClassOf(index), kind.instruction_class) << caption;
      EXPECT_EQ(InstructionLength(Inst(index).base_opcode), kind.length) << caption;
    }
  }
  EXPECT_EQ(seen.size(), kInstructionKeyCount);
}

TEST(InstructionKeyTest, IsFoundByTheBareNameOfEveryOpcode) {
  constexpr int kLastKey = 79;
  for (int opcode = 0; opcode < kOpcodeCount; ++opcode) {
    const int found = FindInstructionKey(PartialInstList(opcode));
    if (opcode == 0xD0 || IsInvalidOpcode(opcode)) {
      EXPECT_EQ(found, kLastKey) << opcode;
    } else {
      EXPECT_EQ(Inst(found).caption, PartialInstList(opcode)) << opcode;
    }
  }
  EXPECT_EQ(FindInstructionKey("mov"), kLastKey);
  EXPECT_EQ(FindInstructionKey(""), kLastKey);
}

TEST(OperandKeyTest, CaptionsFollowTheIndexes) {
  const std::vector<std::pair<int, std::string>> registers = {
      {reg::kB, "B"}, {reg::kC, "C"}, {reg::kD, "D"}, {reg::kE, "E"},   {reg::kH, "H"},
      {reg::kL, "L"}, {reg::kM, "M"}, {reg::kA, "A"}, {reg::kSP, "SP"}, {reg::kPSW, "PSW"}};
  int index = 0;
  for (const auto& [key, caption] : registers) {
    EXPECT_EQ(key, index++);
    EXPECT_EQ(RegCaption(key), caption);
  }
  EXPECT_EQ(index, kRegisterKeyCount);
  for (int digit = 0; digit < kDigitKeyCount; ++digit) {
    EXPECT_EQ(std::stoi(std::string(DigitCaption(digit)), nullptr, 16), digit);
    EXPECT_EQ(DigitCaption(digit).size(), 1);
  }
}

}  // namespace
}  // namespace quilla
