// Linked into a program, it prints how long the program took to the first paint of the widget
// that BENCH_WIDGET names, counted from BENCH_START (nanoseconds of the monotonic clock), and its
// resident memory; then it ends the program. With BENCH_STAY it stays that many milliseconds.

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "tests/support/memory_use.h"

namespace {

long long MonotonicNanoseconds() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return now.tv_sec * 1'000'000'000LL + now.tv_nsec;
}

long long NumberFromEnvironment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? 0 : std::atoll(value);
}

class FirstPaintProbe : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool wanted =
        event->type() == QEvent::Paint && !seen_ &&
        watched->objectName() == QString::fromLocal8Bit(std::getenv("BENCH_WIDGET"));
    if (wanted) {
      seen_ = true;
      // A zero timer runs when the paint has reached the screen's buffer.
      QTimer::singleShot(0, this, [this] { Painted(); });
    }
    return false;
  }

 private:
  void Painted() {
    const long long nanoseconds = MonotonicNanoseconds() - NumberFromEnvironment("BENCH_START");
    std::printf("first_paint_ms %.2f\n", static_cast<double>(nanoseconds) / 1e6);
    QTimer::singleShot(static_cast<int>(NumberFromEnvironment("BENCH_STAY")), this, [] {
      std::printf("resident_kb %ld\n", tessara::test::ResidentBytes() / 1024);
      std::fflush(stdout);
      std::_Exit(0);
    });
  }

  bool seen_ = false;
};

void InstallProbe() {
  if (std::getenv("BENCH_WIDGET") == nullptr) return;
  qApp->installEventFilter(new FirstPaintProbe(qApp));
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(InstallProbe)
