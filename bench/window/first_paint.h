// A process that ends behind the first paint of a window, and tells what memory it has taken until
// then if it is asked to.
#ifndef QUILLA_BENCH_WINDOW_FIRST_PAINT_H_
#define QUILLA_BENCH_WINDOW_FIRST_PAINT_H_

#include <QEvent>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <utility>

namespace quilla::bench {

/// Before memory is told, the window has this long to come to rest.
inline constexpr int kRestMs = 1000;

/// Writes the memory of this process, as Linux counts it, to standard output in kilobytes.
inline void TellMemory() {
  std::ifstream memory("/proc/self/smaps_rollup");
  for (std::string word; memory >> word;) {
    int kilobytes = 0;
    if (word == "Rss:" && memory >> kilobytes) std::printf("%d\n", kilobytes);
  }
  std::fflush(stdout);
}

/// Ends the process behind the first paint of one of the windows of these names. What the program
/// does at its end, such as to ask whether to save, is no part of its start.
class FirstPaint : public QObject {
 public:
  FirstPaint(QStringList windows, bool tells_memory)
      : windows_(std::move(windows)), tells_memory_(tells_memory) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Paint || !watched->isWidgetType()) return false;
    if (windows_.contains(static_cast<const QWidget*>(watched)->window()->objectName())) {
      QTimer::singleShot(tells_memory_ ? kRestMs : 0, [this] { End(); });
    }
    return false;
  }

 private:
  void End() const {
    if (tells_memory_) TellMemory();
    std::_Exit(EXIT_SUCCESS);
  }

  QStringList windows_;
  bool tells_memory_;
};

}  // namespace quilla::bench

#endif  // QUILLA_BENCH_WINDOW_FIRST_PAINT_H_
