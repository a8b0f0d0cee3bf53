#include <doctest/doctest.h>

#include "tests/support/deck_fixture.h"

namespace tessara::test {

TEST_CASE("the window holds its size whatever is asked of it") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(1);
  CHECK(fixture.deck->Width() == 7230);
  CHECK(fixture.deck->Height() == 6315);
  CHECK(fixture.deck->ScaleWidth() == 7110);
  CHECK(fixture.deck->ScaleHeight() == 5925);
  CHECK(fixture.deck->Left() == (12000 - 7230) / 2);
  CHECK(fixture.deck->Top() == (9000 - 6315) / 2);
}

TEST_CASE("the settings choose the colours, the shadow and the skin") {
  struct Case {
    TextView largeColor, large3D, smallColor, small3D;
    TextView cardColor;
    bool shadow;
    const char* skin;
  };
  const Case cases[] = {
      {u"0", u"1", u"0", u"1", u"Q", true, "skins/white_3d.png"},
      {u"1", u"0", u"0", u"0", u"A", false, "skins/white_flat.png"},
      {u"1.0", u"1.0", u"1", u"1.0", u"A", true, "skins/yellow_3d.png"},
      {u"2", u"2", u"1", u"2", u"Q", false, "skins/yellow_flat.png"},
      {u"0", u"1", u"2", u"0", u"Q", true, "skins/white_3d.png"},    // the design's own
      {u"0", u"1", u"0.0", u"0", u"Q", true, "skins/white_3d.png"},  // compared as text
  };
  for (const Case& c : cases) {
    DeckFixture fixture;
    fixture.state.settings.largeCardColor = c.largeColor;
    fixture.state.settings.largeCard3D = c.large3D;
    fixture.state.settings.smallCardColor = c.smallColor;
    fixture.state.settings.smallCard3D = c.small3D;
    fixture.deck.Loaded();
    CHECK(fixture.deck->card.CardColor() == c.cardColor);
    CHECK(fixture.deck->cardShadow.Visible() == c.shadow);
    CHECK(fixture.deck->answerCard.PictureOf().file == c.skin);
    CHECK(fixture.deck->card.BoundsOf() == Bounds{120, 120, 6855, 3615});
  }
}

TEST_CASE("a setting that holds no number ends the program at the load") {
  DeckFixture fixture;
  fixture.state.settings.largeCard3D = u"deep";
  fixture.windows.Run([&] { fixture.deck.Loaded(); });
  CHECK(fixture.fakes.messages.shown.back().text == u"Run-time error '13':\r\n\r\nType mismatch");
  CHECK(fixture.windows.ExitStatus() == 1);
}

TEST_CASE("the shapes of a deck type and a mode") {
  struct Case {
    bool extended;
    CardMode mode;
    bool credit, choices, answer;
    TextView flip;
    bool flipEnabled, back, next;
  };
  const Case cases[] = {
      {false, kStudyMode, false, false, false, u"&Show Back", true, false, true},
      {false, kQuizMode, false, false, false, u"&Show Back", true, false, true},
      {false, kTestMode, true, false, false, u"&Show Back", true, false, true},
      {true, kStudyMode, false, false, true, u"&Hide Answer", false, true, true},
      {true, kQuizMode, false, false, false, u"&Show Answer", true, true, true},
      {true, kTestMode, false, true, false, u"&Hide Answer", false, false, false},
      {true, static_cast<CardMode>(9), false, false, false, u"&Hide Answer", false, false, true},
  };
  for (const Case& c : cases) {
    CAPTURE(c.extended);
    CAPTURE(c.mode);
    DeckFixture fixture;
    if (c.extended) {
      fixture.OpenExtendedDeck(3);
      fixture.deck->ConfigureExtendedCard(c.mode);
    } else {
      fixture.OpenStandardDeck(3);
      fixture.deck->ConfigureStandardCard(c.mode);
    }
    CHECK(fixture.deck->creditPanel.Visible() == c.credit);
    CHECK(fixture.deck->choicePanel.Visible() == c.choices);
    CHECK(fixture.deck->answerCard.Visible() == c.answer);
    CHECK(fixture.deck->flip.Caption() == c.flip);
    CHECK(fixture.deck->flip.Enabled() == c.flipEnabled);
    CHECK(fixture.deck->arrows[kPreviousCard].Enabled() == c.back);
    CHECK(fixture.deck->arrows[kNextCard].Enabled() == c.next);
  }
}

TEST_CASE("a quiz shows the front of card 1 undoubled for a moment, a test hides nothing first") {
  DeckFixture fixture;
  fixture.AddTextCard(u"a & b", u"");
  fixture.Open(kStandardDeck);
  fixture.deck->ConfigureStandardCard(kQuizMode);
  CHECK(fixture.deck->card.CardText() == u"a & b");
  fixture.deck->answerCard.SetVisible(true);
  fixture.deck->ConfigureStandardCard(kTestMode);
  CHECK(fixture.deck->answerCard.Visible());
}

}  // namespace tessara::test
