// The world outside of the program, as a desktop has it.
#ifndef QUILLA_WINDOW_QT_OUTSIDE_H_
#define QUILLA_WINDOW_QT_OUTSIDE_H_

#include "platform/outside.h"
#include "system/disk_storage.h"
#include "window/gate.h"
#include "window/port_switch.h"
#include "window/qt_clock.h"
#include "window/qt_dialogs.h"
#include "window/qt_event_loop.h"
#include "window/qt_printer.h"
#include "window/qt_serial_port.h"
#include "window/windows.h"

namespace quilla {

class QtOutside {
 public:
  Outside& ports() { return ports_; }
  Gate& gate() { return gate_; }
  PortSwitch& serial_port() { return serial_port_; }
  QtClock& clock() { return clock_; }
  QtEventLoop& event_loop() { return event_loop_; }

 private:
  Gate gate_;
  QtMessageBoxes boxes_;
  QtFileDialogs file_dialogs_;
  QtSerialPort machine_port_{[this] { event_loop_.Turn(); }};
  PortSwitch serial_port_{machine_port_};
  QtClock clock_{gate_};
  QtPrinter printer_;
  QtEventLoop event_loop_{gate_,
                          [this](Form& form) { return MakeWindow(gate_, event_loop_, form); }};
  DiskStorage storage_;
  Outside ports_{boxes_, file_dialogs_, serial_port_, clock_, printer_, event_loop_, storage_};
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_QT_OUTSIDE_H_
