#include "tests/random_user/session.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QScreen>
#include <QTest>

#include "adapters/qt/text/qt_text.h"
#include "tests/desktop/support/event_loops.h"
#include "tests/random_user/required_ends.h"

namespace tessara::test {

namespace {

/// A step meets what is in front, once that has come there.
bool InFrontIsReady() {
  const QWidget* dialog = QApplication::activeModalWidget();
  const QWidget* active = QApplication::activeWindow();
  return QApplication::activePopupWidget() != nullptr ||
         (active != nullptr && (dialog == nullptr || dialog->isActiveWindow()));
}

void BringToFront() {
  constexpr int kMilliseconds = 2000;
  if (QTest::qWaitFor(InFrontIsReady, kMilliseconds)) return;
  QWidget* dialog = QApplication::activeModalWidget();
  for (QWidget* window : QApplication::topLevelWidgets()) {
    const bool wanted =
        dialog == nullptr ? window->objectName() == QLatin1String("MDIForm1") : window == dialog;
    if (wanted && window->isVisible()) window->activateWindow();
  }
  static_cast<void>(QTest::qWaitFor(InFrontIsReady, kMilliseconds));
}

/// What the program's end would have taken along.
void CloseOtherWindows() {
  for (QWidget* window : QApplication::topLevelWidgets()) window->close();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QApplication::clipboard()->clear(QClipboard::Clipboard);
  QApplication::clipboard()->clear(QClipboard::Selection);
}

}  // namespace

Session::Session(Dice& dice, int steps, RandomUser::Tell tell)
    : dice_(dice), stepsLeft_(steps), tell_(std::move(tell)), user_(dice, fixture_.files, tell_) {}

void Session::Run() {
  StartAnew();
  // Where no window comes up under it.
  QCursor::setPos(QApplication::primaryScreen()->geometry().bottomRight());
  QObject::connect(
      QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &takesSteps_,
      [this] { TakeStep(); }, Qt::QueuedConnection);
  Start();
  if (!Ended()) QApplication::exec();
  if (fault_.empty()) Check();
  tell_("-- the program has ended with " +
        std::to_string(fixture_.program.Windows().ExitStatus().value_or(-1)));
  CloseOtherWindows();
}

void Session::Start() {
  QStringList decks = UserFiles::GoodDecks();
  const QString deck = dice_.OneIn(3) ? QString() : fixture_.files.PathOf(dice_.OneOf(decks));
  tell_("-- start " + deck.section(u'/', -1).toStdString());
  fixture_.program.Main(FromQString(deck));
}

// It runs in whatever event loop waits: in a dialog's own, the steps before have not come to their
// end yet.
void Session::TakeStep() {
  if (Ended()) return;
  BringToFront();
  Check();
  if (!fault_.empty() || stepsLeft_ == 0) return Leave();
  --stepsLeft_;
  user_.TakeStep();
}

void Session::Leave() {
  leaving_ = true;
  fixture_.program.Windows().EndProgram(1);
}

void Session::Check() {
  fixture_.story.choosesBackDrop |= fixture_.program.Windows().ActiveForm() != nullptr &&
                                    fixture_.program.Windows().ActiveForm()->Name() == "FrmSetUp";
  const std::size_t lost = leaving_ ? 0 : fixture_.LostCards();
  if (lost > 0) fault_ = std::to_string(lost) + " cards are lost";
  const bool byError = Ended() && !leaving_ && fixture_.program.Windows().ExitStatus() != 0;
  if (byError && !IsRequiredEnd(fixture_.story.lastBox, fixture_.story)) {
    fault_ = "the program has ended with \"" + fixture_.story.lastBox + "\"";
  }
}

}  // namespace tessara::test
