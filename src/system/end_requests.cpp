#include "system/end_requests.h"

#include <chrono>
#include <csignal>
#include <thread>

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#endif

namespace quilla {

#ifdef _WIN32

namespace {
void EndIfAsked() {}
}  // namespace

EndRequests::EndRequests(Input /*input*/) {}
EndRequests::~EndRequests() = default;
bool EndRequests::has_come() const { return false; }
void EndRequests::TakeByte() const {}
void EndRequests::Obey() {}
void LetLongFilesFail() {}

#else

namespace {

constexpr int kSignals[] = {SIGTERM, SIGHUP};

// What the handler of a signal may touch.
std::atomic<int> g_noted = 0;      // the last signal
std::atomic<int> g_pipe = -1;      // is written a byte for each
std::atomic<int> g_no_input = -1;  // takes the place of the standard input

extern "C" void Note(int signal) {
  const int before = errno;
  g_noted = signal;
  if (g_no_input >= 0) dup2(g_no_input, STDIN_FILENO);
  const char byte = 0;
  [[maybe_unused]] const auto written = write(g_pipe, &byte, 1);
  errno = before;
}

void Handle(void (*handler)(int), int flags) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = flags;
  for (const int signal : kSignals) {
    struct sigaction before {};
    sigaction(signal, nullptr, &before);
    if (before.sa_handler != SIG_IGN) sigaction(signal, &action, nullptr);
  }
}

/// Lets every request end the program, also one that has come before.
void EndIfAsked() {
  Handle(SIG_DFL, 0);
  if (g_noted != 0) raise(g_noted);
}

}  // namespace

EndRequests::EndRequests(Input input) {
  g_noted = 0;
  if (pipe(ends_) != 0) return;
  for (const int end : ends_) {
    fcntl(end, F_SETFD, FD_CLOEXEC);
    fcntl(end, F_SETFL, O_NONBLOCK);
  }
  g_pipe = ends_[1];
  if (input == Input::kEnds) g_no_input = open("/dev/null", O_RDONLY | O_CLOEXEC);
  Handle(Note, input == Input::kEnds ? 0 : SA_RESTART);
}

EndRequests::~EndRequests() {
  Handle(SIG_DFL, 0);
  for (const int descriptor : {ends_[0], ends_[1], g_no_input.exchange(-1)}) {
    if (descriptor >= 0) close(descriptor);
  }
}

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): a request comes to the object
bool EndRequests::has_come() const { return g_noted != 0; }

void EndRequests::TakeByte() const {
  char byte = 0;
  [[maybe_unused]] const auto taken = read(ends_[0], &byte, 1);
}

void EndRequests::Obey() { EndIfAsked(); }

void LetLongFilesFail() { std::signal(SIGXFSZ, SIG_IGN); }

#endif

void WaitForTheEnd() {
  EndIfAsked();
  while (true) std::this_thread::sleep_for(std::chrono::hours(1));
}

}  // namespace quilla
