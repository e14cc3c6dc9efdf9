// A fuzzing target: the items of any file, and the same items written and read again.
#include <string>
#include <vector>

#include "fuzz/fuzz.h"
#include "platform/failure.h"
#include "platform/file_channels.h"
#include "platform/number_text.h"
#include "system/disk_storage.h"

namespace quilla::fuzz {
namespace {

constexpr int kChannel = 1;

std::vector<std::string> ItemsOf(FileChannels& channels, std::string_view bytes) {
  channels.OpenInput(kChannel, FileOf(bytes));
  std::vector<std::string> items;
  try {
    while (true) items.push_back(channels.ReadText(kChannel));
  } catch (const Failure& failure) {
    Require(failure.number() == ErrorNumber::kPastEndOfFile);
  }
  channels.Close(kChannel);
  return items;
}

}  // namespace

void Items(std::string_view input) {
  DiskStorage disk;
  FileChannels channels(disk);
  const std::vector<std::string> items = ItemsOf(channels, input);
  std::string text;
  bool has_quote = false;
  for (const std::string& item : items) {
    AppendLine(text, {FileItem::Text(item)});
    has_quote = has_quote || item.find('"') != std::string::npos;
    try {
      Require(std::to_string(DecimalValue(item)).size() <= item.size());
    } catch (const Failure&) {
    }
  }
  Require(has_quote || ItemsOf(channels, text) == items);
}

}  // namespace quilla::fuzz
