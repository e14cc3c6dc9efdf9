#include "link/download.h"

#include "formats/hex_file.h"
#include "platform/failure.h"

namespace quilla {
namespace {

constexpr int kStageMs = 10;
constexpr int kPortCloseMs = 100;
/// A file that could not be read stays open, since another channel is cleaned up: no later download
/// can open its own.
constexpr HexFileChannels kChannels{.read = 7, .clean_up = 5};

}  // namespace

Download::Download(Session& session, StateMachine& states, PortMenu& ports)
    : session_(session),
      states_(states),
      ports_(ports),
      CreateDnldString_(session.outside.clock, "CreateDnldString", kStageMs),
      DownloadTimer_(session.outside.clock, "DownloadTimer", kStageMs),
      PortCloseTimer_(session.outside.clock, "PortCloseTimer", kPortCloseMs) {
  session_.menu.DownloadFile.Click = [this] { DownloadFile_Click(); };
  CreateDnldString_.Fire = [this] { CreateDnldString_Timer(); };
  DownloadTimer_.Fire = [this] { DownloadTimer_Timer(); };
  PortCloseTimer_.Fire = [this] { PortCloseTimer_Timer(); };
}

void Download::DownloadFile_Click() {
  const HexFileOpening opening = OpenHexFile(session_, kChannels);
  if (opening == HexFileOpening::kNotRead) return;
  if (opening == HexFileOpening::kGood) {
    session_.SetTip("Preparing for download . . .");
    CreateDnldString_.Enable();
  }
  states_.ReturnToReady();
}

void Download::CreateDnldString_Timer() {
  DownloadString_.clear();
  for (const std::string& record : session_.HexList.items()) DownloadString_ += record + '\r';
  session_.SetTip("Ready to download.");
  const BoxAnswer answer =
      session_.Ask(BoxIcon::kInformation,
                   "Prepare Microprocessor Trainer for download and click 'OK' to download, or "
                   "click 'Cancel' to cancel download.",
                   BoxButtons::kOkCancel);
  if (answer == BoxAnswer::kCancel) return;
  session_.SetTip("Downloading . . .");
  DownloadTimer_.Enable();
}

void Download::DownloadTimer_Timer() {
  try {
    Send();
    session_.SetTip("Download completed.");
    PortCloseTimer_.Enable();
  } catch (const Failure& failure) {
    if (!ports_.TellIfUnavailable(failure)) {
      session_.ShowCritical("Unable to download.");
      session_.MSComm1.SetPortOpen(false);
    }
    states_.ReturnToReady();
    session_.SetTip("Download incomplete.");
  }
}

void Download::Send() {
  session_.OpenPort();
  session_.MSComm1.SetDTREnable(true);
  session_.MSComm1.SetRTSEnable(true);
  for (const std::string& record : session_.HexList.items()) session_.MSComm1.Output(record);
}

void Download::PortCloseTimer_Timer() { session_.ClosePort(); }

}  // namespace quilla
