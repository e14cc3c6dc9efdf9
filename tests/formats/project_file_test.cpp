// Project files to the byte; and what is no project is refused whole.
#include "formats/project_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "panel/running_program.h"
#include "scenario.h"

namespace quilla {
namespace {

namespace fs = std::filesystem;

const std::string kHead =
    "\"Warning: If the contents of this file are altered, the editor assembler might not read the "
    "file properly.\"\r\n\"8085\"\r\n";
const std::string kFirstRow = "\"Origin\"\r\n\"8000\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n";
const std::string kSecondRow =
    "\"a\"\r\n\"\"\r\n\"JMP  a\"\r\n\"C3   01   80\"\r\n\"x, y\"\r\n\"a\"\r\n";
const std::string kStrings = "2\r\n\"a\",\"8001\"\r\n\"b\",\"XXXX\"\r\n1\r\n\"v\",\"0F\"\r\n";

std::string Project(const std::string& rows, const std::string& strings,
                    const std::string& head = kHead) {
  return head + rows + "\r\n" + kFirstRow + kSecondRow + "\"EOT\"\r\n" + strings + "\"EOF\"\r\n";
}

class ProjectFileTest : public testing::Test {
 protected:
  /// Opens a file of these bytes over a program that has strings of its own.
  std::string BoxesOfOpening(const std::string& bytes) {
    std::ofstream("some.baf", std::ios::binary) << bytes;
    program_.session().AddLabel({"old", "0", "0", "0", "XXXX"});
    program_.Open("some.baf");
    return program_.TakeBoxes();
  }
  /// Nothing of the file or of the program before must be left.
  void ExpectRefusal(const std::string& bytes) {
    EXPECT_EQ(BoxesOfOpening(bytes), "\"Unable to open file.\" ok -> ok\n") << bytes;
    EXPECT_EQ(program_.Content(), RunningProgram().Content());
  }

  robot::ScratchFolder folder_{"no files"};
  RunningProgram program_;
};

TEST_F(ProjectFileTest, ItemsStandInTheirOrder) {
  const std::string bytes = Project("2", kStrings);
  EXPECT_EQ(BoxesOfOpening(bytes), "");
  program_.session().Table1.SetRows(2);
  program_.session().StringTable.SetRows(2);
  program_.session().Table1.SetTextMatrix(1, kAddressColumn, "8001");  // a save wipes it
  program_.SaveAs("same.baf");
  EXPECT_EQ(BytesOf("same.baf"), bytes);
  for (const FileOrigin origin : {FileOrigin::kSaved, FileOrigin::kDisassembled}) {
    program_.session().FileOrigin = origin;
    program_.session().menu.SaveFile.Click();
    EXPECT_EQ(fs::exists("same.baf~"), origin == FileOrigin::kDisassembled) << "another program's";
  }
}

TEST_F(ProjectFileTest, CutOffAnywhereItIsRefused) {
  const std::string whole = Project("2", kStrings);
  for (std::size_t length = 0; length <= whole.find("\"EOF\""); length += 3) {
    ExpectRefusal(whole.substr(0, length));
  }
  EXPECT_EQ(BoxesOfOpening(whole.substr(0, whole.find("\"EOF\"") + 1)), "");
}

TEST_F(ProjectFileTest, CountsAndTagsThatAreNone) {
  for (const std::string tag : {R"("8086")", R"("8085 ")", "8085x", R"("80"85")"}) {
    ExpectRefusal(Project("2", kStrings, "x\r\n" + tag + "\r\n"));
  }
  for (const std::string count : {"", "two", "2.5", "0x2", " 2", "--2", "99999999999999999999",
                                  "2000000000", "-1000001", "32768"}) {
    if (count != "32768") ExpectRefusal(Project(count, kStrings));
    if (count[0] == '-' && count[1] != '-') continue;
    ExpectRefusal(Project("2", count + "\r\n0\r\n"));
    ExpectRefusal(Project("2", "0\r\n" + count + "\r\n"));
  }
  for (const std::string rows : {"-1", "0", "1", "1000001"}) ExpectRefusal(Project(rows, kStrings));
  EXPECT_EQ(BoxesOfOpening(Project("2", "-1\r\n-5\r\n")), "");  // no strings
  EXPECT_EQ(program_.session().LabelCombo.Count(), 0);
}

TEST_F(ProjectFileTest, SmallTablesGrow) {
  EXPECT_EQ(BoxesOfOpening(kHead + "1\r\n" + kFirstRow + "\"EOT\"\r\n0\r\n0\r\n\"EOF\"\r\n"), "");
  EXPECT_EQ(program_.session().Table1.Rows(), 32);
  // An origin in the second row gets a line before it.
  BoxesOfOpening(kHead + "2\r\n" + kFirstRow + kFirstRow + "\"EOT\"\r\n0\r\n0\r\n\"EOF\"\r\n");
  EXPECT_TRUE(program_.session().IsOrigin(2));
  EXPECT_EQ(program_.session().CurrentRow, 2);
}

TEST_F(ProjectFileTest, AQuoteInATextShiftsAllBehindIt) {
  for (const std::string comment : {"say \"hi\" now", "\""}) {
    RunningProgram author;
    author.session().Table1.SetTextMatrix(1, kCommentColumn, comment);
    author.SaveAs("quote.baf");
    ExpectRefusal(BytesOf("quote.baf"));
  }
}

TEST_F(ProjectFileTest, ASaveThatFailsLosesNothing) {
  fs::create_directory("folder.baf");
  const std::vector<std::string> paths = {"absent/new.baf", "folder.baf", "baf",
                                          std::string(5000, 'n') + ".baf"};
  Session& session = program_.session();
  for (const std::string& path : paths) {
    session.FileChanged = true;
    program_.SaveAs(path);
    EXPECT_EQ(program_.TakeBoxes(), "\"Unable to save file.\" ok -> ok\n") << path;
    EXPECT_TRUE(session.FileChanged);
  }
  program_.SaveAs("good.baf");
  EXPECT_EQ(program_.TakeBoxes(), "");
  EXPECT_FALSE(session.FileChanged);
}

}  // namespace
}  // namespace quilla
