#include "link/upload.h"

#include <algorithm>
#include <string_view>

#include "formats/hex_file.h"
#include "formats/hex_records.h"
#include "platform/failure.h"
#include "symbols/address_assignment.h"

namespace quilla {
namespace {

constexpr int kCreateHexMs = 100;
constexpr int kUploadChannel = 4;
constexpr const char* kTrigger = "ATV1Q0\r";
constexpr const char* kChooseFileTip = "Enter file name and click 'Save'.";
/// The characters with which the trainer ends each record but the last.
constexpr std::size_t kLineEndLength = 2;

}  // namespace

Upload::Upload(Session& session, StateMachine& states, PortMenu& ports)
    : session_(session),
      states_(states),
      ports_(ports),
      CreateHexTimer_(session.outside.clock, "CreateHexTimer", kCreateHexMs) {
  session_.menu.UploadFile.Click = [this] { UploadFile_Click(); };
  CreateHexTimer_.Fire = [this] { CreateHexTimer_Timer(); };
}

void Upload::UploadFile_Click() {
  const BoxAnswer answer = session_.Ask(BoxIcon::kInformation,
                                        "Click 'OK' and upload from Microprocessor Trainer, or "
                                        "click 'Cancel' to cancel upload.",
                                        BoxButtons::kOkCancel);
  if (answer == BoxAnswer::kCancel) return;
  session_.SetTip("Ready for upload . . .");
  try {
    OpenAndTrigger();
    Poll();
    session_.SetTip("Formatting received data . . .");
    CreateHexTimer_.Enable();
  } catch (const Failure& failure) {
    if (!ports_.TellIfUnavailable(failure)) session_.ClosePort();
    states_.ReturnToReady();
    session_.SetTip("Upload incomplete.");
  }
}

void Upload::OpenAndTrigger() {
  session_.OpenPort();
  session_.MSComm1.SetRTSEnable(true);
  session_.MSComm1.SetDTREnable(true);
  UploadString_.clear();
  searched_ = 0;
  session_.MSComm1.Output(kTrigger);
}

void Upload::Poll() {
  do {
    if (!UploadString_.empty()) session_.SetTip("Uploading . . .");
    session_.outside.event_loop.Yield(session_.menu.UploadFile);
    UploadString_ += session_.MSComm1.Input();
  } while (!EndRecordHasCome());
}

bool Upload::EndRecordHasCome() {
  constexpr std::string_view kEnd = kEndRecord;
  if (UploadString_.find(kEnd, searched_) != std::string::npos) return true;
  searched_ = UploadString_.size() - std::min(UploadString_.size(), kEnd.size() - 1);
  return false;
}

void Upload::CreateHexTimer_Timer() {
  try {
    ClosePort();
    CutRecords();
  } catch (const Failure&) {
    session_.ShowCritical("Received data is corrupt. Please upload again.");
    states_.ReturnToReady();
    session_.SetTip("Upload failed.");
    return;
  }
  session_.SetTip(kChooseFileTip);
  const bool saved =
      SaveHexRecords(session_, kUploadChannel, FailedWrite::kLeavesChannel, ClearAddress);
  states_.ReturnToReady();
  session_.SetTip(saved ? kChooseFileTip : "Failed to save file.");
}

void Upload::ClosePort() {
  session_.MSComm1.SetDTREnable(false);
  session_.MSComm1.SetRTSEnable(false);
  session_.MSComm1.SetPortOpen(false);
  session_.HexList.Clear();
  session_.PortOpen = false;
}

void Upload::CutRecords() {
  TextList& records = session_.HexList;
  if (!UploadString_.empty() && UploadString_.front() != ':') {
    throw Failure(ErrorNumber::kOutsideList);
  }
  for (std::size_t begin = 0; begin < UploadString_.size();) {
    const std::size_t end = std::min(UploadString_.find(':', begin + 1), UploadString_.size());
    records.Add(UploadString_.substr(begin, end - begin));
    begin = end;
  }
  for (int i = 0; i + 1 < records.Count(); ++i) {
    const std::string& record = records[i];
    if (record.size() < kLineEndLength) throw Failure(ErrorNumber::kOutsideList);
    records.Set(i, record.substr(0, record.size() - kLineEndLength));
  }
}

}  // namespace quilla
