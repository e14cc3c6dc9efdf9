// A serial port that the program has closed and that still sends what it was given.
#ifndef QUILLA_WINDOW_CLOSING_PORT_H_
#define QUILLA_WINDOW_CLOSING_PORT_H_

#include <QElapsedTimer>
#include <QString>
#include <QTimer>
#include <future>
#include <memory>

#include "window/serial_line.h"

namespace quilla {

class ClosingPort {
 public:
  /// The line closes, in the background, when all is sent, when its device fails, or when nothing
  /// has gone out for ten seconds.
  ClosingPort(std::unique_ptr<SerialLine> line, QString device);

  const QString& device() const { return device_; }
  bool is_closed() const { return line_ == nullptr; }

 private:
  void Advance();
  void Close();

  std::unique_ptr<SerialLine> line_;
  QString device_;
  std::size_t left_ = 0;  // bytes that are not on the line yet
  QElapsedTimer since_progress_;
  QTimer timer_;
  std::future<void> drained_;
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_CLOSING_PORT_H_
