#include "window/closing_port.h"

#include <chrono>
#include <utility>

namespace quilla {
namespace {

constexpr std::chrono::milliseconds kTurn{10};
constexpr qint64 kMostIdleMs = 10'000;

}  // namespace

ClosingPort::ClosingPort(std::unique_ptr<SerialLine> line, QString device)
    : line_(std::move(line)), device_(std::move(device)) {
  since_progress_.start();
  timer_.callOnTimeout([this] { Advance(); });
  timer_.start(kTurn);
}

void ClosingPort::Advance() {
  if (drained_.valid()) {
    if (drained_.wait_for(std::chrono::seconds(0)) == std::future_status::ready) Close();
    return;
  }
  line_->HandToDriver();
  const std::size_t left = line_->BytesInQueue() + line_->BytesInDriver();
  if (std::exchange(left_, left) != left) since_progress_.restart();
  if (left == 0) {
    drained_ = std::async(std::launch::async, [line = line_.get()] { line->Drain(); });
  } else if (line_->HasGone() || since_progress_.hasExpired(kMostIdleMs)) {
    line_->Discard();
    Close();
  }
}

void ClosingPort::Close() {
  timer_.stop();
  line_.reset();
}

}  // namespace quilla
