#include "walk/files.h"

#include <filesystem>
#include <fstream>

namespace quilla::walk {
namespace {

void Write(const std::string& name, const std::string& bytes) {
  std::ofstream(name, std::ios::binary) << bytes;
}

/// A project that no panel has made: two origins in a row, labels under two addresses and on two
/// rows, names that are both kinds, cells of odd lengths.
std::string OddProject() {
  return "odd\n8085\n9\n"
         "Origin,7000,,,,\n"
         "Origin,2000,,,,\n"
         "twice,,JMP  twice,C3   XX   XX,,twice\n"
         "twice,,MVI  A,3E,both,both\n"
         ",,LXI  H,21   00   80,both,both\n"
         "Origin,FFF0,NOP,00,,x\n"
         ",,J,C3,short,longer\n"
         ",,DFB,ZZ   00,odd,both\n"
         "last,,RNC,D0,,\n"
         "EOT\n4\ntwice,8000\ntwice,9000\nboth,XXXX\nnone,\n2\nboth,XX\nfree,12\nEOF\n";
}

}  // namespace

const std::vector<std::string>& FileNames() {
  static const std::vector<std::string> kFileNames = {
      "a.baf",   "b.baf",      "c.txt",        "a.hex",       "b.hex",    "odd.baf",
      "odd.baf", "folder.baf", "absent/a.baf", "cut.baf",     "huge.baf", "x",
      "",        "good.hex",   "empty.baf",    "missing.hex", "folder.x",
  };
  return kFileNames;
}

void WriteFiles() {
  const std::string project = OddProject();
  Write("odd.baf", project);
  Write("cut.baf", project.substr(0, project.size() / 2));
  Write("huge.baf", "x\n8085\n2000000000\n");
  Write("empty.baf", "");
  Write("good.hex", "\":0380000021008059\"\r\n\":00000001FF\"\r\n");
  std::filesystem::create_directory("folder.baf");
}

}  // namespace quilla::walk
