// What Qt does not tell of a serial port that is open: what the operating system's driver still has
// to send.
#ifndef QUILLA_WINDOW_SERIAL_DRIVER_H_
#define QUILLA_WINDOW_SERIAL_DRIVER_H_

#include <QSerialPort>

namespace quilla {

/// Whether the driver takes at least one byte at once. Qt tells a write without room like a device
/// that has gone.
bool DriverHasRoom(const QSerialPort& port);

/// Whether the device was pulled out, or who holds the other end of a pseudo-terminal has gone. Qt
/// does not notice where reading just gives nothing.
bool DeviceHasGone(const QSerialPort& port);

/// The bytes that the driver has taken and not yet sent, as far as it tells; 0 where it does not.
qint64 BytesInDriver(const QSerialPort& port);

/// Waits until the last bit is on the line. It blocks, so it is for a thread of its own.
void DrainDriver(const QSerialPort& port);

}  // namespace quilla

#endif  // QUILLA_WINDOW_SERIAL_DRIVER_H_
