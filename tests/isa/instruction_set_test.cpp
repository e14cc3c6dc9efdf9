// The page of the instruction set, docs/instruction-set.md, against the tables and the keys.
#include "isa/instruction_set.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "robot/robot.h"
#include "robot/words.h"

namespace quilla {
namespace {

using Cells = std::vector<std::string>;

/// The text of a cell of the page without the marks around it.
std::string Plain(std::string_view cell) {
  for (const char mark : {' ', '`'}) {
    if (cell.starts_with(mark)) cell.remove_prefix(1);
    if (cell.ends_with(mark)) cell.remove_suffix(1);
  }
  return std::string(cell);
}

/// The rows of the tables of the page that have this heading in their first column.
std::vector<Cells> TableOf(const std::string& heading) {
  std::ifstream page(QUILLA_SOURCE_DIR "/docs/instruction-set.md");
  std::vector<Cells> rows;
  bool inside = false;
  for (std::string line; std::getline(page, line);) {
    Cells cells;
    std::istringstream columns(line.substr(std::min<std::size_t>(line.size(), 1)));
    for (std::string cell; std::getline(columns, cell, '|');) cells.push_back(Plain(cell));
    inside = !cells.empty() && (inside || cells[0] == heading);
    if (inside) rows.push_back(cells);
  }
  rows.erase(rows.begin(), rows.begin() + std::min<std::ptrdiff_t>(std::ssize(rows), 2));
  return rows;
}

std::string Play(const std::string& text) {
  std::istringstream script(text);
  std::ostringstream transcript;
  EXPECT_EQ(robot::RunScript(script, transcript, transcript), robot::kPlayed);
  return transcript.str();
}

TEST(InstructionSetTest, KeysReadAsOnThePage) {
  const std::vector<Cells> rows = TableOf("Key");
  ASSERT_EQ(rows.size(), kInstructionKeyCount);
  std::string script;
  std::string expected = "open OpenForm\nclosed OpenForm\n";
  for (const Cells& row : rows) {
    EXPECT_EQ(Inst(std::stoi(row[0])).base_opcode, std::stoi(row[2], nullptr, 16)) << row[1];
    const std::string line = "hover INST " + row[0] + " ; show INST " + row[0] +
                             " ; show InstructionLabel 0 ; show InstructionLabel 1";
    script += line + '\n';
    expected += "> " + line + "\nINST " + row[0];
    for (const char* before : {" caption=\"", "InstructionLabel 0 caption=\""}) {
      expected += before + row[1] + "\" enabled=1 visible=1\n";
    }
    expected += "InstructionLabel 1 caption=\" " + (row[3].empty() ? "" : ' ' + row[3]) +
                "\" enabled=1 visible=1\n";
  }
  EXPECT_EQ(Play(script), expected);
}

TEST(InstructionSetTest, OpcodesAreEnteredAsOnThePage) {
  const std::vector<Cells> rows = TableOf("Opcode");
  ASSERT_EQ(rows.size(), kOpcodeCount);
  std::string script;
  std::string expected;
  int table_row = 0;
  for (int opcode = 0; opcode < kOpcodeCount; ++opcode) {
    const Cells& row = rows[static_cast<std::size_t>(opcode)];
    EXPECT_EQ(std::stoi(row[0], nullptr, 16), opcode);
    const std::string& text = row[1];
    EXPECT_EQ(MnemonicsLUTList(opcode), row[2]);
    // The bare name is the first word; that of RNC alone has a blank behind it.
    EXPECT_EQ(PartialInstList(opcode),
              opcode == 0xD0 ? "RNC " : row[2].substr(0, row[2].find(' ')));
    EXPECT_EQ(IsInvalidOpcode(opcode), text.empty());
    const bool word = text.ends_with("label");
    const bool byte = text.ends_with("byte");
    EXPECT_EQ(InstructionLength(opcode), word ? 3 : byte ? 2 : 1) << row[0];
    if (text.empty()) continue;
    script += "row " + robot::Quoted(text) + '\n';
    expected += "Table1 " + std::to_string(++table_row) + " \"\" \"\" " + robot::Quoted(text) +
                " \"" + row[0] + (word || byte ? "   XX" : "") + (word ? "   XX" : "") + "\" " +
                robot::Quoted(row[3]) + '\n';
  }
  const std::string transcript = Play(script + "dump Table1 1\n");
  EXPECT_EQ(transcript.substr(std::min(transcript.find("Table1 1 "), transcript.size())), expected);
}

TEST(InstructionSetTest, OutsideTheTablesAllTextsAreEmpty) {
  for (const int opcode : {-1, kOpcodeCount}) {
    EXPECT_EQ(MnemonicsLUTList(opcode), "");
    EXPECT_EQ(PartialInstList(opcode), "");
    EXPECT_EQ(std::string(BeforeList(opcode)).append(AfterList(opcode)), "");
    EXPECT_EQ(InstructionLength(opcode), 1);
    EXPECT_FALSE(IsInvalidOpcode(opcode));
  }
}

}  // namespace
}  // namespace quilla
