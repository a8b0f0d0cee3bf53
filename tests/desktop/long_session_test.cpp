// Long sessions with real widgets leave nothing behind. Under the address sanitizer the run also
// fails for any leak.

#include <QApplication>
#include <QTimer>
#include <doctest/doctest.h>

#include "platform/qt/qt_renderer.h"
#include "tests/desktop/event_loops.h"
#include "tests/support/memory_use.h"
#include "tests/support/program_desk.h"
#include "tests/support/window_tour.h"

namespace tessara::test {

namespace {

constexpr long kMegabyte = 1048576;

/// The whole program on screen, over a machine of fakes.
struct SessionOnScreen {
  FakeMachine fakes;
  Machine machine = fakes.Get();
  Program program{machine};
  QtRenderer renderer{program.Windows(), TESSARA_TEST_PICTURES};
  WindowTour tour{program, fakes, [this] { CloseInstructionsSoon(); }};

  SessionOnScreen() {
    StartAnew();
    program.Windows().SetRenderer(renderer);
    fakes.settings.values = {{u"ShowSplash", u"0"}, {u"FirstLoad", u"False"}};
    fakes.files.Put(u"/decks/birds.tsr", ProgramDesk::DeckBytes(20));
    fakes.files.Put(u"/decks/other.tsr", ProgramDesk::DeckBytes(200, u"T"));
    program.Main(u"/decks/birds.tsr");
    QApplication::processEvents();
  }

  frmMain& Deck() { return program.DeckWindowOf().Loaded(); }
  void CloseInstructionsSoon() {
    QTimer::singleShot(0, qApp, [this] { program.Instructions()->UserClose(); });
  }
};

/// Bytes in memory that are left of the work after it has been done once to warm up.
template <class Work>
long GrowthOf(const Work& work) {
  work();
  const long before = ResidentBytes();
  work();
  return ResidentBytes() - before;
}

}  // namespace

TEST_CASE("Every window opened and closed a hundred times leaves no widget behind") {
  constexpr int kRounds = 100;
  SessionOnScreen session;
  const auto goRounds = [&session] {
    for (int round = 0; round < kRounds / 2; ++round) {
      session.tour.GoRound();
      QApplication::processEvents();
    }
  };
  session.tour.GoRound();
  QApplication::processEvents();
  const auto widgets = QApplication::allWidgets().size();
  session.tour.visits = 0;
  CHECK(GrowthOf(goRounds) < kMegabyte);
  CHECK(session.tour.visits == kRounds * kVisitsOfRound);
  CHECK(QApplication::allWidgets().size() == widgets);
}

TEST_CASE("Ten thousand card moves on screen leave nothing behind") {
  SessionOnScreen session;
  const auto move = [&session] {
    for (int step = 0; step < 500; ++step) {
      MoveThroughDeck(session.Deck(), 10);
      QApplication::processEvents();
    }
  };
  CHECK(GrowthOf(move) < kMegabyte);
}

TEST_CASE("A hundred deck loads on screen leave nothing behind") {
  SessionOnScreen session;
  const auto load = [&session] {
    for (int count = 0; count < 100; ++count) {
      session.fakes.dialogs.files = {count % 2 == 0 ? u"/decks/other.tsr" : u"/decks/birds.tsr"};
      session.Deck().mnuOCD.Press();
      QApplication::processEvents();
    }
  };
  CHECK(GrowthOf(load) < kMegabyte);
  CHECK(session.fakes.messages.shown.empty());
}

}  // namespace tessara::test
