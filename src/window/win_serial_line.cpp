// Serial devices on Windows. All transfers are overlapped: they are begun and looked after later.
#include <windows.h>

#include <QHash>
#include <QStringList>
#include <algorithm>
#include <chrono>
#include <deque>
#include <future>
#include <utility>

#include "platform/failure.h"
#include "window/qt_text.h"
#include "window/serial_line.h"

namespace quilla {
namespace {

/// How much the driver is given ahead; it takes whatever it is given.
constexpr std::size_t kDriverBytes = 4096;
/// In which a common device opens.
constexpr std::chrono::milliseconds kShortWait{10};

[[noreturn]] void FailOpening() {
  switch (GetLastError()) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
      throw Failure(ErrorNumber::kPortMissing);
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
      throw Failure(ErrorNumber::kPortInUse);
    default:
      throw Failure(ErrorNumber::kPortFailed);
  }
}

/// A handle that closes itself.
class Handle {
 public:
  explicit Handle(HANDLE handle) : handle_(handle) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() {
    if (is_valid()) CloseHandle(handle_);
  }
  bool is_valid() const { return handle_ != INVALID_HANDLE_VALUE && handle_ != nullptr; }
  HANDLE get() const { return handle_; }

 private:
  HANDLE handle_;
};

/// One transfer under way on a device. It must be over before it is destroyed.
class Transfer {
 public:
  explicit Transfer(std::string bytes) : bytes_(std::move(bytes)) {
    overlapped_.hEvent = event_.get();
  }

  void BeginWrite(HANDLE device) {
    const auto size = static_cast<DWORD>(bytes_.size());
    Begin(WriteFile(device, bytes_.data(), size, nullptr, &overlapped_));
  }
  void BeginRead(HANDLE device) {
    const auto size = static_cast<DWORD>(bytes_.size());
    Begin(ReadFile(device, bytes_.data(), size, nullptr, &overlapped_));
  }
  bool is_over() const { return !has_begun_ || HasOverlappedIoCompleted(&overlapped_); }
  /// Waits for its end; gives the bytes moved, or none if it failed.
  std::size_t Finish(HANDLE device) {
    DWORD moved = 0;
    if (!has_begun_ || !GetOverlappedResult(device, &overlapped_, &moved, TRUE)) return 0;
    return moved;
  }
  void WaitForEnd(DWORD milliseconds) const { WaitForSingleObject(event_.get(), milliseconds); }
  std::string& bytes() { return bytes_; }
  const std::string& bytes() const { return bytes_; }

 private:
  void Begin(BOOL is_done) { has_begun_ = is_done || GetLastError() == ERROR_IO_PENDING; }

  std::string bytes_;
  Handle event_{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
  OVERLAPPED overlapped_{};
  bool has_begun_ = false;
};

/// What a device is set to by settings such as "2400,N,8,1".
void Apply(const std::string& settings, DCB& control) {
  static const QHash<QString, BYTE> kParities = {
      {"N", NOPARITY}, {"E", EVENPARITY}, {"O", ODDPARITY}, {"M", MARKPARITY}, {"S", SPACEPARITY}};
  static const QHash<QString, BYTE> kStopBits = {
      {"1", ONESTOPBIT}, {"1.5", ONE5STOPBITS}, {"2", TWOSTOPBITS}};
  const QStringList fields = ToQt(settings).split(',');
  control.BaudRate = fields.value(0).toUInt();
  control.Parity = kParities.value(fields.value(1));
  control.fParity = control.Parity != NOPARITY;
  control.ByteSize = static_cast<BYTE>(fields.value(2).toUInt());
  control.StopBits = kStopBits.value(fields.value(3));
  control.fBinary = TRUE;
  control.fOutxCtsFlow = control.fOutxDsrFlow = control.fDsrSensitivity = FALSE;
  control.fOutX = control.fInX = control.fNull = control.fErrorChar = FALSE;
  control.fAbortOnError = FALSE;
  control.fDtrControl = DTR_CONTROL_DISABLE;
  control.fRtsControl = RTS_CONTROL_DISABLE;
}

class WinSerialLine : public SerialLine {
 public:
  WinSerialLine(const QString& name, const std::string& settings)
      : device_(CreateFileW(reinterpret_cast<LPCWSTR>((R"(\\.\)" + name).utf16()),
                            GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                            FILE_FLAG_OVERLAPPED, nullptr)) {
    if (!device_.is_valid()) FailOpening();
    DCB control{};
    control.DCBlength = sizeof control;
    // A read takes what is there and ends at once; a write takes as long as it takes.
    COMMTIMEOUTS timeouts{MAXDWORD, 0, 0, 0, 0};
    bool is_set = GetCommState(device(), &control) != 0;
    Apply(settings, control);
    is_set = is_set && SetCommState(device(), &control) && SetCommTimeouts(device(), &timeouts);
    if (!is_set) throw Failure(ErrorNumber::kPortFailed);
    PurgeComm(device(), PURGE_RXCLEAR);
  }
  ~WinSerialLine() override { EndWrites(); }

  void SetDtr(bool on) override { EscapeCommFunction(device(), on ? SETDTR : CLRDTR); }
  void SetRts(bool on) override { EscapeCommFunction(device(), on ? SETRTS : CLRRTS); }

  void Send(const std::string& bytes) override {
    queue_ += bytes;
    HandToDriver();
  }

  void HandToDriver() override {
    while (!writes_.empty() && writes_.front().is_over()) {
      Transfer& write = writes_.front();
      if (write.Finish(device()) < write.bytes().size()) has_failed_ = true;
      writes_.pop_front();
    }
    const std::size_t room = kDriverBytes - std::min(kDriverBytes, BytesUnderWay());
    if (room == 0 || queue_.empty() || has_failed_) return;
    writes_.emplace_back(queue_.substr(0, room)).BeginWrite(device());
    queue_.erase(0, room);
  }

  void WaitForRoom() override {
    if (!writes_.empty()) writes_.front().WaitForEnd(1);
    HandToDriver();
  }

  std::size_t BytesInQueue() const override { return queue_.size(); }

  std::size_t BytesInDriver() const override {
    COMSTAT status{};
    const bool tells = ClearCommError(device(), nullptr, &status) != 0;
    return std::max<std::size_t>(BytesUnderWay(), tells ? status.cbOutQue : 0);
  }

  // A write is over when the driver has handed its bytes on, and closing waits for the chip.
  // FlushFileBuffers may never come back.
  void Drain() override {}

  void Discard() override {
    queue_.clear();
    PurgeComm(device(), PURGE_TXABORT | PURGE_TXCLEAR);
    EndWrites();
  }

  std::string TakeArrived() override {
    COMSTAT status{};
    if (!ClearCommError(device(), nullptr, &status) || status.cbInQue == 0) return {};
    Transfer read(std::string(status.cbInQue, '\0'));
    read.BeginRead(device());
    read.bytes().resize(read.Finish(device()));
    return std::move(read.bytes());
  }

  bool HasGone() const override {
    COMSTAT status{};
    return has_failed_ || !ClearCommError(device(), nullptr, &status);
  }

 private:
  HANDLE device() const { return device_.get(); }

  std::size_t BytesUnderWay() const {
    std::size_t bytes = 0;
    for (const Transfer& write : writes_) bytes += write.bytes().size();
    return bytes;
  }

  void EndWrites() {
    CancelIo(device());
    for (Transfer& write : writes_) write.Finish(device());
    writes_.clear();
  }

  Handle device_;
  std::string queue_;
  std::deque<Transfer> writes_;
  bool has_failed_ = false;
};

}  // namespace

std::unique_ptr<SerialLine> OpenSerialLine(const QString& device, const std::string& settings,
                                           const std::function<void()>& turn) {
  // The driver may take seconds, for Bluetooth.
  auto line = std::async(std::launch::async,
                         [&] { return std::make_unique<WinSerialLine>(device, settings); });
  while (line.wait_for(kShortWait) != std::future_status::ready) turn();
  return line.get();
}

}  // namespace quilla
