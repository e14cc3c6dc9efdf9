#include "window/closing_port.h"

#include <chrono>
#include <utility>

#include "window/serial_driver.h"

namespace quilla {
namespace {

constexpr std::chrono::milliseconds kTurn{10};
constexpr qint64 kMostIdleMs = 10'000;

}  // namespace

void HandToDriver(QSerialPort& port) {
  qint64 before = 0;
  do {
    before = port.bytesToWrite();
    if (before > 0 && DriverHasRoom(port)) port.flush();  // one piece at a time
  } while (port.bytesToWrite() < before);
}

ClosingPort::ClosingPort(std::unique_ptr<QSerialPort> port)
    : port_(std::move(port)), device_(port_->portName()) {
  since_progress_.start();
  timer_.callOnTimeout([this] { Advance(); });
  timer_.start(kTurn);
}

void ClosingPort::Advance() {
  if (drained_.valid()) {
    if (drained_.wait_for(std::chrono::seconds(0)) == std::future_status::ready) Close();
    return;
  }
  HandToDriver(*port_);
  const qint64 left = port_->bytesToWrite() + BytesInDriver(*port_);
  if (std::exchange(left_, left) != left) since_progress_.restart();
  if (left == 0) {
    drained_ = std::async(std::launch::async, [port = port_.get()] { DrainDriver(*port); });
  } else if (DeviceHasGone(*port_) || since_progress_.hasExpired(kMostIdleMs)) {
    port_->clear(QSerialPort::Output);
    Close();
  }
}

void ClosingPort::Close() {
  timer_.stop();
  port_.reset();
}

}  // namespace quilla
