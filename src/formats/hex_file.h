// Hex files: the records of `HexList`, one text item to a line. Saving and opening them, with their
// dialogs and messages.
#ifndef QUILLA_FORMATS_HEX_FILE_H_
#define QUILLA_FORMATS_HEX_FILE_H_

#include <functional>

#include "program/session.h"

namespace quilla {

/// What becomes of the channel when a hex file cannot be opened or written.
enum class FailedWrite { kClosesChannel, kLeavesChannel };

/// Asks for a file, keeps it in `HexPath`, runs `path_known` and writes all records of `HexList` to
/// the file, over what is there. True when that came about. A cancel of the dialog is silent, any
/// other failure is told to the user. A channel that a failed write has left open makes the next
/// save on it fail, until a cancel of its dialog closes the channel. The tip and the panel's state
/// are the caller's affair.
bool SaveHexRecords(Session& session, int channel, FailedWrite failed_write,
                    const std::function<void()>& path_known);

/// The channel that a hex file is read on, and the one that is closed when the reading fails.
struct HexFileChannels {
  int read;
  int clean_up;
};

enum class HexFileOpening {
  kNotRead,     // the user left, or the file could not be read: the command ends here
  kBadRecords,  // read, but a record does not fit its checksum
  kGood,        // `HexList` holds an image that has been checked
};

/// Offers to save unsaved changes, asks for a hex file, keeps its path in `HexPath` and its name in
/// `HexTitle`, reads it into `HexList` up to the end record and checks the records. Tells the user
/// of a file that cannot be read and of bad records; the tip is that of reading thereafter.
HexFileOpening OpenHexFile(Session& session, const HexFileChannels& channels);

}  // namespace quilla

#endif  // QUILLA_FORMATS_HEX_FILE_H_
