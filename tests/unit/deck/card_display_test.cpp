#include "deck/card_display.h"

#include <doctest/doctest.h>

namespace tessara::test {

TEST_CASE("the arrows are on where there is a card to go to") {
  struct Case {
    std::int16_t current;
    std::int16_t count;
    bool back;
    bool on;
  };
  const Case cases[] = {
      {0, 0, false, false}, {1, 0, false, false}, {5, 0, false, false},
      {1, 1, false, false}, {1, 2, false, true},  {2, 2, true, false},
      {2, 3, true, true},   {0, 2, true, true},   {4, 3, true, false},
  };
  for (const Case& c : cases) {
    CAPTURE(c.current);
    CAPTURE(c.count);
    ProgramState state;
    state.deck.currentCard = c.current;
    state.deck.cardCount = c.count;
    MoveButtons arrows{"cmdMove"};
    SetMoveButtons(arrows, state);
    CHECK(arrows[kPreviousCard].Enabled() == c.back);
    CHECK(arrows[kNextCard].Enabled() == c.on);
  }
}

TEST_CASE("every ampersand is doubled, doubled ones too") {
  CHECK(DoubleAmps(u"").empty());
  CHECK(DoubleAmps(u"salt") == u"salt");
  CHECK(DoubleAmps(u"salt & pepper") == u"salt && pepper");
  CHECK(DoubleAmps(u"&&") == u"&&&&");
  CHECK(DoubleAmps(u"&a\r\n&") == u"&&a\r\n&&");
}

}  // namespace tessara::test
