// A serial port with a trainer board behind it, in this program: what is written the board hears
// at once, and what it answers can be read at once. For showing the link without a second machine.
#ifndef QUILLA_TRAINER_BOARD_PORT_H_
#define QUILLA_TRAINER_BOARD_PORT_H_

#include <string>

#include "platform/serial_port.h"
#include "trainer/board.h"

namespace quilla::trainer {

class BoardPort : public SerialPort {
 public:
  /// Any number and settings will do. Fails with `kPortInUse` when it is open already.
  void Open(int number, const std::string& settings) override;
  void Close() override;
  bool IsOpen() const override { return is_open_; }
  void SetDtr(bool /*on*/) override {}
  void SetRts(bool /*on*/) override {}
  /// Both fail with `kPortFailed` on a closed port.
  void Write(const std::string& bytes) override;
  std::string Read() override;

 private:
  void CheckOpen() const;

  Board board_;
  bool is_open_ = false;
  std::string arrived_;  // what the board has answered and nobody has read
};

}  // namespace quilla::trainer

#endif  // QUILLA_TRAINER_BOARD_PORT_H_
