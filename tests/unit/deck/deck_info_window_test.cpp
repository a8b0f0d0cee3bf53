#include "deck/deck_info_window.h"

#include <doctest/doctest.h>

#include "tests/support/life_desk.h"

namespace tessara::test {

namespace {

const FakeMessages::Shown kReturnBox = {
    u"The information in this form has changed, do you want to return to the form and save it", 4,
    u"Deck Information"};

/// The deck window with one card, and the information window in front of it.
struct InfoDesk : LifeDesk {
  InfoDesk() {
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
  InfoDesk desk;
  desk.OpenInfo();
  CHECK(desk.info->Caption() == u"Tessara Information");
  const TextView captions[] = {u"Title", u"Created By", u"Description", u"Date Created:",
                               u"Deck Type:"};
  for (int index = 0; index < 5; ++index) {
    CHECK(desk.info->headings[index].Caption() == captions[index]);
  }
  CHECK(desk.info->close.Caption() == u"&Close");
  CHECK(desk.info->save.Caption() == u"&Save");
  CHECK_FALSE(desk.info->save.Enabled());
  const int limits[] = {75, 75, 400};
  for (int index = 0; index < 3; ++index) {
    CHECK(desk.info->fields[index].MaxLength() == limits[index]);
    CHECK(desk.info->fields[index].MultiLine() == (index == 2));
  }
  CHECK(desk.info->Height() == 4650);
  CHECK(desk.info->Width() == 6270);
}

TEST_CASE(
    "every control stands inside the window, and every box and picture has a name to be read out") {
  InfoDesk desk;
  desk.OpenInfo();
  for (const Control* control : desk.info->Controls()) {
    CAPTURE(control->Name());
    const Bounds& place = control->BoundsOf();
    CHECK(place.left >= 0);
    CHECK(place.top >= 0);
    CHECK(place.left + place.width <= desk.info->ScaleWidth());
    CHECK(place.top + place.height <= desk.info->ScaleHeight());
    const bool silent =
        control->Kind() != ControlKind::kTextBox && control->Kind() != ControlKind::kImage;
    CHECK(control->AccessibleName().empty() == silent);
  }
}

TEST_CASE("a deck without information shows the defaults as they stand") {
  InfoDesk desk;
  desk.OpenInfo();
  CHECK(desk.info->date.Caption() == u"1/5/2026");
  CHECK(desk.info->kind.Caption() == u" Standard");
  CHECK(desk.info->cardCount.Caption() == u"Number of cards:  1");
  CHECK(desk.info->fields[kTitleField].TextOf() == u"Enter Title Here");
  CHECK(desk.info->fields[kAuthorField].TextOf() == u"Your Name Here");
  CHECK(desk.info->fields[kDescriptionField].TextOf() == u"Deck Description Here");
  CHECK_FALSE(desk.state.deck.changed);
}

TEST_CASE("what the deck has is shown behind a blank") {
  InfoDesk desk;
  desk.state.deck.date = u"2/3/1999";
  desk.state.deck.title = u"Enter Title Here";
  desk.state.deck.author = u" Me";
  desk.state.deck.description = u"All";
  desk.state.deck.kind = kExtendedDeck;
  desk.state.deck.cardCount = 0;
  desk.OpenInfo();
  CHECK(desk.info->date.Caption() == u" 2/3/1999");
  CHECK(desk.info->kind.Caption() == u" Extended");
  CHECK(desk.info->cardCount.Caption() == u"Number of cards:  0");
  CHECK(desk.info->fields[kTitleField].TextOf() == u" Enter Title Here");
  CHECK(desk.info->fields[kAuthorField].TextOf() == u"  Me");
  CHECK(desk.info->fields[kDescriptionField].TextOf() == u" All");
}

TEST_CASE("a value gets a blank before it, a default does not, and 0 is a value") {
  CHECK(InfoValueOrDefault(u"", u"default") == u"default");
  CHECK(InfoValueOrDefault(u"value", u"default") == u" value");
  CHECK(InfoValueOrDefault(u"0", u"default") == u" 0");
  CHECK(InfoValueOrDefault(u" ", u"default") == u"  ");
}

TEST_CASE("the deck window takes no input while the information window is open") {
  InfoDesk desk;
  desk.OpenInfo();
  CHECK_FALSE(desk.deck->Enabled());
  CHECK(desk.windows.ActiveForm() == &desk.info.Loaded());
  desk.CloseInfo();
  CHECK(desk.deck->Enabled());
  CHECK_FALSE(desk.info.IsLoaded());
  CHECK(desk.TakeBoxes().empty());
}

TEST_CASE("typing marks the deck as changed and offers to save") {
  for (const int box : {0, 1, 2}) {
    InfoDesk desk;
    desk.OpenInfo();
    desk.Type(box, u"typed");
    CHECK(desk.state.deck.changed);
    CHECK(desk.info->save.Enabled());
  }
}

TEST_CASE("saving the information fills row 0 and the strings, and leaves the deck changed") {
  InfoDesk desk;
  desk.state.deck.date = u"2/3/1999";
  desk.state.deck.typeName = u"kept";
  desk.OpenInfo();
  desk.Type(0, u"Capitals");
  desk.Type(1, u"Me");
  desk.Type(2, u"All\r\nof them");
  desk.SaveInfo();
  CHECK_FALSE(desk.info->save.Enabled());
  CHECK(desk.state.deck.changed);
  const TextView row[] = {u"",          u"I",        u"",   u"0", u" 2/3/1999",
                          u" Standard", u"Capitals", u"Me", u"",  u"All\r\nof them"};
  for (int column = 0; column < kColumns; ++column) {
    CHECK(desk.state.deck.Cell(kInfoRow, column) == row[column]);
  }
  CHECK(desk.state.deck.cardPresent.At(kInfoRow) == 1);
  CHECK(desk.state.deck.title == u"Capitals");
  CHECK(desk.state.deck.author == u"Me");
  CHECK(desk.state.deck.description == u"All\r\nof them");
  CHECK(desk.state.deck.date == u"2/3/1999");
  CHECK(desk.state.deck.typeName == u"kept");
  CHECK(desk.fakes.files.files.empty());
}

TEST_CASE("closing with edits asks; Yes stays, No drops them and leaves the deck changed") {
  InfoDesk desk;
  desk.OpenInfo();
  desk.Type(0, u"Capitals");
  desk.Answer(MessageAnswer::kYes);
  desk.CloseInfo();
  CHECK(desk.info.IsLoaded());
  CHECK(desk.info->fields[kTitleField].TextOf() == u"Capitals");
  desk.Answer(MessageAnswer::kNo);
  desk.CloseInfo();
  CHECK_FALSE(desk.info.IsLoaded());
  CHECK(desk.TakeBoxes() == Boxes{kReturnBox, kReturnBox});
  CHECK(desk.state.deck.changed);
  CHECK(desk.state.deck.title.empty());
  CHECK(desk.state.deck.Cell(kInfoRow, kInfoTitle).empty());
}

TEST_CASE("closing the window by its frame asks nothing and enables the deck window") {
  InfoDesk desk;
  desk.OpenInfo();
  desk.Type(0, u"Capitals");
  desk.info->UserClose();
  CHECK_FALSE(desk.info.IsLoaded());
  CHECK(desk.TakeBoxes().empty());
  CHECK(desk.deck->Enabled());
}

TEST_CASE("a box that was emptied is stored empty and shows its default the next time") {
  InfoDesk desk;
  desk.state.deck.title = u"Capitals";
  desk.OpenInfo();
  desk.Type(0, u"");
  desk.SaveInfo();
  CHECK(desk.state.deck.Cell(kInfoRow, kInfoTitle).empty());
  desk.CloseInfo();
  desk.OpenInfo();
  CHECK(desk.info->fields[kTitleField].TextOf() == u"Enter Title Here");
}

TEST_CASE("each opening and saving of the window adds a blank") {
  InfoDesk desk;
  for (const TextView title : {u"Enter Title Here", u" Enter Title Here", u"  Enter Title Here"}) {
    desk.OpenInfo();
    CHECK(desk.info->fields[kTitleField].TextOf() == title);
    CollectDeckInfo(desk.state, desk.info.Loaded());
    desk.CloseInfo();
  }
}

TEST_CASE("the number of cards is that of the moment when the window was loaded") {
  InfoDesk desk;
  desk.OpenInfo();
  desk.BuildCard(u"second", u"");
  desk.OpenInfo();
  CHECK(desk.info->cardCount.Caption() == u"Number of cards:  1");
}

TEST_CASE("a click on the window closes the About box") {
  InfoDesk desk;
  desk.OpenInfo();
  desk.info->UserClick();
  CHECK(desk.frame.aboutClosed == 1);
}

TEST_CASE("the window comes on screen when a save loads it") {
  InfoDesk desk;
  desk.Choose(u"/decks/a.tsr");
  desk.Save();
  CHECK(desk.info.IsLoaded());
  CHECK(desk.info->Visible());
  CHECK(desk.windows.ActiveForm() == &desk.info.Loaded());
  CHECK(desk.deck->Enabled());
  desk.Type(0, u"typed");
  CHECK(desk.state.deck.changed);
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
    InfoDesk desk;
    desk.frame.width = c.frameWidth + 120;
    desk.frame.height = c.frameHeight + 390;
    desk.deck->SetLeft(c.deckLeft);
    desk.deck->SetTop(c.deckTop);
    desk.info.Loaded();
    CHECK(desk.info->Visible());
    CHECK(desk.info->Left() == c.left);
    CHECK(desk.info->Top() == c.top);
  }
}

TEST_CASE("the menu's command brings the window up in the middle of the frame") {
  InfoDesk desk;
  desk.frame.width = 30000;
  desk.OpenInfo();
  CHECK(desk.info->Left() == (desk.frame.ScaleWidth() - 6270) / 2);
}

TEST_CASE("Escape closes the window as its button does") {
  InfoDesk desk;
  desk.OpenInfo();
  desk.Type(kTitleField, u"x");
  desk.fakes.messages.answers = {MessageAnswer::kYes, MessageAnswer::kNo};
  CHECK(desk.info->UserEscape());
  CHECK(desk.info.IsLoaded());
  CHECK(desk.info->UserEscape());
  CHECK_FALSE(desk.info.IsLoaded());
  CHECK(desk.fakes.messages.Take() == Boxes{kReturnBox, kReturnBox});
}

}  // namespace tessara::test
