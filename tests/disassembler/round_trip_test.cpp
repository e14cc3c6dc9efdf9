// Programs made up by chance: what the disassembler makes of an assembled image, rightly marked,
// has the same rows and assembles to the same records.
#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <random>
#include <string>
#include <vector>

#include "assembler/assembler.h"
#include "disassembler/data_dialog.h"
#include "formats/hex_records.h"
#include "isa/instruction_set.h"
#include "platform/failure.h"
#include "platform/number_text.h"
#include "program/desk.h"
#include "program/opcode_cell.h"
#include "scenario.h"

namespace quilla {
namespace {

constexpr int kBlocks = 4;
constexpr int kRowsOfBlock = 30;
constexpr int kStrings = 12;

struct Workshop : Desk {
  StateMachine states{session};
  Origins origins{session, states, rows};
  StringLists strings{session, states};
  AddressAssignment addresses{session, states, rows};
  Assembler assembler{session, states, addresses, strings};
  DataDialog dialog{session, rows, origins, addresses};
  std::mt19937 dice{8085};

  int Below(int count) { return static_cast<int>(dice() % static_cast<unsigned>(count)); }

  /// Writes a program of four blocks, and gives for each byte of its image what it is.
  std::vector<Category> MakeProgram() {
    rows.SetRows(kBlocks * (kRowsOfBlock + 1) + 1);
    session.Table1.Clear();
    session.StringTable.Clear();
    for (TextList* list : std::initializer_list<TextList*>{
             &session.LabelCombo, &session.LabelEqtList, &session.XXCombo, &session.XXEqtList}) {
      list->Clear();
    }
    for (int i = 0; i < kStrings; ++i) {
      session.LabelCombo.Add("l" + std::to_string(i));
      session.LabelEqtList.Add(AddressText(Below(0x10000)));
      session.XXCombo.Add("x" + std::to_string(i));
      session.XXEqtList.Add(PaddedHexText(Below(0x100), kByteDigits));
    }
    std::vector<Category> kinds;
    for (int row = 0; row + 1 < session.Table1.Rows(); ++row) {
      if (row % (kRowsOfBlock + 1) == 0) {
        session.Table1.SetTextMatrix(row, kLabelColumn, kOrigin);
        session.Table1.SetTextMatrix(row, kAddressColumn, AddressText(0x1000 + row * 0x100));
      } else {
        MakeRow(row, kinds);
      }
    }
    for (int i = 0; i < kStrings; i += 2) {
      const int row = 1 + i * 10;
      if (!session.IsOrigin(row)) {
        session.Table1.SetTextMatrix(row, kLabelColumn, session.LabelCombo[i]);
      }
    }
    return kinds;
  }

  void MakeRow(int row, std::vector<Category>& kinds) {
    const int opcode = Below(kOpcodeCount);
    const bool is_data = IsInvalidOpcode(opcode) || Below(4) == 0;
    const int length = is_data ? 1 : InstructionLength(opcode);
    const int string = Below(kStrings);
    std::string cell = OpcodeCell(opcode);
    if (length == 2) cell = WithVariable(cell, session.XXEqtList[string]);
    if (length == 3) cell = WithLabel(cell, session.LabelEqtList[string]);
    if (length > 1) {
      session.StringTable.SetTextMatrix(
          row, 0, (length == 2 ? session.XXCombo : session.LabelCombo)[string]);
    }
    session.Table1.SetTextMatrix(row, kMnemonicColumn, is_data ? kDataMnemonic : "any");
    session.Table1.SetTextMatrix(row, kOpcodeColumn, cell);
    kinds.insert(kinds.end(), static_cast<std::size_t>(length),
                 is_data ? Category::kDataByte : Category::kMnemonic);
  }

  /// Marks each run of bytes of a kind by a drag, presses Done and waits.
  void Mark(const std::vector<Category>& kinds) {
    auto& table = dynamic_cast<Grid&>(*dialog.form().Find("DataTable"));
    ASSERT_EQ(table.Rows(), static_cast<int>(kinds.size()) + 1);
    for (auto run = kinds.begin(); run != kinds.end();) {
      const auto end = std::find_if(run, kinds.end(), [&](Category kind) { return kind != *run; });
      dynamic_cast<Option&>(*dialog.form().Find("DataType", static_cast<int>(*run))).Choose();
      table.PressCell(static_cast<int>(end - kinds.begin()), 0);
      table.ReleaseAt(static_cast<int>(run - kinds.begin()) + 1);
      run = end;
    }
    dynamic_cast<Button&>(*dialog.form().Find("DoneButton")).Click();
    outside.clock.PassAll();
  }

  std::vector<std::string> Assemble(const char* file) {
    outside.file_dialogs.Queue(file);
    session.menu.AssembleFile.Click();
    return session.HexList.items();
  }

  /// The Opcode cells of the rows that have one, and "DFB" before those of data.
  std::vector<std::string> Cells() {
    std::vector<std::string> cells;
    for (int row = 0; row < session.Table1.Rows(); ++row) {
      const std::string& cell = session.Table1.TextMatrix(row, kOpcodeColumn);
      const bool is_data = session.Table1.TextMatrix(row, kMnemonicColumn) == kDataMnemonic;
      if (!cell.empty()) cells.push_back((is_data ? kDataMnemonic : "") + cell);
    }
    return cells;
  }
};

TEST(RoundTripTest, WhatWasAssembledComesBack) {
  const robot::ScratchFolder folder("");
  Workshop shop;
  int played = 0;
  for (int round = 0; round < 40; ++round) {
    SCOPED_TRACE(round);
    const std::vector<Category> kinds = shop.MakeProgram();
    const std::vector<std::string> records = shop.Assemble("first.hex");
    if (!RecordsAreGood(shop.session.HexList)) continue;  // a checksum of three digits
    const std::vector<std::string> cells = shop.Cells();
    shop.session.FileChanged = false;
    shop.outside.file_dialogs.Queue("first.hex");
    shop.outside.event_loop.play_command = [&] {
      shop.Mark(kinds);
      return true;
    };
    shop.session.menu.DisassembleFile.Click();
    ASSERT_EQ(shop.session.TipsLabel.caption(), "Disassembling completed successfully.");
    ASSERT_EQ(shop.Cells(), cells);
    ASSERT_EQ(shop.Assemble("second.hex"), records);
    ++played;
  }
  EXPECT_GT(played, 20);
}

/// Bytes of value 00 from 0000 on, all marked.
std::vector<MarkedByte> Zeros(std::size_t count, Category category) {
  std::vector<MarkedByte> bytes(count, {0, ByteDigits("00"), category});
  for (std::size_t i = 0; i < count; ++i) bytes[i].address = static_cast<std::uint32_t>(i);
  return bytes;
}

TEST(ProgramLayoutTest, TheStoresReachToRow70000) {
  for (const Category category : {Category::kMnemonic, Category::kDataByte}) {
    ProgramLayout layout;
    EXPECT_EQ(CheckMarks(Zeros(kLastStoredRow, category), layout), std::nullopt);
    EXPECT_EQ(layout.LastLine, kLastStoredRow + 1);
    EXPECT_EQ(OpcodeCellOf(layout, kLastStoredRow), "00");
    EXPECT_THROW(OpcodeCellOf(layout, kLastStoredRow + 1), Failure);
    EXPECT_THROW(CheckMarks(Zeros(kLastStoredRow + 1, category), layout), Failure);
    EXPECT_EQ(layout.LastLine, kLastStoredRow + 1);
    EXPECT_EQ(layout.OriginList, std::vector<std::string>({"00000", "00000"}));
  }
}

TEST(ProgramLayoutTest, ANewCheckLeavesTheRowsFrom65536On) {
  ProgramLayout layout;
  std::vector<MarkedByte> bytes = Zeros(65600, Category::kMnemonic);
  CheckMarks(bytes, layout);
  bytes[100].category = Category::kUnwanted;
  bytes[65540].category = Category::kUnwanted;
  CheckMarks(bytes, layout);
  EXPECT_EQ(layout.OriginList,
            std::vector<std::string>({"00000", "00000", "0065103", "1000565545"}));
  EXPECT_EQ(OpcodeCellOf(layout, 101), "");
  EXPECT_EQ(OpcodeCellOf(layout, 65544), "00");
  Clear(layout);
  EXPECT_EQ(OpcodeCellOf(layout, 65544), "");
}

}  // namespace
}  // namespace quilla
