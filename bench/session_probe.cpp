// Linked into a program, it waits for the first card, then moves through the deck and opens
// windows by their menu entries. It prints the median and the longest time of a card move, from
// the key to the repainted card, and of each window, from the command to its first paint, in
// milliseconds; then the growth of the resident memory over the moves, in kB; then it ends the
// program. Modal windows are closed by their own key.

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

#include "bench/resident_memory.h"

namespace {

constexpr int kMoves = 2000;
constexpr int kOpenings = 15;

using Clock = std::chrono::steady_clock;

double MillisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

void Print(const char* name, std::vector<double> times) {
  std::sort(times.begin(), times.end());
  std::printf("%s %.2f %.2f\n", name, times[times.size() / 2], times.back());
}

struct Opening {
  const char* entry;   ///< of the deck window's menus
  const char* window;  ///< whose first paint counts
  Qt::Key close;       ///< with Alt where it is a letter
};

constexpr Opening kWindows[] = {
    {"mnuACTTD", "frmEssay", Qt::Key_C},
    {"mnuCDI", "frmInfo", Qt::Key_C},
    {"mnuAbout", "frmAbout", Qt::Key_Escape},
    {"mnuSC", "frmInstruct", Qt::Key_C},
};

class SessionProbe : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) Painted(*watched);
    return false;
  }

 private:
  void Painted(const QObject& watched) {
    if (!started_ && watched.objectName() == "NoteletCtl1") {
      started_ = true;
      QTimer::singleShot(200, this, [this] { Run(); });
    }
    if (!awaited_.isEmpty() && IsIn(watched, awaited_)) {
      awaited_.clear();
      // A zero timer runs when the paint has reached the screen's buffer.
      QTimer::singleShot(0, this, [this] { onPaint_(); });
    }
  }

  static bool IsIn(const QObject& widget, const QString& name) {
    for (const QObject* at = &widget; at != nullptr; at = at->parent()) {
      if (at->objectName() == name) return true;
    }
    return false;
  }

  void Run() {
    const long long before = ResidentKilobytes();
    std::vector<double> moves;
    while (moves.size() < kMoves) Move(moves);
    const long long growth = ResidentKilobytes() - before;
    Print("card-move", moves);
    for (const Opening& window : kWindows) OpenOften(window);
    std::printf("growth-kb %lld\n", growth);
    std::fflush(stdout);
    std::_Exit(0);
  }

  /// To the end of the deck and back, over and over.
  void Move(std::vector<double>& moves) {
    const bool forward = moves.size() / 150 % 2 == 0;
    const auto start = Clock::now();
    bool painted = false;
    Await("NoteletCtl1", [&] { painted = true; });
    Press(forward ? Qt::Key_PageDown : Qt::Key_PageUp, Qt::NoModifier);
    while (!painted) QCoreApplication::processEvents();
    moves.push_back(MillisecondsSince(start));
  }

  void OpenOften(const Opening& window) {
    std::vector<double> times;
    while (times.size() < kOpenings) {
      const auto start = Clock::now();
      bool closed = false;
      Await(window.window, [&] {
        times.push_back(MillisecondsSince(start));
        Close(window.close);
        closed = true;
      });
      Entry(window.entry).trigger();
      while (!closed) QCoreApplication::processEvents();
      QCoreApplication::processEvents();
    }
    Print(window.window, times);
  }

  void Await(const char* window, std::function<void()> then) {
    awaited_ = window;
    onPaint_ = std::move(then);
  }

  static void Close(Qt::Key key) {
    Press(key, key == Qt::Key_Escape ? Qt::NoModifier : Qt::AltModifier);
  }

  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* receiver = QApplication::focusWidget();
    if (receiver == nullptr) receiver = QApplication::activeWindow();
    if (receiver == nullptr) std::abort();
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    QCoreApplication::sendEvent(receiver, &press);
  }

  static QAction& Entry(const char* name) {
    for (QWidget* widget : QApplication::allWidgets()) {
      if (widget->objectName() != "frmMain") continue;
      for (QAction* action : widget->findChildren<QAction*>(name)) return *action;
    }
    std::abort();
  }

  bool started_ = false;
  QString awaited_;
  std::function<void()> onPaint_;
};

void InstallProbe() {
  qApp->installEventFilter(new SessionProbe(qApp));
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(InstallProbe)
