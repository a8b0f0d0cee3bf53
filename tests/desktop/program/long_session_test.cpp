// Long sessions with real widgets leave nothing behind. Under the address sanitizer the run also
// fails for any leak.

#include <QApplication>
#include <QTimer>
#include <doctest/doctest.h>

#include "adapters/qt/devices/help_loader.h"
#include "adapters/qt/devices/print_module.h"
#include "adapters/qt/windows/qt_renderer.h"
#include "base/utf8.h"
#include "tests/desktop/support/event_loops.h"
#include "tests/desktop/support/program_on_screen.h"
#include "tests/support/memory_use.h"
#include "tests/support/program_fixture.h"
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

  explicit SessionOnScreen(const Text& showSplash = u"0") {
    StartAnew();
    program.Windows().SetRenderer(renderer);
    fakes.settings.values = {{u"ShowSplash", showSplash}, {u"FirstLoad", u"False"}};
    fakes.files.Put(u"/decks/birds.tsr", ProgramFixture::DeckBytes(20));
    fakes.files.Put(u"/decks/other.tsr", ProgramFixture::DeckBytes(200, u"T"));
    program.Main(u"/decks/birds.tsr");
    QApplication::processEvents();
  }

  DeckWindow& Deck() { return program.DeckWindowOf().Loaded(); }
  void CloseInstructionsSoon() {
    QTimer::singleShot(0, qApp, [this] { program.SeparationSteps()->UserClose(); });
  }
};

/// The windows that are Qt's own, or are no forms: boxes, dialogs and the help.
struct BoxesOnScreen : ProgramOnScreen {
  PrintModuleSource printing{FromUtf8(TESSARA_TEST_MODULES)};
  int closed = 0;

  BoxesOnScreen() {
    folder.Write("birds.tsr", ProgramFixture::DeckBytes(20));
    Start(u"birds.tsr");
  }

  void GoRound() {
    DeckWindow& deck = program.DeckWindowOf().Loaded();
    Leave([&] { deck.goToCard.Press(); });
    Leave([&] { deck.openDeck.Press(); });
    Leave([&] { deck.saveDeckAs.Press(); });
    Leave([&] { (void)printing.Module().AskPrinter(&Top("MDIForm1")); });
    Leave([&] { deck.deleteCard.Press(); });
    // Asking alone counts as a change, which the next opening would ask about.
    state.deck.changed = false;
    ShowHelpWithModule(FromUtf8(TESSARA_TEST_MODULES), FromUtf8(TESSARA_TEST_HELP));
    closed += Top("HelpViewer").close() ? 1 : 0;
    Settle();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

 private:
  void Leave(const std::function<void()>& ask) {
    WhenAsked([](QWidget& dialog) {
      auto* box = qobject_cast<QMessageBox*>(&dialog);
      if (box != nullptr) {
        box->button(QMessageBox::No)->click();
      } else {
        dialog.close();
      }
    });
    ask();
    closed += static_cast<int>(TakeAsked().size());
  }
};

/// Boxes take their time: TESSARA_LONG_SESSION is how often a long session opens them.
int BoxRounds() {
  constexpr int kUsually = 10;
  const int asked = qEnvironmentVariableIntValue("TESSARA_LONG_SESSION");
  return asked > 0 ? asked : kUsually;
}

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
  constexpr int kRounds = Repeated(100);
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

TEST_CASE("Every box and the help opened and closed over and over leave no widget behind") {
  // Save As has something to say when it is left.
  constexpr int kBoxesOfRound = 7;
  const int rounds = BoxRounds();
  BoxesOnScreen session;
  const auto goRounds = [&] {
    for (int round = 0; round < rounds / 2; ++round) session.GoRound();
  };
  session.GoRound();
  const auto widgets = QApplication::allWidgets().size();
  session.closed = 0;
  CHECK(GrowthOf(goRounds) < kMegabyte);
  CHECK(session.closed == rounds * kBoxesOfRound);
  CHECK(QApplication::allWidgets().size() == widgets);
}

TEST_CASE("A program with its splash started and ended a hundred times leaves nothing behind") {
  const auto start = [] {
    for (int count = 0; count < Repeated(50); ++count) {
      SessionOnScreen session(u"1");
      CHECK(session.fakes.desktop.yields > 0);
    }
  };
  CHECK(GrowthOf(start) < kMegabyte);
}

TEST_CASE("Ten thousand card moves on screen leave nothing behind") {
  SessionOnScreen session;
  const auto move = [&session] {
    for (int step = 0; step < Repeated(500); ++step) {
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
      session.Deck().openDeck.Press();
      QApplication::processEvents();
    }
  };
  CHECK(GrowthOf(load) < kMegabyte);
  CHECK(session.fakes.messages.shown.empty());
}

}  // namespace tessara::test
