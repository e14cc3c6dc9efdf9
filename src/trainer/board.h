// A trainer board without the hardware: it keeps the bytes of Intel HEX records as memory, and
// gives memory back as records when it is asked to.
#ifndef QUILLA_TRAINER_BOARD_H_
#define QUILLA_TRAINER_BOARD_H_

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <utility>

namespace quilla::trainer {

class Board {
 public:
  enum class Event {
    kNone,
    kDownload,   // the end record has come
    kBadRecord,  // a record with a wrong checksum, or with anything but digits; it is dropped
    kTrigger,    // memory is asked for
  };

  /// Takes one character from the line. Records may follow one another with or without line ends.
  Event Take(char character);
  /// How many bytes have been stored since this was last asked.
  std::size_t TakeStored() { return std::exchange(stored_, 0); }
  /// All bytes ever stored from address `first` to `last`, by default all there are, as records of
  /// up to sixteen bytes with CR LF between them, the end record last.
  std::string Image(std::uint16_t first = 0, std::uint16_t last = 0xFFFF) const;

 private:
  Event TakeRecord();

  std::map<std::uint16_t, std::uint8_t> memory_;
  std::string record_;  // the record that is coming in, from its colon; empty between records
  std::string line_;    // the last characters between records, as many as the trigger has
  std::size_t stored_ = 0;
};

}  // namespace quilla::trainer

#endif  // QUILLA_TRAINER_BOARD_H_
