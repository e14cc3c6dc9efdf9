// Saves and assemblings with faults put in: each access to the disk, and each piece of memory,
// fails in its turn. None costs the user the file that was there, and the next try comes about.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <new>
#include <string>
#include <utility>

#include "panel/running_program.h"
#include "scenario.h"
#include "system/disk_storage.h"

namespace {

enum class Faults { kDisk, kMemory };

Faults g_faults = Faults::kDisk;
int g_until_fault = 0;  // accesses or allocations, the faulty one included; 0 where none is faulty

bool IsFaulty(Faults faults) {
  return faults == g_faults && g_until_fault > 0 && --g_until_fault == 0;
}

}  // namespace

void* operator new(std::size_t size) {
  void* const memory = IsFaulty(Faults::kMemory) ? nullptr : std::malloc(size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }

namespace quilla {
namespace {

class FaultyFile : public StoredFile {
 public:
  explicit FaultyFile(Storage::File file) : file_(std::move(file)) {}
  std::optional<std::size_t> Read(char* to, std::size_t size) override {
    return IsFaulty(Faults::kDisk) ? std::nullopt : file_->Read(to, size);
  }
  bool Empty() override { return !IsFaulty(Faults::kDisk) && file_->Empty(); }
  bool Write(std::string_view bytes) override {
    if (!IsFaulty(Faults::kDisk)) return file_->Write(bytes);
    file_->Write(bytes.substr(0, bytes.size() / 2));
    return false;
  }
  bool Flush() override { return !IsFaulty(Faults::kDisk) && file_->Flush(); }
  bool Close() override { return file_->Close() && !IsFaulty(Faults::kDisk); }

 private:
  Storage::File file_;
};

class FaultyDisk : public DiskStorage {
 public:
  File OpenInput(const std::string& path) override {
    return IsFaulty(Faults::kDisk) ? nullptr : Wrapped(DiskStorage::OpenInput(path));
  }
  File OpenOutput(const std::string& path) override {
    return IsFaulty(Faults::kDisk) ? nullptr : Wrapped(DiskStorage::OpenOutput(path));
  }
  File Create(const std::string& path, const std::string& like) override {
    return IsFaulty(Faults::kDisk) ? nullptr : Wrapped(DiskStorage::Create(path, like));
  }
  bool Rename(const std::string& from, const std::string& to) override {
    return !IsFaulty(Faults::kDisk) && DiskStorage::Rename(from, to);
  }
  bool Remove(const std::string& path) override {
    return !IsFaulty(Faults::kDisk) && DiskStorage::Remove(path);
  }

 private:
  static File Wrapped(File file) {
    return file == nullptr ? nullptr : std::make_unique<FaultyFile>(std::move(file));
  }
};

struct Command {
  const char* file;
  const char* copy;
  MenuEntry PanelMenu::*entry;
};

class FaultsTest : public testing::TestWithParam<Command> {
 protected:
  /// Runs the command on a program whose only byte is `opcode`.
  void Run(const std::string& opcode) {
    Session& session = program_.session();
    session.Table1.SetTextMatrix(1, kOpcodeColumn, opcode);
    session.MessageResult.clear();
    program_.Choose(session.menu.*GetParam().entry, GetParam().file);
  }
  std::string Content() const { return BytesOf(GetParam().file); }

  robot::ScratchFolder folder_{"no files"};
  FaultyDisk disk_;
  RunningProgram program_{&disk_};
};

TEST_P(FaultsTest, NoFaultCostsTheFileThatWasThere) {
  Run("00");
  const std::string before = Content();
  Run("76");
  const std::string after = Content();
  ASSERT_NE(before, after);
  for (const Faults faults : {Faults::kDisk, Faults::kMemory}) {
    int fault = 0;
    do {
      Run("00");
      ASSERT_EQ(Content(), before);
      g_faults = faults;
      g_until_fault = ++fault;
      Run("76");
      const bool has_failed = std::exchange(g_until_fault, 0) == 0;
      if (!has_failed) break;
      EXPECT_TRUE(Content() == before || Content() == after || BytesOf(GetParam().copy) == before)
          << "fault " << fault;
      if (faults == Faults::kDisk && Content() != after) {
        EXPECT_NE(program_.TakeBoxes().find("Unable to save file."), std::string::npos) << fault;
      }
      Run("76");
      EXPECT_EQ(Content(), after) << "fault " << fault;
      std::filesystem::remove(GetParam().copy);
    } while (true);
    EXPECT_GT(fault, 5);
  }
}

INSTANTIATE_TEST_SUITE_P(Commands, FaultsTest,
                         testing::Values(Command{"x.baf", "x.baf~", &PanelMenu::SaveAsFile},
                                         Command{"x.hex", "x.hex~", &PanelMenu::AssembleFile}));

}  // namespace
}  // namespace quilla
