#include "formats/hex_file.h"

namespace quilla {

void WriteHexRecords(FileChannels& channels, int channel, const TextList& records) {
  for (const std::string& record : records.items()) {
    channels.WriteLine(channel, {FileItem::Text(record)});
  }
}

}  // namespace quilla
