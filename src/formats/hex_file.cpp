#include "formats/hex_file.h"

#include <string>

#include "formats/hex_records.h"
#include "platform/dialogs.h"
#include "platform/failure.h"
#include "program/offer_to_save.h"

namespace quilla {
namespace {

constexpr unsigned kFlags = kOverwritePrompt | kHideReadOnly | kPathMustExist | kFileMustExist;
constexpr const char* kHexFilter = "Hex Files(*.hex)|*.hex";
constexpr const char* kHexExtension = ".hex";
constexpr const char* kSaveTitle = "Save to Hex file";
constexpr const char* kOpenTitle = "Open Hex file";

CommonDialog HexDialog(Session& session, const char* title) {
  CommonDialog dialog(session.outside.file_dialogs);
  dialog.Flags = kFlags;
  dialog.Filter = kHexFilter;
  dialog.DialogTitle = title;
  return dialog;
}

void WriteRecords(Session& session, int channel) {
  std::string text;
  for (const std::string& record : session.HexList.items()) {
    AppendText(text, record);
  }
  FileChannels& file = session.channels;
  file.OpenOutput(channel, session.HexPath);
  file.Write(channel, text);
  file.Flush(channel);
  file.Close(channel);
}

void ReadRecords(Session& session, int channel) {
  session.HexList.Clear();
  session.channels.OpenInput(channel, session.HexPath);
  std::string record;
  do {
    record = session.channels.ReadText(channel);
    session.HexList.Add(record);
  } while (record != kEndRecord);
  session.channels.Close(channel);
}

}  // namespace

bool SaveHexRecords(Session& session, int channel, FailedWrite failed_write,
                    const std::function<void()>& path_known) {
  bool closes_channel = true;
  try {
    Trapped([&] {
      CommonDialog dialog = HexDialog(session, kSaveTitle);
      dialog.Name = NameWithExtension(session.FileName, kHexExtension);
      dialog.ShowSave();
      session.HexPath = dialog.FileName;
      path_known();
      closes_channel = failed_write == FailedWrite::kClosesChannel;
      WriteRecords(session, channel);
    });
    return true;
  } catch (const Failure& failure) {
    if (failure.number() != ErrorNumber::kDialogCancelled) {
      session.ShowCritical("Unable to save file.");
    }
    if (closes_channel) session.channels.Abandon(channel);
    return false;
  }
}

HexFileOpening OpenHexFile(Session& session, const HexFileChannels& channels) {
  if (!OfferToSave(session)) return HexFileOpening::kNotRead;
  bool reading = false;
  try {
    const bool good = Trapped([&] {
      CommonDialog dialog = HexDialog(session, kOpenTitle);
      dialog.ShowOpen();
      session.HexPath = dialog.FileName;
      session.HexTitle = dialog.FileTitle;
      session.SetTip("Reading Hex file . . .");
      reading = true;
      ReadRecords(session, channels.read);
      reading = false;
      return RecordsAreGood(session.HexList);
    });
    if (good) return HexFileOpening::kGood;
  } catch (const Failure& failure) {
    if (failure.number() == ErrorNumber::kDialogCancelled) return HexFileOpening::kNotRead;
    session.ShowCritical("Unable to open " + session.HexTitle + ".");
    if (reading) session.channels.Abandon(channels.clean_up);
    return HexFileOpening::kNotRead;
  }
  session.ShowCritical("Check Sum error in " + session.HexTitle + ".");
  return HexFileOpening::kBadRecords;
}

}  // namespace quilla
