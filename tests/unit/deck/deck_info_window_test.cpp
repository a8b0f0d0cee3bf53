#include "deck/deck_info_window.h"

#include <doctest/doctest.h>

#include "tests/support/life_fixture.h"

namespace tessara::test {

namespace {

const FakeMessages::Shown kReturnBox = {
    u"The information in this form has changed, do you want to return to the form and save it", 4,
    u"Deck Information"};

/// The deck window with one card, and the information window in front of it.
struct InfoFixture : LifeFixture {
  InfoFixture() {
    BuildDeck(1);
    state.deck.changed = false;
  }
  void OpenInfo() {
    Run([this] { deck->ShowDeckInfo(); });
  }
  void Type(int box, const Text& text) {
    TextBox& edited = info->fields[box];
    edited.UserEdit({0, edited.TextOf().size(), text});
  }
  void CloseInfo() { info->close.Press(); }
  void SaveInfo() { info->save.Press(); }
};

}  // namespace

TEST_CASE("the information window has its captions, limits and size") {
  InfoFixture fixture;
  fixture.OpenInfo();
  CHECK(fixture.info->Caption() == u"Tessara Information");
  const TextView captions[] = {u"Title", u"Created By", u"Description", u"Date Created:",
                               u"Deck Type:"};
  for (int index = 0; index < 5; ++index) {
    CHECK(fixture.info->headings[index].Caption() == captions[index]);
  }
  CHECK(fixture.info->close.Caption() == u"&Close");
  CHECK(fixture.info->save.Caption() == u"&Save");
  CHECK_FALSE(fixture.info->save.Enabled());
  const int limits[] = {75, 75, 400};
  for (int index = 0; index < 3; ++index) {
    CHECK(fixture.info->fields[index].MaxLength() == limits[index]);
    CHECK(fixture.info->fields[index].MultiLine() == (index == 2));
    CHECK(fixture.info->fields[index].VerticalScrollBar() == (index == 2));
  }
  CHECK(fixture.info->Height() == 4650);
  CHECK(fixture.info->Width() == 6270);
}

TEST_CASE(
    "every control stands inside the window, and every box and picture has a name to be read out") {
  InfoFixture fixture;
  fixture.OpenInfo();
  for (const Control* control : fixture.info->Controls()) {
    CAPTURE(control->Name());
    const Bounds& place = control->BoundsOf();
    CHECK(place.left >= 0);
    CHECK(place.top >= 0);
    CHECK(place.left + place.width <= fixture.info->ScaleWidth());
    CHECK(place.top + place.height <= fixture.info->ScaleHeight());
    const bool silent =
        control->Kind() != ControlKind::kTextBox && control->Kind() != ControlKind::kImage;
    CHECK(control->AccessibleName().empty() == silent);
  }
}

TEST_CASE("a deck without information shows the defaults as they stand") {
  InfoFixture fixture;
  fixture.OpenInfo();
  CHECK(fixture.info->date.Caption() == u"1/5/2026");
  CHECK(fixture.info->kind.Caption() == u" Standard");
  CHECK(fixture.info->cardCount.Caption() == u"Number of cards:  1");
  CHECK(fixture.info->fields[kTitleField].TextOf() == u"Enter Title Here");
  CHECK(fixture.info->fields[kAuthorField].TextOf() == u"Your Name Here");
  CHECK(fixture.info->fields[kDescriptionField].TextOf() == u"Deck Description Here");
  CHECK_FALSE(fixture.state.deck.changed);
}

TEST_CASE("what the deck has is shown behind a blank") {
  InfoFixture fixture;
  fixture.state.deck.date = u"2/3/1999";
  fixture.state.deck.title = u"Enter Title Here";
  fixture.state.deck.author = u" Me";
  fixture.state.deck.description = u"All";
  fixture.state.deck.kind = kExtendedDeck;
  fixture.state.deck.cardCount = 0;
  fixture.OpenInfo();
  CHECK(fixture.info->date.Caption() == u" 2/3/1999");
  CHECK(fixture.info->kind.Caption() == u" Extended");
  CHECK(fixture.info->cardCount.Caption() == u"Number of cards:  0");
  CHECK(fixture.info->fields[kTitleField].TextOf() == u" Enter Title Here");
  CHECK(fixture.info->fields[kAuthorField].TextOf() == u"  Me");
  CHECK(fixture.info->fields[kDescriptionField].TextOf() == u" All");
}

TEST_CASE("a value gets a blank before it, a default does not, and 0 is a value") {
  CHECK(InfoValueOrDefault(u"", u"default") == u"default");
  CHECK(InfoValueOrDefault(u"value", u"default") == u" value");
  CHECK(InfoValueOrDefault(u"0", u"default") == u" 0");
  CHECK(InfoValueOrDefault(u" ", u"default") == u"  ");
}

TEST_CASE("the deck window takes no input while the information window is open") {
  InfoFixture fixture;
  fixture.OpenInfo();
  CHECK_FALSE(fixture.deck->Enabled());
  CHECK(fixture.windows.ActiveForm() == &fixture.info.Loaded());
  fixture.CloseInfo();
  CHECK(fixture.deck->Enabled());
  CHECK_FALSE(fixture.info.IsLoaded());
  CHECK(fixture.TakeBoxes().empty());
}

TEST_CASE("typing marks the deck as changed and offers to save") {
  for (const int box : {0, 1, 2}) {
    InfoFixture fixture;
    fixture.OpenInfo();
    fixture.Type(box, u"typed");
    CHECK(fixture.state.deck.changed);
    CHECK(fixture.info->save.Enabled());
  }
}

TEST_CASE("saving the information fills row 0 and the strings, and leaves the deck changed") {
  InfoFixture fixture;
  fixture.state.deck.date = u"2/3/1999";
  fixture.state.deck.typeName = u"kept";
  fixture.OpenInfo();
  fixture.Type(0, u"Capitals");
  fixture.Type(1, u"Me");
  fixture.Type(2, u"All\r\nof them");
  fixture.SaveInfo();
  CHECK_FALSE(fixture.info->save.Enabled());
  CHECK(fixture.state.deck.changed);
  const TextView row[] = {u"",          u"I",        u"",   u"0", u" 2/3/1999",
                          u" Standard", u"Capitals", u"Me", u"",  u"All\r\nof them"};
  for (int column = 0; column < kColumns; ++column) {
    CHECK(fixture.state.deck.Cell(kInfoRow, column) == row[column]);
  }
  CHECK(fixture.state.deck.cardPresent.At(kInfoRow) == 1);
  CHECK(fixture.state.deck.title == u"Capitals");
  CHECK(fixture.state.deck.author == u"Me");
  CHECK(fixture.state.deck.description == u"All\r\nof them");
  CHECK(fixture.state.deck.date == u"2/3/1999");
  CHECK(fixture.state.deck.typeName == u"kept");
  CHECK(fixture.fakes.files.files.empty());
}

TEST_CASE("closing with edits asks; Yes stays, No drops them and leaves the deck changed") {
  InfoFixture fixture;
  fixture.OpenInfo();
  fixture.Type(0, u"Capitals");
  fixture.Answer(MessageAnswer::kYes);
  fixture.CloseInfo();
  CHECK(fixture.info.IsLoaded());
  CHECK(fixture.info->fields[kTitleField].TextOf() == u"Capitals");
  fixture.Answer(MessageAnswer::kNo);
  fixture.CloseInfo();
  CHECK_FALSE(fixture.info.IsLoaded());
  CHECK(fixture.TakeBoxes() == Boxes{kReturnBox, kReturnBox});
  CHECK(fixture.state.deck.changed);
  CHECK(fixture.state.deck.title.empty());
  CHECK(fixture.state.deck.Cell(kInfoRow, kInfoTitle).empty());
}

TEST_CASE("closing the window by its frame asks nothing and enables the deck window") {
  InfoFixture fixture;
  fixture.OpenInfo();
  fixture.Type(0, u"Capitals");
  fixture.info->UserClose();
  CHECK_FALSE(fixture.info.IsLoaded());
  CHECK(fixture.TakeBoxes().empty());
  CHECK(fixture.deck->Enabled());
}

TEST_CASE("a box that was emptied is stored empty and shows its default the next time") {
  InfoFixture fixture;
  fixture.state.deck.title = u"Capitals";
  fixture.OpenInfo();
  fixture.Type(0, u"");
  fixture.SaveInfo();
  CHECK(fixture.state.deck.Cell(kInfoRow, kInfoTitle).empty());
  fixture.CloseInfo();
  fixture.OpenInfo();
  CHECK(fixture.info->fields[kTitleField].TextOf() == u"Enter Title Here");
}

TEST_CASE("each opening and saving of the window adds a blank") {
  InfoFixture fixture;
  for (const TextView title : {u"Enter Title Here", u" Enter Title Here", u"  Enter Title Here"}) {
    fixture.OpenInfo();
    CHECK(fixture.info->fields[kTitleField].TextOf() == title);
    CollectDeckInfo(fixture.state, fixture.info.Loaded());
    fixture.CloseInfo();
  }
}

TEST_CASE("the number of cards is that of the moment when the window was loaded") {
  InfoFixture fixture;
  fixture.OpenInfo();
  fixture.BuildCard(u"second", u"");
  fixture.OpenInfo();
  CHECK(fixture.info->cardCount.Caption() == u"Number of cards:  1");
}

TEST_CASE("a click on the window closes the About box") {
  InfoFixture fixture;
  fixture.OpenInfo();
  fixture.info->UserClick();
  CHECK(fixture.frame.aboutClosed == 1);
}

TEST_CASE("the window comes on screen when a save loads it") {
  InfoFixture fixture;
  fixture.Choose(u"/decks/a.tsr");
  fixture.Save();
  CHECK(fixture.info.IsLoaded());
  CHECK(fixture.info->Visible());
  CHECK(fixture.windows.ActiveForm() == &fixture.info.Loaded());
  CHECK(fixture.deck->Enabled());
  fixture.Type(0, u"typed");
  CHECK(fixture.state.deck.changed);
}

TEST_CASE("brought up by a save, the window stands beside the deck where the frame has room") {
  struct Case {
    int frameWidth, frameHeight;  ///< client area
    int deckLeft, deckTop;
    int left, top;
  };
  const Case cases[] = {
      {20490, 12000, 4000, 300, 4000 + 7230, 300},  // right of it
      {20490, 12000, 9000, 300, 9000 - 6270, 300},  // left
      {9000, 12000, 500, 300, 500, 300 + 6315},     // below
      {9000, 12000, 500, 5000, 500, 5000 - 4650},   // above
      {12000, 9000, 2385, 1342, 0, 0},              // no room
  };
  for (const Case& c : cases) {
    InfoFixture fixture;
    fixture.frame.width = c.frameWidth + 120;
    fixture.frame.height = c.frameHeight + 390;
    fixture.deck->SetLeft(c.deckLeft);
    fixture.deck->SetTop(c.deckTop);
    fixture.info.Loaded();
    CHECK(fixture.info->Visible());
    CHECK(fixture.info->Left() == c.left);
    CHECK(fixture.info->Top() == c.top);
  }
}

TEST_CASE("beside a deck that is not on show the window stands nowhere in particular") {
  InfoFixture fixture;
  fixture.frame.width = 30000;
  fixture.deck->Hide();
  fixture.info.Loaded();
  CHECK(fixture.info->Left() == 0);
  CHECK(fixture.info->Top() == 0);
}

TEST_CASE("the menu's command brings the window up in the middle of the frame") {
  InfoFixture fixture;
  fixture.renderer.frameScaleWidth = 30000;
  fixture.OpenInfo();
  CHECK(fixture.info->Left() == (30000 - 6270) / 2);
}

TEST_CASE("Escape closes the window as its button does") {
  InfoFixture fixture;
  fixture.OpenInfo();
  fixture.Type(kTitleField, u"x");
  fixture.fakes.messages.answers = {MessageAnswer::kYes, MessageAnswer::kNo};
  CHECK(fixture.info->UserEscape());
  CHECK(fixture.info.IsLoaded());
  CHECK(fixture.info->UserEscape());
  CHECK_FALSE(fixture.info.IsLoaded());
  CHECK(fixture.fakes.messages.Take() == Boxes{kReturnBox, kReturnBox});
}

}  // namespace tessara::test
