// A trainer on the line without a board: it opens a pseudo-terminal, takes downloads there, and
// answers uploads.
#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/number_text.h"
#include "system/end_requests.h"
#include "trainer/board.h"

namespace quilla::trainer {
namespace {

constexpr const char* kUsage =
    "Usage: quilla-trainer [--fast] [--range FIRST-LAST] [--record FILE]\n"
    "  --fast              take and send bytes as fast as they go, not at 2400 baud\n"
    "  --range FIRST-LAST  send only these addresses, four hexadecimal digits each\n"
    "  --record FILE       write every byte that arrives to FILE\n";

struct Options {
  bool fast = false;
  std::uint16_t first = 0;
  std::uint16_t last = 0xFFFF;
  std::ofstream record;
};

/// What the arguments ask for. Fails with std::exception where they make no sense.
Options ReadOptions(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; ++i) {
    const std::string name = argv[i];
    const std::string value = i + 1 < argc ? argv[i + 1] : "";
    if (name == "--fast") {
      options.fast = true;
      continue;
    }
    ++i;
    if (name == "--range" && value.size() == 9 && value[4] == '-') {
      options.first = static_cast<std::uint16_t>(HexValue(value.substr(0, 4)));
      options.last = static_cast<std::uint16_t>(HexValue(value.substr(5)));
      if (options.first > options.last) throw std::invalid_argument(value);
    } else if (name == "--record") {
      options.record.open(value, std::ios::binary);
      if (!options.record) throw std::invalid_argument(value);
    } else {
      throw std::invalid_argument(name);
    }
  }
  return options;
}

/// The result of a system call. Fails with std::system_error.
template <typename Result>
Result Checked(Result result) {
  if (result < 0) throw std::system_error(errno, std::generic_category());
  return result;
}

/// The bytes that a transfer has moved, none where it would have had to wait.
std::size_t Moved(ssize_t result) {
  if (result < 0 && (errno == EAGAIN || errno == EINTR)) return 0;
  return static_cast<std::size_t>(Checked(result));
}

/// The board's end of a new pseudo-terminal that passes bytes as they are. The name of the other
/// end is printed; it is held open, so that the line outlives those who open and close it.
int OpenLine() {
  const int line = Checked(posix_openpt(O_RDWR | O_NOCTTY));
  Checked(fcntl(line, F_SETFL, O_NONBLOCK));
  Checked(grantpt(line));
  Checked(unlockpt(line));
  const std::string name = ptsname(line);
  const int other_end = Checked(open(name.c_str(), O_RDWR | O_NOCTTY));
  termios settings{};
  Checked(tcgetattr(other_end, &settings));
  cfmakeraw(&settings);
  Checked(tcsetattr(other_end, TCSANOW, &settings));
  std::cout << name << std::endl;
  return line;
}

/// How many bytes one direction of the line can carry by now.
class Pace {
 public:
  explicit Pace(bool fast) : fast_(fast) {}

  std::size_t Room() const {
    return fast_ ? kBlock : static_cast<std::size_t>((Clock::now() - FreeSince()) / kByteTime);
  }
  void Carry(std::size_t bytes) { free_since_ = FreeSince() + bytes * kByteTime; }

 private:
  using Clock = std::chrono::steady_clock;
  static constexpr std::size_t kBlock = 4096;
  static constexpr std::chrono::nanoseconds kByteTime{10'000'000'000 / 2400};
  static constexpr std::chrono::milliseconds kLongestTurn{20};

  /// Time that nobody used is lost, but for a late turn.
  Clock::time_point FreeSince() const {
    return std::max<Clock::time_point>(free_since_, Clock::now() - kLongestTurn);
  }

  bool fast_;
  Clock::time_point free_since_ = Clock::now();
};

/// Lets the board hear what has arrived and gives its answer.
std::string Hear(Board& board, std::string_view arrived, const Options& options) {
  std::string answer;
  for (const char character : arrived) {
    const Board::Event event = board.Take(character);
    if (event == Board::Event::kDownload) {
      std::cout << "downloaded " << board.TakeStored() << " bytes" << std::endl;
    } else if (event == Board::Event::kBadRecord) {
      std::cout << "bad record" << std::endl;
    } else if (event == Board::Event::kTrigger) {
      answer = board.Image(options.first, options.last);
      std::cout << "uploading " << answer.size() << " characters" << std::endl;
    }
  }
  return answer;
}

[[noreturn]] void Serve(Options& options) {
  constexpr int kTurnMs = 5;
  const int line = OpenLine();
  Board board;
  Pace in(options.fast);
  Pace out(options.fast);
  std::string to_send;
  while (true) {
    std::string arrived(in.Room(), '\0');
    const std::size_t may_send = std::min(to_send.size(), out.Room());
    pollfd events{line, 0, 0};
    if (!arrived.empty()) events.events |= POLLIN;
    if (may_send > 0) events.events |= POLLOUT;
    poll(&events, 1, !arrived.empty() && to_send.empty() ? -1 : kTurnMs);
    arrived.resize(Moved(read(line, arrived.data(), arrived.size())));
    in.Carry(arrived.size());
    options.record << arrived << std::flush;
    const std::size_t sent = Moved(write(line, to_send.data(), may_send));
    out.Carry(sent);
    to_send.erase(0, sent);
    to_send += Hear(board, arrived, options);
  }
}

}  // namespace
}  // namespace quilla::trainer

int main(int argc, char** argv) {
  try {
    quilla::LetLongFilesFail();
    quilla::trainer::Options options = quilla::trainer::ReadOptions(argc, argv);
    quilla::trainer::Serve(options);
  } catch (const std::system_error& failure) {
    std::cerr << "quilla-trainer: " << failure.what() << '\n';
    return EXIT_FAILURE;
  } catch (const std::exception&) {
    std::cerr << quilla::trainer::kUsage;
    return 2;
  }
}
