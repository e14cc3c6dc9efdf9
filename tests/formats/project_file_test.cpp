// Project files: what is saved comes back, to the byte, and what is no project is refused whole.
#include "formats/project_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "panel/quilla.h"
#include "robot/scripted_outside.h"
#include "scenario.h"

namespace quilla {
namespace {

namespace fs = std::filesystem;

const std::string kHead =
    "\"Warning: If the contents of this file are altered, the editor assembler might not read the "
    "file properly.\"\r\n\"8085\"\r\n";
const std::string kTail = "\"EOT\"\r\n0\r\n0\r\n\"EOF\"\r\n";
const std::string kBlankRow = "\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n";
const std::string kFirstRow = "\"Origin\"\r\n\"8000\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n";
const std::string kRefusal = "box critical \"Unable to open file.\" ok -> ok\n";

std::string BlankRows(int count) {
  std::string rows;
  for (; count > 0; --count) rows += kBlankRow;
  return rows;
}

std::string BytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void WriteBytes(const fs::path& path, std::string_view bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

/// The running program, whose file dialogs give what a test has queued.
class Program {
 public:
  Program() {
    quilla_.Start();
    outside_.clock.PassAll();
    boxes_begin_ = transcript_.str().size();
  }

  Session& session() { return quilla_.panel()->session(); }

  void SaveAs(const std::string& path) {
    outside_.file_dialogs.Queue(path);
    session().menu.SaveAsFile.Choose();
  }
  void Save() { session().menu.SaveFile.Choose(); }
  void Open(const std::string& path) {
    session().FileChanged = false;
    outside_.file_dialogs.Queue(path);
    session().menu.OpenFile.Choose();
  }

  /// The message boxes since the last call, a line each.
  std::string TakeBoxes() {
    std::istringstream lines(transcript_.str().substr(boxes_begin_));
    boxes_begin_ = transcript_.str().size();
    std::string boxes;
    for (std::string line; std::getline(lines, line);) {
      if (line.starts_with("box ")) boxes += line + '\n';
    }
    return boxes;
  }

 private:
  std::ostringstream transcript_;
  robot::ScriptedOutside outside_{transcript_};
  Quilla quilla_{outside_.ports};
  std::size_t boxes_begin_ = 0;
};

/// All that a project file keeps, and the origins that come from it.
struct Content {
  std::vector<std::vector<std::string>> rows;
  std::vector<std::string> labels;
  std::vector<std::string> label_equivalents;
  std::vector<std::string> variables;
  std::vector<std::string> variable_equivalents;
  std::vector<std::string> origins;

  bool operator==(const Content&) const = default;
};

Content ContentOf(const Session& session) {
  Content content;
  for (int row = 0; row < session.Table1.Rows(); ++row) {
    auto& cells = content.rows.emplace_back();
    for (int column = 0; column < kProgramColumns; ++column) {
      cells.push_back(session.Table1.TextMatrix(row, column));
    }
    cells.push_back(session.OperandOf(row));
  }
  content.labels = session.LabelCombo.items();
  content.label_equivalents = session.LabelEqtList.items();
  content.variables = session.XXCombo.items();
  content.variable_equivalents = session.XXEqtList.items();
  content.origins = session.OriginList.items();
  return content;
}

class ProjectFileTest : public testing::Test {
 protected:
  robot::ScratchFolder folder_{"no files"};
  Program program_;
};

TEST_F(ProjectFileTest, ANewProgramHas32Rows) {
  program_.SaveAs("new.baf");
  EXPECT_EQ(BytesOf("new.baf"), kHead + "32\r\n" + kFirstRow + BlankRows(31) + kTail);
}

TEST_F(ProjectFileTest, ItemsStandInTheirOrder) {
  Session& session = program_.session();
  session.Table1.SetRows(2);
  session.StringTable.SetRows(2);
  for (int column = 0; column < kProgramColumns; ++column) {
    session.Table1.SetTextMatrix(1, column, "c" + std::to_string(column));
  }
  session.StringTable.SetTextMatrix(1, 0, "operand");
  session.AddLabel({"loop", "1", "1", "1", "8001"});
  session.AddLabel({"end", "0", "0", "0", "XXXX"});
  session.XXCombo.Add("count");
  session.XXEqtList.Add("0F");
  program_.SaveAs("order.baf");
  const std::string second_row = "\"c0\"\r\n\"\"\r\n\"c2\"\r\n\"c3\"\r\n\"c4\"\r\n\"operand\"\r\n";
  const std::string strings =
      "2\r\n\"loop\",\"8001\"\r\n\"end\",\"XXXX\"\r\n1\r\n\"count\",\"0F\"\r\n";
  EXPECT_EQ(BytesOf("order.baf"),
            kHead + "2\r\n" + kFirstRow + second_row + "\"EOT\"\r\n" + strings + "\"EOF\"\r\n");
}

/// Makes texts of all bytes but the double quote: commas, line ends and broken UTF-8 among them.
class RandomTexts {
 public:
  explicit RandomTexts(unsigned seed) : random_(seed) {}

  int Below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }

  std::string Text(int longest) {
    static const std::vector<std::string> kPieces = {",",  "\r",   "\n",     "\r\n",   " ",
                                                     "é",  "終",   "\xE9",   "\x80",   "'",
                                                     "\t", "8085", "Origin", "конец,", "\xF0\x9F"};
    std::string text;
    for (int pieces = Below(longest + 1); pieces > 0; --pieces) {
      if (Below(2) == 0) {
        text += kPieces[static_cast<std::size_t>(Below(static_cast<int>(kPieces.size())))];
      } else if (const int byte = Below(256); byte != '"') {
        text += static_cast<char>(byte);
      }
    }
    return text;
  }

 private:
  std::mt19937 random_;
};

/// Fills the session with a program of that many rows.
void FillProgram(Session& session, int rows, RandomTexts& texts) {
  constexpr int kLongest = 12;
  session.Table1.SetRows(rows);
  session.StringTable.SetRows(rows);
  for (int row = 1; row < rows; ++row) {
    if (texts.Below(20) == 0) {
      session.Table1.SetTextMatrix(row, kLabelColumn, kOrigin);
      session.Table1.SetTextMatrix(row, kAddressColumn, texts.Text(kLongest));
    } else if (texts.Below(3) > 0) {
      for (const int column : {kLabelColumn, kMnemonicColumn, kOpcodeColumn, kCommentColumn}) {
        session.Table1.SetTextMatrix(row, column, texts.Text(kLongest));
      }
      session.StringTable.SetTextMatrix(row, 0, texts.Text(kLongest));
    }
  }
  // An origin in the second row would get a line before it.
  session.Table1.SetTextMatrix(1, kLabelColumn, {});
  for (int labels = texts.Below(100); labels > 0; --labels) {
    session.AddLabel({texts.Text(kLongest), "0", "0", "0", texts.Text(4)});
  }
  for (int variables = texts.Below(100); variables > 0; --variables) {
    session.XXCombo.Add(texts.Text(kLongest));
    session.XXEqtList.Add(texts.Text(2));
  }
}

TEST_F(ProjectFileTest, EveryTableComesBackAndIsSavedToTheSameBytes) {
  RandomTexts texts(1);
  std::vector<int> sizes(25);
  for (int& size : sizes) size = 32 + texts.Below(100);
  sizes.front() = 32;
  sizes.push_back(65'536);
  for (const int rows : sizes) {
    SCOPED_TRACE(rows);
    Program author;
    FillProgram(author.session(), rows, texts);
    author.SaveAs("round.baf");
    const Content saved = ContentOf(author.session());  // a save wipes the assigned addresses
    const std::string bytes = BytesOf("round.baf");

    Program reader;
    reader.Open("round.baf");
    EXPECT_EQ(reader.TakeBoxes(), "");
    EXPECT_TRUE(ContentOf(reader.session()) == saved);
    fs::remove("round.baf");
    reader.Save();
    EXPECT_TRUE(BytesOf("round.baf") == bytes);
  }
}

TEST_F(ProjectFileTest, AnOriginInTheSecondRowGetsALineBeforeIt) {
  WriteBytes("second.baf", kHead + "40\r\n" + kFirstRow + kFirstRow + BlankRows(38) + kTail);
  program_.Open("second.baf");
  EXPECT_EQ(program_.session().Table1.Rows(), 41);
  EXPECT_TRUE(program_.session().IsOrigin(2));
  EXPECT_EQ(program_.session().CurrentRow, 2);
}

TEST_F(ProjectFileTest, AFileOfOneRowGrows) {
  WriteBytes("one.baf", kHead + "1\r\n" + kFirstRow + kTail);
  program_.Open("one.baf");
  EXPECT_EQ(program_.TakeBoxes(), "");
  EXPECT_EQ(program_.session().Table1.Rows(), 32);
  EXPECT_EQ(program_.session().StringTable.Rows(), 32);
}

class BadProjectFileTest : public ProjectFileTest {
 protected:
  /// Opens the file over a program that has strings: nothing of either must be left.
  void ExpectRefusal(const std::string& path) {
    SCOPED_TRACE(path);
    program_.session().AddLabel({"old", "0", "0", "0", "XXXX"});
    program_.session().Table1.SetTextMatrix(5, kCommentColumn, "old");
    program_.Open(path);
    EXPECT_EQ(program_.TakeBoxes(), kRefusal);
    Program fresh;
    EXPECT_TRUE(ContentOf(program_.session()) == ContentOf(fresh.session()));
    EXPECT_EQ(program_.session().FileName, fs::path(path).filename().string());
    EXPECT_EQ(program_.session().FileOrigin, FileOrigin::kOpened);
    EXPECT_FALSE(program_.session().FileChanged);
    EXPECT_EQ(program_.session().CurrentPanelState, PanelState::kReady);
  }
  void ExpectRefusalOf(const std::string& bytes) {
    SCOPED_TRACE(bytes);
    WriteBytes("bad.baf", bytes);
    ExpectRefusal("bad.baf");
  }
};

TEST_F(BadProjectFileTest, WhatCannotBeRead) {
  fs::create_directory("folder.baf");
  ExpectRefusal("missing.baf");
  ExpectRefusal("absent/missing.baf");
  ExpectRefusal("folder.baf");
  ExpectRefusal(std::string(5000, 'n') + ".baf");
  ExpectRefusalOf("");
}

TEST_F(BadProjectFileTest, AnUnreadableFile) {
  const fs::path failing = "/proc/self/mem";  // opens, and fails to be read
  if (!fs::exists(failing)) GTEST_SKIP() << "nothing here opens without being readable";
  ExpectRefusal(failing.string());
}

TEST_F(BadProjectFileTest, AFileWithoutLeaveToRead) {
  WriteBytes("locked.baf", kHead);
  fs::permissions("locked.baf", fs::perms::none);
  if (std::ifstream("locked.baf").is_open()) GTEST_SKIP() << "this user may read everything";
  ExpectRefusal("locked.baf");
}

TEST_F(BadProjectFileTest, CutOffAnywhereBeforeTheLastItem) {
  const std::string whole = kHead + "2\r\n" + kFirstRow +
                            "\"a\"\r\n\"\"\r\n\"JMP  a\"\r\n\"C3   01   80\"\r\n\"x, y\"\r\n"
                            "\"a\"\r\n\"EOT\"\r\n2\r\n\"a\",\"8001\"\r\n\"b\",\"XXXX\"\r\n"
                            "1\r\n\"v\",\"0F\"\r\n\"EOF\"\r\n";
  const std::size_t last_item = whole.find("\"EOF\"");
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    SCOPED_TRACE(length);
    WriteBytes("cut.baf", whole.substr(0, length));
    program_.Open("cut.baf");
    EXPECT_EQ(program_.TakeBoxes(), length > last_item ? "" : kRefusal);
    EXPECT_EQ(program_.session().LabelCombo.Count(), length > last_item ? 2 : 0);
    EXPECT_EQ(program_.session().Table1.Rows(), 32);
  }
}

/// What stands in a file of two rows and no strings for its tag and its counts.
struct Marks {
  std::string tag = R"("8085")";
  std::string rows = "2";
  std::string labels = "0";
  std::string variables = "0";
};

std::string ProjectWith(const Marks& marks) {
  std::ostringstream file;
  file << "x\r\n" << marks.tag << "\r\n" << marks.rows << "\r\n";
  file << kFirstRow << kBlankRow << "\"EOT\"\r\n";
  file << marks.labels << "\r\n" << marks.variables << "\r\n\"EOF\"\r\n";
  return file.str();
}

TEST_F(BadProjectFileTest, AnotherFormat) {
  for (const std::string tag : {R"("8086")", R"("8085 ")", "8085x", R"("")", R"("80"85")"}) {
    ExpectRefusalOf(ProjectWith({.tag = tag}));
  }
}

TEST_F(BadProjectFileTest, CountsThatAreNone) {
  const std::vector<std::string> no_numbers = {
      "", "many", "two", R"("")", "2.5", "1e1", "0x2", " 2", "2 ", "--2", "99999999999999999999"};
  std::vector<std::string> row_counts = no_numbers;
  row_counts.insert(row_counts.end(), {"-1", "0", "1000001", "2000000000", "2147483648"});
  for (const std::string& count : row_counts) ExpectRefusalOf(ProjectWith({.rows = count}));
  std::vector<std::string> string_counts = no_numbers;
  string_counts.insert(string_counts.end(), {"1", "32767", "32768", "-32769", "2000000000"});
  for (const std::string& count : string_counts) {
    ExpectRefusalOf(ProjectWith({.labels = count}));
    ExpectRefusalOf(ProjectWith({.variables = count}));
  }
}

TEST_F(ProjectFileTest, ANegativeNumberOfStringsIsNone) {
  WriteBytes("none.baf", ProjectWith({.labels = "-1", .variables = "-5"}));
  program_.Open("none.baf");
  EXPECT_EQ(program_.TakeBoxes(), "");
  EXPECT_TRUE(program_.session().LabelCombo.IsEmpty());
}

TEST_F(BadProjectFileTest, AQuoteInATextShiftsAllBehindIt) {
  for (const std::string comment : {"say \"hi\" now", "5\" disk", "\""}) {
    Program author;
    author.session().Table1.SetTextMatrix(1, kCommentColumn, comment);
    author.SaveAs("quote.baf");
    EXPECT_EQ(author.TakeBoxes(), "");
    ExpectRefusal("quote.baf");
  }
  Program author;
  author.session().XXCombo.Add("v");
  author.session().XXEqtList.Add("0\"F");  // its end is read in place of the last item
  author.SaveAs("shifted.baf");
  program_.Open("shifted.baf");
  EXPECT_EQ(program_.TakeBoxes(), "");
  EXPECT_EQ(program_.session().XXEqtList[0], "0");
}

TEST_F(ProjectFileTest, CommasAndLineEndsCutUnquotedItemsAlone) {
  WriteBytes("ends.baf",
             "w\r8085\r2\rOrigin,8000\n\n\r\r\n\r\"a,b\rc\",,\"d\"\"e\"f\r,EOT\n0,0\nEOF");
  program_.Open("ends.baf");
  EXPECT_EQ(program_.TakeBoxes(), "");
  const std::vector<std::vector<std::string>> rows = ContentOf(program_.session()).rows;
  EXPECT_EQ(rows[0], (std::vector<std::string>{"Origin", "8000", "", "", "", ""}));
  EXPECT_EQ(rows[1], (std::vector<std::string>{"a,b\rc", "", "d", "e", "f", ""}));
}

TEST_F(ProjectFileTest, ASaveThatFailsLeavesTheChangesUnsaved) {
  const std::string refusal = "box critical \"Unable to save file.\" ok -> ok\n";
  fs::create_directory("folder.baf");
  std::vector<std::string> paths = {"absent/new.baf", "folder.baf", "", "baf",
                                    std::string(5000, 'n') + ".baf"};
  if (fs::exists("/dev/full")) {  // a disk without room
    fs::create_symlink("/dev/full", "full.baf");
    paths.emplace_back("full.baf");
  }
  for (const std::string& path : paths) {
    SCOPED_TRACE(path);
    program_.session().FileChanged = true;
    program_.SaveAs(path);
    EXPECT_EQ(program_.TakeBoxes(), refusal);
    EXPECT_TRUE(program_.session().FileChanged);
    EXPECT_EQ(program_.session().FileOrigin, FileOrigin::kNew);
  }
  program_.SaveAs("good.baf");
  EXPECT_EQ(program_.TakeBoxes(), "");
  EXPECT_FALSE(program_.session().FileChanged);
}

}  // namespace
}  // namespace quilla
