#include "panel/programming_panel.h"

#include "panel/version.h"

namespace quilla {
namespace {

constexpr const char* kSerialSettings = "2400,N,8,1";
constexpr int kFirstPort = 1;
constexpr std::size_t kAllThatHasArrived = 0;

}  // namespace

ProgrammingPanel::ProgrammingPanel(Outside& outside) : session_(outside) { Form_Load(); }

void ProgrammingPanel::Form_Load() {
  session_.CommPortNumber = kFirstPort;
  session_.MSComm1.CommPort = session_.CommPortNumber;
  session_.MSComm1.Settings = kSerialSettings;
  session_.MSComm1.InputLen = kAllThatHasArrived;
  form().set_caption(std::string(kTitle) + kVersion);
  for (int column = 0; column < kProgramColumns; ++column) {
    session_.Table1.SetColWidth(column, kProgramColWidthList[column]);
    session_.Table1.SetColAlignment(column,
                                    column <= kAddressColumn ? kAlignCentreTop : kAlignLeft);
  }
  new_file_.NewFile_Click();
}

}  // namespace quilla
