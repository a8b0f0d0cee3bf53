#include <doctest/doctest.h>

#include "tests/support/deck_desk.h"
#include "tests/support/error_of.h"
#include "viewer/card_skins.h"

namespace tessara::test {

TEST_CASE("the window holds its size whatever is asked of it") {
  DeckDesk desk;
  desk.OpenStandardDeck(1);
  CHECK(desk.deck->Width() == 7230);
  CHECK(desk.deck->Height() == 6315);
  CHECK(desk.deck->ScaleWidth() == 7110);
  CHECK(desk.deck->ScaleHeight() == 5925);
  CHECK(desk.deck->Left() == (12000 - 7230) / 2);
  CHECK(desk.deck->Top() == (9000 - 6315) / 2);
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
    DeckDesk desk;
    desk.state.settings.largeCardColor = c.largeColor;
    desk.state.settings.largeCard3D = c.large3D;
    desk.state.settings.smallCardColor = c.smallColor;
    desk.state.settings.smallCard3D = c.small3D;
    desk.deck.Loaded();
    CHECK(desk.deck->card.CardColor() == c.cardColor);
    CHECK(desk.deck->cardShadow.Visible() == c.shadow);
    CHECK(desk.deck->answerCard.PictureOf().file == c.skin);
    CHECK(desk.deck->card.BoundsOf() == Bounds{120, 120, 6855, 3615});
  }
}

TEST_CASE("a setting that holds no number ends the program at the load") {
  DeckDesk desk;
  desk.state.settings.largeCard3D = u"deep";
  desk.windows.Run([&] { desk.deck.Loaded(); });
  CHECK(desk.fakes.messages.shown.back().text == u"Run-time error '13':\r\n\r\nType mismatch");
  CHECK(desk.windows.ExitStatus() == 1);
}

TEST_CASE("pictures are found by key in either list, and the missing ones are errors") {
  const TestFrame frame;
  CHECK(CardPicture(u"Flip", kWallPaperList, frame).file == "print/flip.png");
  CHECK(CardPicture(u"DESERT", kBackdropList, frame).width == 160);
  CHECK(ErrorOf([&] { return CardPicture(u"<NONE>", kWallPaperList, frame); }) == 35600);
  CHECK(ErrorOf([&] { return CardPicture(u"<NONE>", kBackdropList, frame); }) == 35600);
  CHECK(ErrorOf([&] { return CardPicture(u"PLAID", kBackdropList, frame); }) == 35601);
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
    DeckDesk desk;
    if (c.extended) {
      desk.OpenExtendedDeck(3);
      desk.deck->ConfigureExtendedCard(c.mode);
    } else {
      desk.OpenStandardDeck(3);
      desk.deck->ConfigureStandardCard(c.mode);
    }
    CHECK(desk.deck->creditPanel.Visible() == c.credit);
    CHECK(desk.deck->choicePanel.Visible() == c.choices);
    CHECK(desk.deck->answerCard.Visible() == c.answer);
    CHECK(desk.deck->flip.Caption() == c.flip);
    CHECK(desk.deck->flip.Enabled() == c.flipEnabled);
    CHECK(desk.deck->arrows[kPreviousCard].Enabled() == c.back);
    CHECK(desk.deck->arrows[kNextCard].Enabled() == c.next);
  }
}

TEST_CASE("a quiz shows the front of card 1 undoubled for a moment, a test hides nothing first") {
  DeckDesk desk;
  desk.AddTextCard(u"a & b", u"");
  desk.Open(kStandardDeck);
  desk.deck->ConfigureStandardCard(kQuizMode);
  CHECK(desk.deck->card.CardText() == u"a & b");
  desk.deck->answerCard.SetVisible(true);
  desk.deck->ConfigureStandardCard(kTestMode);
  CHECK(desk.deck->answerCard.Visible());
}

}  // namespace tessara::test
