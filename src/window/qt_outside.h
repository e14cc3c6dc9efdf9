// The world outside of the program, as a desktop has it.
#ifndef QUILLA_WINDOW_QT_OUTSIDE_H_
#define QUILLA_WINDOW_QT_OUTSIDE_H_

#include "platform/outside.h"
#include "window/gate.h"
#include "window/qt_clock.h"
#include "window/qt_dialogs.h"
#include "window/qt_event_loop.h"
#include "window/qt_printer.h"
#include "window/windows.h"

namespace quilla {

/// A machine without serial ports.
class NoSerialPort : public SerialPort {
 public:
  void Open(int number, const std::string& settings) override;
  void Close() override {}
  bool IsOpen() const override { return false; }
  void SetDtr(bool /*on*/) override {}
  void SetRts(bool /*on*/) override {}
  void Write(const std::string& bytes) override;
  std::string Read() override;
};

class QtOutside {
 public:
  Outside& ports() { return ports_; }
  Gate& gate() { return gate_; }
  QtEventLoop& event_loop() { return event_loop_; }

 private:
  Gate gate_;
  QtMessageBoxes boxes_;
  QtFileDialogs file_dialogs_;
  NoSerialPort serial_port_;
  QtClock clock_{gate_};
  QtPrinter printer_;
  QtEventLoop event_loop_{gate_,
                          [this](Form& form) { return MakeWindow(gate_, event_loop_, form); }};
  Outside ports_{boxes_, file_dialogs_, serial_port_, clock_, printer_, event_loop_};
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_QT_OUTSIDE_H_
