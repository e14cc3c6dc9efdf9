// Programs made up by chance: their addresses against sums, their image against their rows, their
// files against themselves, and what the disassembler makes of their image, rightly marked.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "formats/hex_records.h"
#include "isa/instruction_set.h"
#include "panel/running_program.h"
#include "platform/number_text.h"
#include "program/opcode_cell.h"
#include "scenario.h"

namespace quilla {
namespace {

constexpr int kNames = 8;

class ProgramTest : public testing::Test {
 protected:
  const std::string& Cell(int row, int column) {
    return program_.session().Table1.TextMatrix(row, column);
  }

  bool IsData(int row) { return Cell(row, kMnemonicColumn) == kDataMnemonic; }

  /// The Opcode cells of the rows that have one, with the mnemonic of data before theirs.
  std::vector<std::string> Cells() {
    std::vector<std::string> cells;
    for (int row = 0; row < program_.session().Table1.Rows() - 1; ++row) {
      const std::string& cell = Cell(row, kOpcodeColumn);
      if (!cell.empty()) cells.push_back((IsData(row) ? kDataMnemonic : "") + cell);
    }
    return cells;
  }

  /// Marks the bytes of each row by a drag upwards, presses Done and waits.
  void MarkAsInProgram(Form& dialog) {
    auto& table = dynamic_cast<Grid&>(*dialog.Find("DataTable"));
    int first = 1;
    for (int row = 0; row < program_.session().Table1.Rows() - 1; ++row) {
      const int bytes = ByteCount(Cell(row, kOpcodeColumn));
      if (bytes == 0) continue;
      dialog.Find("DataType", IsData(row) ? 0 : 1)->Choose();
      table.PressCell(first + bytes - 1, 0);
      table.ReleaseAt(first);
      first += bytes;
    }
    EXPECT_EQ(table.Rows(), first);
    dialog.Find("DoneButton")->Choose();
    program_.Wait();
  }

  /// Assembles the program, and the program that comes of disassembling that.
  void CheckRoundTrip() {
    Session& session = program_.session();
    program_.Choose(session.menu.AssembleFile, "first.hex");
    if (!RecordsAreGood(session.HexList)) return;  // a checksum of three digits
    const std::vector<std::string> records = session.HexList.items();
    const std::vector<std::string> cells = Cells();
    program_.InDialog([this](Form& dialog) { MarkAsInProgram(dialog); });
    session.FileChanged = false;
    program_.Choose(session.menu.DisassembleFile, "first.hex");
    EXPECT_EQ(session.TipsLabel.caption(), "Disassembling completed successfully.");
    EXPECT_EQ(Cells(), cells);
    program_.Choose(session.menu.AssembleFile, "second.hex");
    EXPECT_EQ(session.HexList.items(), records);
  }

  robot::ScratchFolder folder_{"no files"};
  RunningProgram program_;
};

TEST_F(ProgramTest, TheExamplesComeBackFromTheirHexFiles) {
  for (const auto& file : std::filesystem::directory_iterator(QUILLA_SOURCE_DIR "/examples")) {
    if (file.path().extension() != ".baf") continue;
    SCOPED_TRACE(file.path().stem().string());
    program_.Open(file.path().string());
    CheckRoundTrip();
  }
}

class RandomProgramsTest : public ProgramTest, public testing::WithParamInterface<unsigned> {
 protected:
  RandomProgramsTest() : random_(GetParam()) {
    Session& session = program_.session();
    const int rows = 40 + Below(60);
    session.Table1.SetRows(rows);
    session.StringTable.SetRows(rows);
    for (int i = 0; i < kNames; ++i) {
      session.AddLabel({"l" + std::to_string(i), "0", "0", "0", "F00" + std::to_string(i)});
      session.XXCombo.Add("v" + std::to_string(i));
      session.XXEqtList.Add(PaddedHexText(Below(0x100), kByteDigits));
    }
    Set(0, kAddressColumn, AddressText(0x2000));
    for (int row = 2; row < rows - 1; ++row) {
      if (Below(15) == 0 && !session.IsOrigin(row - 1)) {
        Set(row, kLabelColumn, kOrigin);
        // Later blocks stand lower, in any order that does not overlap.
        Set(row, kAddressColumn, AddressText(0x9000 - row * 0x100));
      } else if (Below(6) > 0) {
        MakeRow(row);
      }
    }
    MakeRow(rows - 1);  // which is neither addressed nor assembled
    for (int label = 0; label < kNames; label += 2) {
      const int row = 3 + label * 4;
      if (!session.IsOrigin(row)) Set(row, kLabelColumn, session.LabelCombo[label]);
    }
  }

  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  void Set(int row, int column, std::string_view text) {
    program_.session().Table1.SetTextMatrix(row, column, text);
  }

  void MakeRow(int row) {
    Session& session = program_.session();
    const int opcode = Below(kOpcodeCount);
    const bool is_data = IsInvalidOpcode(opcode) || Below(6) == 0;
    const int length = is_data ? 1 : InstructionLength(opcode);
    const int name = Below(kNames);
    Set(row, kMnemonicColumn, is_data ? kDataMnemonic : std::string(MnemonicsLUTList(opcode)));
    std::string cell = OpcodeCell(opcode);
    if (length == 2) cell = WithVariable(cell, session.XXEqtList[name]);
    if (length == 3) cell = WithLabel(cell, "XXXX");
    Set(row, kOpcodeColumn, cell);
    if (length > 1) {
      const TextList& names = length == 2 ? session.XXCombo : session.LabelCombo;
      session.StringTable.SetTextMatrix(row, 0, names[name]);
    }
  }

  std::mt19937 random_;
};

TEST_P(RandomProgramsTest, AddressesAreSumsAndReachTheOperands) {
  Session& session = program_.session();
  program_.Choose(session.menu.AssignAddress);
  ASSERT_EQ(program_.TakeBoxes(), "");
  std::map<std::string, std::string> labels;
  for (int i = 1; i < kNames; ++i) labels["l" + std::to_string(i)] = "F00" + std::to_string(i);
  labels["l0"] = "F000";
  std::int64_t address = 0;
  int block = -1;
  for (int row = 0; row < session.Table1.Rows() - 1; ++row) {
    if (session.IsOrigin(row)) {
      if (block >= 0) {
        EXPECT_EQ(session.LastAddressList[block], AddressText(address - 1));
      }
      address = HexValue(Cell(row, kAddressColumn));
      EXPECT_EQ(session.OriginList[++block], AddressText(address));
    } else if (!Cell(row, kMnemonicColumn).empty()) {
      EXPECT_EQ(Cell(row, kAddressColumn), AddressText(address)) << row;
      if (!Cell(row, kLabelColumn).empty()) labels[Cell(row, kLabelColumn)] = AddressText(address);
      address += ByteCount(Cell(row, kOpcodeColumn));
    }
  }
  EXPECT_EQ(session.OriginList.Count(), block + 1);
  EXPECT_EQ(session.LastAddressList[block], AddressText(address - 1));
  for (int row = 1; row < session.Table1.Rows() - 1; ++row) {
    const std::string& cell = Cell(row, kOpcodeColumn);
    if (HasLabel(cell)) {
      EXPECT_EQ(AddressIn(cell), labels.at(session.OperandOf(row))) << row;
    }
  }
}

TEST_P(RandomProgramsTest, TheImageHoldsTheBytesOfTheRows) {
  Session& session = program_.session();
  program_.Choose(session.menu.AssembleFile, "image.hex");
  std::map<std::int64_t, std::string> image;
  for (int row = 0; row < session.Table1.Rows() - 1; ++row) {
    const std::string& cell = Cell(row, kOpcodeColumn);
    for (int i = 0; i < ByteCount(cell); ++i) {
      image[HexValue(Cell(row, kAddressColumn)) + i] = ByteAt(cell, i);
    }
  }
  std::string file;
  std::map<std::int64_t, std::string> told;
  for (const std::string& record : session.HexList.items()) {
    file += '"' + record + "\"\r\n";
    if (record == ":00000001FF") continue;
    const auto count = HexValue(record.substr(1, 2));
    const auto address = HexValue(record.substr(3, 4));
    EXPECT_LE(count, 16);
    EXPECT_EQ(record.substr(7, 2), "00");
    const std::size_t end = 9 + 2 * static_cast<std::size_t>(count);
    std::int64_t sum = HexValue(record.substr(end));
    for (std::size_t at = 1; at < end; at += 2) sum += HexValue(record.substr(at, 2));
    EXPECT_EQ(sum % 0x100, 0) << record;
    for (std::int64_t i = 0; i < count; ++i) {
      told[address + i] = record.substr(9 + 2 * static_cast<std::size_t>(i), 2);
    }
  }
  EXPECT_EQ(told, image);
  EXPECT_EQ(session.HexList.items().back(), ":00000001FF");
  EXPECT_EQ(BytesOf("image.hex"), file);
}

TEST_P(RandomProgramsTest, AFileGivesTheSameProgram) {
  Session& session = program_.session();
  for (const std::string text : {"a, b", "x\r\ny", "\xC3\xA9\x80", " "}) {
    Set(Below(session.Table1.Rows() - 1) + 1, kCommentColumn, text);
  }
  program_.SaveAs("a.baf");
  RunningProgram reader;
  reader.Open("a.baf");
  EXPECT_EQ(reader.Content(), program_.Content());
  reader.SaveAs("b.baf");
  EXPECT_EQ(BytesOf("a.baf"), BytesOf("b.baf"));
  EXPECT_EQ(reader.TakeBoxes() + program_.TakeBoxes(), "");
}

TEST_P(RandomProgramsTest, WhatWasAssembledComesBack) { CheckRoundTrip(); }

INSTANTIATE_TEST_SUITE_P(Seeds, RandomProgramsTest, testing::Range(1U, 13U));

}  // namespace
}  // namespace quilla
