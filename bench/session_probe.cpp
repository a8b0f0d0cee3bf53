// Linked into a program, it waits for the first card, then moves through the deck and opens
// windows by their menu entries. It prints a line for the card move, from the key to the repainted
// card, and for each window, from the command to its first paint: the first one, then the median
// and the longest of those that follow, and the median of the floor, in milliseconds. The floor is
// taken in turn: a plain widget that paints the same picture, a window of the same plain widgets.
// Last comes the growth of the resident memory over the moves, in kB; then it ends the program.
// BENCH_DECK tells what deck the program has been started with: "standard" or "extended".

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMessageBox>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <optional>
#include <vector>

#include "bench/plain_window.h"
#include "tests/support/memory_use.h"

namespace {

constexpr int kMoves = 2000;
constexpr int kOpenings = 15;
constexpr int kSettleMilliseconds = 20;
constexpr int kPatience = 2000;

using Clock = std::chrono::steady_clock;
using Times = std::vector<double>;

double MillisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double Median(Times times) {
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

void Print(const char* name, double first, const Times& times, const Times& floor) {
  std::printf("%s %.3f %.3f %.3f %.3f\n", name, first, Median(times),
              *std::max_element(times.begin(), times.end()), Median(floor));
  std::fflush(stdout);
}

void CloseWindow(QWidget& window) {
  window.close();
}

void SayNo(QWidget& window) {
  static_cast<QMessageBox&>(window).button(QMessageBox::No)->click();
}

struct Opening {
  const char* menus;  ///< the window whose menus have the entry
  const char* entry;
  const char* window;  ///< name or class of the window whose first paint counts
  void (*close)(QWidget& window);
};

constexpr Opening kWithStandardDeck[] = {
    {"frmMain", "mnuACTTD", "frmEssay", CloseWindow},
    {"frmMain", "mnuCDI", "frmInfo", CloseWindow},
    {"frmMain", "mnuPrint", "PrintCard", CloseWindow},
    {"frmMain", "mnuAbout", "frmAbout", CloseWindow},
    {"frmMain", "mnuSC", "frmInstruct", CloseWindow},
    {"frmMain", "mnuHelpTopic", "HelpViewer", CloseWindow},
    {"frmMain", "mnuGTP", "QInputDialog", CloseWindow},
    {"frmMain", "mnuOCD", "QFileDialog", CloseWindow},
    {"frmMain", "mnuDelete", "QMessageBox", SayNo},
};
constexpr Opening kQuestionBuilder = {"frmMain", "mnuACTTD", "frmQuestion", CloseWindow};
constexpr Opening kSetUp = {"MDIForm1", "mnuSetup", "FrmSetUp", CloseWindow};

bool Is(const QObject& object, const char* nameOrClass) {
  return object.objectName() == QLatin1String(nameOrClass) || object.inherits(nameOrClass);
}

/// Qt's own dialogs have themselves for a floor.
template <class Dialog>
QWidget* ShowPlain(Dialog* dialog) {
  dialog->setObjectName("plain");
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->show();
  return dialog;
}

class SessionProbe : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) Painted(*watched);
    return false;
  }

 private:
  void Painted(QObject& watched) {
    if (!started_ && watched.objectName() == "NoteletCtl1") {
      started_ = true;
      QTimer::singleShot(200, this, [this] { Run(); });
    }
    if (awaited_ == nullptr) return;
    QWidget* window = AwaitedAround(watched);
    if (window == nullptr) return;
    awaited_ = nullptr;
    // A zero timer runs when the paint has reached the screen's buffer.
    QTimer::singleShot(0, this, [this, window] { onPaint_(*window); });
  }

  QWidget* AwaitedAround(QObject& widget) const {
    for (QObject* at = &widget; at != nullptr; at = at->parent()) {
      if (Is(*at, awaited_)) return qobject_cast<QWidget*>(at);
    }
    return nullptr;
  }

  void Run() {
    if (qgetenv("BENCH_DECK") == "extended") {
      Compare(kQuestionBuilder);
      CloseDeck();
      Compare(kSetUp);
    } else {
      RunMoves();
      for (const Opening& window : kWithStandardDeck) Compare(window);
      std::printf("growth-kb %lld\n", growth_);
    }
    std::fflush(stdout);
    std::_Exit(0);
  }

  /// Yes, we are sure.
  static void CloseDeck() {
    QTimer::singleShot(kSettleMilliseconds, [] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box != nullptr) box->button(QMessageBox::Yes)->click();
    });
    Named("frmMain").close();
    Settle();
  }

  void RunMoves() {
    QWidget& card = Named("NoteletCtl1");
    PlainCard plain(card.grab(), &Named("MDIForm1"));
    MoveAside(plain, card);
    const long long before = tessara::test::ResidentBytes() / 1024;
    const double first = Move(0);
    Times times;
    Times floor;
    for (int move = 1; move <= kMoves; ++move) {
      times.push_back(Move(move));
      // A key that the program has no use for.
      floor.push_back(TimedKey("plain", plain, Qt::Key_Insert));
    }
    growth_ = tessara::test::ResidentBytes() / 1024 - before;
    Print("card-move", first, times, floor);
  }

  /// To the frame's far corner: what covers a part of the card would change how that is painted.
  static void MoveAside(QWidget& plain, const QWidget& card) {
    const QWidget& frame = *plain.parentWidget();
    plain.move(frame.width() - plain.width(), frame.height() - plain.height());
    const QRect shown(card.mapTo(&frame, QPoint()), card.size());
    if (plain.geometry().intersects(shown)) std::abort();
  }

  /// To the end of the deck and back, over and over.
  double Move(int move) {
    const bool forward = move / 150 % 2 == 0;
    return TimedKey("NoteletCtl1", FocusOrWindow(), forward ? Qt::Key_PageDown : Qt::Key_PageUp);
  }

  double TimedKey(const char* painted, QWidget& receiver, Qt::Key key) {
    return Timed(
        painted,
        [&] {
          QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
          QCoreApplication::sendEvent(&receiver, &press);
        },
        [](QWidget&) {});
  }

  /// Our window and its floor in turn, behind one opening that is told by itself.
  void Compare(const Opening& opening) {
    std::function<QWidget*()> showPlain;
    const double first = Open(opening, [&](QWidget& window) { showPlain = PlainOf(window); });
    Times times;
    Times floor;
    for (int round = 0; round < kOpenings; ++round) {
      Settle();
      times.push_back(Open(opening, [](QWidget&) {}));
      Settle();
      floor.push_back(Timed(
          "plain", [&] { (void)showPlain(); }, CloseWindow));
    }
    Print(opening.window, first, times, floor);
  }

  double Open(const Opening& opening, const std::function<void(QWidget&)>& look) {
    QAction& entry = Entry(opening);
    return Timed(
        opening.window, [&] { entry.trigger(); },
        [&](QWidget& window) {
          look(window);
          opening.close(window);
        });
  }

  static std::function<QWidget*()> PlainOf(const QWidget& window) {
    QWidget* frame = &Named("MDIForm1");
    if (const auto* box = qobject_cast<const QMessageBox*>(&window)) {
      return [=, text = box->text(), buttons = box->standardButtons()] {
        return ShowPlain(new QMessageBox(QMessageBox::Question, "", text, buttons, frame));
      };
    }
    if (window.inherits("QInputDialog")) return [=] { return ShowPlain(new QInputDialog(frame)); };
    if (window.inherits("QFileDialog")) return [=] { return ShowPlain(new QFileDialog(frame)); };
    return [plain = PlainWindow(window)] { return plain.Show(); };
  }

  /// Milliseconds from the beginning of the action to the paint of what is named; what is done then
  /// does not count. A modal window is closed inside the action.
  double Timed(const char* painted, const std::function<void()>& action,
               const std::function<void(QWidget&)>& then) {
    const auto start = Clock::now();
    std::optional<double> time;
    awaited_ = painted;
    onPaint_ = [&](QWidget& window) {
      const double took = MillisecondsSince(start);
      then(window);
      time = took;
    };
    action();
    while (!time) QCoreApplication::processEvents();
    return *time;
  }

  /// What has been closed goes, and the window manager has told that the frame is in front again.
  static void Settle() {
    const auto start = Clock::now();
    const auto waits = [&] {
      return QApplication::activeWindow() == nullptr && MillisecondsSince(start) < kPatience;
    };
    while (MillisecondsSince(start) < kSettleMilliseconds || waits()) {
      QCoreApplication::processEvents();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  static QWidget& FocusOrWindow() {
    QWidget* receiver = QApplication::focusWidget();
    if (receiver == nullptr) receiver = QApplication::activeWindow();
    if (receiver == nullptr) std::abort();
    return *receiver;
  }

  static QWidget& Named(const char* name) {
    for (QWidget* widget : QApplication::allWidgets()) {
      if (widget->objectName() == QLatin1String(name)) return *widget;
    }
    std::abort();
  }

  static QAction& Entry(const Opening& opening) {
    const auto entries = Named(opening.menus).findChildren<QAction*>(opening.entry);
    if (entries.isEmpty()) std::abort();
    return *entries.front();
  }

  bool started_ = false;
  long long growth_ = 0;
  const char* awaited_ = nullptr;
  std::function<void(QWidget&)> onPaint_;
};

void InstallProbe() {
  qApp->installEventFilter(new SessionProbe(qApp));
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(InstallProbe)
