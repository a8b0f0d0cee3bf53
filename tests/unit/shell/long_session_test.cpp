// Long sessions leave nothing behind. Under the address sanitizer the run also fails for any leak.

#include <doctest/doctest.h>

#include "tests/support/memory_use.h"
#include "tests/support/program_fixture.h"
#include "tests/support/window_tour.h"

namespace tessara::test {

namespace {

constexpr int kRounds = 100;
constexpr long kMegabyte = 1048576;

struct LongSession : ProgramFixture {
  WindowTour tour{program, fakes, [] {}};

  LongSession() {
    fakes.settings.values[u"ShowSplash"] = u"1";
    fakes.files.Put(u"/decks/birds.tsr", DeckBytes(20));
    fakes.files.Put(u"/opt/tessara/Notelet.xlt", "");
    Start(u"/decks/birds.tsr");
  }
};

/// What is left of the work after it has been done once to warm up.
template <class Work>
MemoryUse GrowthOf(const Work& work) {
  work();
  const MemoryUse before;
  work();
  const MemoryUse after;
  return {after.heap - before.heap, after.resident - before.resident};
}

}  // namespace

TEST_CASE("every window opened and closed a hundred times leaves nothing behind") {
  LongSession session;
  const MemoryUse growth = GrowthOf([&] {
    for (int round = 0; round < kRounds / 2; ++round) {
      session.tour.GoRound();
      session.renderer.activated.clear();
    }
  });
  CHECK(session.tour.visits == kRounds * kVisitsOfRound);
  CHECK(session.program.Windows().LoadedForms().size() == 2);
  CHECK(growth.heap < 10000);
  CHECK(growth.resident < kMegabyte);
}

TEST_CASE("a program started and ended a hundred times leaves nothing behind") {
  const MemoryUse growth = GrowthOf([] {
    for (int round = 0; round < kRounds / 2; ++round) {
      LongSession session;
      session.tour.GoRound();
      session.fakes.messages.answers = {MessageAnswer::kYes};
      session.Frame().UserClose();
      CHECK(session.renderer.exitStatus == 0);
    }
  });
  CHECK(growth.heap < 10000);
  CHECK(growth.resident < kMegabyte);
}

TEST_CASE("ten thousand card moves leave nothing behind") {
  LongSession session;
  const MemoryUse growth = GrowthOf([&] { MoveThroughDeck(session.Deck(), 5000); });
  CHECK(growth.heap < 10000);
  CHECK(growth.resident < kMegabyte);
}

TEST_CASE("a hundred deck loads leave nothing behind") {
  LongSession session;
  session.fakes.files.Put(u"/decks/other.tsr", ProgramFixture::DeckBytes(200, u"T"));
  const MemoryUse growth = GrowthOf([&] {
    for (int load = 0; load < kRounds; ++load) {
      session.fakes.dialogs.files = {load % 2 == 0 ? u"/decks/other.tsr" : u"/decks/birds.tsr"};
      session.Deck().openDeck.Press();
      session.fakes.dialogs.fileRequests.clear();
      session.fakes.desktop.pointers.clear();
    }
  });
  CHECK(session.fakes.messages.shown.empty());
  CHECK(growth.heap < 10000);
  CHECK(growth.resident < kMegabyte);
}

}  // namespace tessara::test
