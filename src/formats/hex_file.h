// Intel HEX files: the records of `HexList`, one text item to a line.
#ifndef QUILLA_FORMATS_HEX_FILE_H_
#define QUILLA_FORMATS_HEX_FILE_H_

#include <string>

#include "platform/file_channels.h"
#include "platform/text_list.h"

namespace quilla {

/// The end record, the last of every image (Intel HEX, record type 01).
inline constexpr const char* kEndRecord = ":00000001FF";

/// The file dialogs of hex files.
inline constexpr const char* kHexFilter = "Hex Files(*.hex)|*.hex";
inline constexpr const char* kSaveHexTitle = "Save to Hex file";

/// Writes all records to the file that is open for output on `channel`.
/// Fails as FileChannels::WriteLine does.
void WriteHexRecords(FileChannels& channels, int channel, const TextList& records);

}  // namespace quilla

#endif  // QUILLA_FORMATS_HEX_FILE_H_
