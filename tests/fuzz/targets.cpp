#include "fuzz/targets.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <vector>

#include "panel/running_program.h"
#include "platform/failure_of.h"
#include "platform/file_channels.h"
#include "platform/number_text.h"
#include "robot/robot.h"
#include "scenario.h"
#include "simulator/machine.h"
#include "system/disk_storage.h"

namespace quilla::fuzz {
namespace {

constexpr int kChannel = 1;

std::vector<std::string> ItemsOf(FileChannels& channels, std::string_view bytes) {
  channels.OpenInput(kChannel, FileOf(bytes));
  std::vector<std::string> items;
  const auto end = FailureOf([&] {
    while (true) items.emplace_back(channels.ReadText(kChannel));
  });
  Require(end == ErrorNumber::kPastEndOfFile);
  channels.Close(kChannel);
  return items;
}

bool HasQuote(const std::vector<std::string>& texts) {
  return std::ranges::any_of(
      texts, [](const std::string& text) { return text.find('"') != std::string::npos; });
}

}  // namespace

const std::string& FileOf(std::string_view bytes) {
  static const std::string kPath = (std::filesystem::temp_directory_path() /
                                    ("quilla-fuzz-" + std::to_string(std::random_device()())))
                                       .string();
  std::ofstream(kPath, std::ios::binary) << bytes;
  return kPath;
}

/// The items of any file, and the same items written and read again.
void Items(std::string_view input) {
  DiskStorage disk;
  FileChannels channels(disk);
  const std::vector<std::string> items = ItemsOf(channels, input);
  std::string text;
  for (const std::string& item : items) {
    AppendText(text, item);
    FailureOf([&] { Require(std::to_string(DecimalValue(item)).size() <= item.size()); });
  }
  Require(HasQuote(items) || ItemsOf(channels, text) == items);
}

/// Any project file. It is refused, or a save of it opens again as the same.
void ProjectFile(std::string_view input) {
  RunningProgram program;
  const std::string path = FileOf(input);
  program.Open(path);
  if (!program.TakeBoxes().empty()) return;
  program.SaveAs(path + ".baf");
  const auto content = program.Content();
  program.Open(path + ".baf");
  Require(std::ranges::any_of(content, HasQuote) || program.Content() == content);
}

/// Any script of the robot, in a folder of its own.
void Script(std::string_view input) {
  constexpr std::size_t kLongest = 2000;
  static const robot::ScratchFolder kFolder("no files");
  std::string text(input.substr(0, kLongest));
  for (const char outside : {'/', '\\'}) std::replace(text.begin(), text.end(), outside, '_');
  std::istringstream script(text);
  std::ostringstream transcript;
  robot::Robot robot(script, transcript, transcript);
  robot.event_loop().never_return = [] { throw robot::ScriptOver{}; };
  const int result = robot.Play();
  Require(result == robot::kPlayed || result == robot::kNoCommand);
}

/// The simulator over any memory. The first two bytes are where it starts, all others lie in memory
/// from there on, around the top.
void Simulator(std::string_view input) {
  constexpr int kMostSteps = 500;
  if (input.size() < 2) return;
  WatchTables tables(nullptr);
  tables.Load();
  Machine machine(tables, [](const std::string&) {});
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(input[at]); };
  const int start = byte(0) << 8 | byte(1);
  for (std::size_t i = 2; i < input.size(); ++i) {
    tables.SetMem((start + static_cast<int>(i) - 2) & kTopAddress,
                  PaddedHexText(byte(i), kByteDigits));
  }
  FailureOf([&] { machine.StartAt(PaddedHexText(start, kAddressDigits)); });
  for (int step = 0; step < kMostSteps; ++step) {
    FailureOf([&] { machine.Execute(); });
    Require(machine.InstLength >= 0 && machine.InstLength <= 3);
  }
}

}  // namespace quilla::fuzz
