#include "panel/programming_panel.h"

namespace quilla {
namespace {

/// A column of the program table: its heading, its width in 1/1440 inch, its alignment code.
struct ColumnLook {
  const char* heading;
  int width;
  int alignment;
};

constexpr int kCentred = 3;
constexpr int kLeft = 1;
constexpr ColumnLook kColumns[] = {{"Label", 1080, kCentred},
                                   {"Addr.", 600, kCentred},
                                   {"Mnemonic", 1680, kLeft},
                                   {"Opcode", 1080, kLeft},
                                   {"Comment", 7140, kLeft}};

constexpr const char* kSerialSettings = "2400,N,8,1";
constexpr int kFirstPort = 1;
constexpr std::size_t kAllThatHasArrived = 0;

}  // namespace

ProgrammingPanel::ProgrammingPanel(Outside& outside) : session_(outside) {
  for (int column = 0; column < kProgramColumns; ++column) {
    HeadLabel_.push_back(
        std::make_unique<Label>(&form(), "HeadLabel", kColumns[column].heading, column));
  }
  session_.menu.HideIdleEntries();
  Form_Load();
}

void ProgrammingPanel::Form_Load() {
  session_.CommPortNumber = kFirstPort;
  session_.MSComm1.CommPort = session_.CommPortNumber;
  session_.MSComm1.Settings = kSerialSettings;
  session_.MSComm1.InputLen = kAllThatHasArrived;
  form().set_caption(std::string(kTitle) + kVersion);
  for (int column = 0; column < kProgramColumns; ++column) {
    session_.Table1.SetColWidth(column, kColumns[column].width);
    session_.Table1.SetColAlignment(column, kColumns[column].alignment);
  }
  new_file_.NewFile_Click();
}

}  // namespace quilla
