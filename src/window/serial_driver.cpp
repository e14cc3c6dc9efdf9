#include "window/serial_driver.h"

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#endif

namespace quilla {

#ifdef Q_OS_WIN

bool DriverHasRoom(const QSerialPort& /*port*/) { return true; }

bool DeviceHasGone(const QSerialPort& port) { return port.error() == QSerialPort::ResourceError; }

qint64 BytesInDriver(const QSerialPort& port) {
  COMSTAT status{};
  return ClearCommError(port.handle(), nullptr, &status) ? status.cbOutQue : 0;
}

void DrainDriver(const QSerialPort& port) { FlushFileBuffers(port.handle()); }

#else

bool DriverHasRoom(const QSerialPort& port) {
  pollfd line{port.handle(), POLLOUT, 0};
  return poll(&line, 1, 0) > 0;
}

bool DeviceHasGone(const QSerialPort& port) {
  pollfd line{port.handle(), 0, 0};
  return poll(&line, 1, 0) > 0 || port.error() == QSerialPort::ResourceError;
}

qint64 BytesInDriver(const QSerialPort& port) {
  int bytes = 0;
  return ioctl(port.handle(), TIOCOUTQ, &bytes) == 0 ? bytes : 0;
}

void DrainDriver(const QSerialPort& port) { tcdrain(port.handle()); }

#endif

}  // namespace quilla
