// A serial port that the program has closed and that still sends what it was given.
#ifndef QUILLA_WINDOW_CLOSING_PORT_H_
#define QUILLA_WINDOW_CLOSING_PORT_H_

#include <QElapsedTimer>
#include <QSerialPort>
#include <QTimer>
#include <future>
#include <memory>

namespace quilla {

/// Hands the bytes that wait in the port to the driver, as many as that has room for.
void HandToDriver(QSerialPort& port);

class ClosingPort {
 public:
  /// `port` is open. It closes, in the background, when all is sent, when its device fails, or when
  /// nothing has gone out for ten seconds.
  explicit ClosingPort(std::unique_ptr<QSerialPort> port);

  const QString& device() const { return device_; }
  bool is_closed() const { return port_ == nullptr; }

 private:
  void Advance();
  void Close();

  std::unique_ptr<QSerialPort> port_;
  QString device_;
  qint64 left_ = 0;  // bytes that are not on the line yet
  QElapsedTimer since_progress_;
  QTimer timer_;
  std::future<void> drained_;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_CLOSING_PORT_H_
