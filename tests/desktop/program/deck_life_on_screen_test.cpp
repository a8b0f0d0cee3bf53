// The life of a deck in the whole program, by the keyboard, the real dialogs and the real boxes.

#include <doctest/doctest.h>

#include "tests/desktop/support/writing_by_keys.h"
#include "tests/support/deck_bytes.h"

using namespace tessara;
using namespace tessara::test;

namespace {

using Asked = std::vector<std::string>;

constexpr Qt::Key kA = Qt::Key_A, kC = Qt::Key_C, kS = Qt::Key_S;

void Describe(TextView title) {
  ProgramOnScreen::ChooseByKeys("mnuUtility", "mnuCDI");
  GoTo("Text1(0)");
  ProgramOnScreen::Key(kA, Qt::ControlModifier);
  ProgramOnScreen::Type(title);
  ProgramOnScreen::Alt(kS);
  ProgramOnScreen::Alt(kC);
}

void WriteCard(TextView front, TextView back) {
  OpenBuilder();
  Write("Text1(0)", front);
  Write("Text1(1)", back);
  ProgramOnScreen::Alt(kA);
  ProgramOnScreen::Alt(kC);
}

}  // namespace

TEST_CASE("A deck is made, described, saved, closed, found again, changed and saved again") {
  ProgramOnScreen fixture;
  fixture.Start();
  WriteCard(u"Norway", u"Oslo");
  Describe(u"Capitals");
  InfoTexts info = {.title = u" Capitals",
                    .author = u" Your Name Here",
                    .description = u" Deck Description Here"};
  CHECK(SaveByKeys(fixture, "mnuSave") ==
        InfoBytes(info) + CardBytes(1, u"Norway", u"Oslo") + EndBytes());
  CHECK(ProgramOnScreen::TitleOf("frmMain") == "new  [STUDY]");

  // The save has brought up the information.
  REQUIRE(fixture.program.InfoWindow().IsLoaded());
  ProgramOnScreen::Alt(kC);
  REQUIRE_FALSE(fixture.program.InfoWindow().IsLoaded());
  fixture.AnswerByKey(Qt::Key_Return);
  ProgramOnScreen::Alt(kC);
  CHECK(fixture.TakeAsked() == Asked{"ARE YOU SURE?"});
  REQUIRE_FALSE(fixture.program.DeckWindowOf().IsLoaded());

  // The frame's own menu finds it again.
  TypePathWhenAsked(fixture, "new.tsr");
  ProgramOnScreen::Alt(Qt::Key_F);
  ProgramOnScreen::Key(Qt::Key_O);
  CHECK(fixture.TakeAsked().size() == 1);
  CHECK(ProgramOnScreen::Card("CardText") == "Norway");
  CHECK(ProgramOnScreen::TitleOf("frmMain") == "new  [STUDY]");

  OpenBuilder();
  GoTo("Text1(1)");
  ProgramOnScreen::Key(Qt::Key_End, Qt::ControlModifier);
  ProgramOnScreen::Type(u"\nsince 1814");
  PressChange();
  ProgramOnScreen::Alt(kC);
  fixture.AnswerByKey(Qt::Key_Return);
  ProgramOnScreen::ChooseByKeys("mnuFile", "mnuSave");
  CHECK(fixture.TakeAsked() ==
        Asked{"This file has been saved to " + (fixture.folder / "new.tsr").string()});
  info.date = u" 1/5/2026";
  CHECK(fixture.folder.Read("new.tsr") ==
        InfoBytes(info) + CardBytes(1, u"Norway", u"Oslo\r\nsince 1814") + EndBytes());
}

TEST_CASE("A changed deck asks before it is closed, and No leaves its file as it was") {
  ProgramOnScreen fixture;
  fixture.folder.Write("birds.tsr", DeckBytes(1));
  fixture.Start(u"birds.tsr");
  OpenBuilder();
  GoTo("Text1(0)");
  ProgramOnScreen::Type(u"changed ");
  PressChange();
  ProgramOnScreen::Alt(kC);
  CHECK(ProgramOnScreen::Card("CardText") == "changed front 1");
  fixture.AnswerByKey(Qt::Key_N);
  fixture.AnswerByKey(Qt::Key_Return);
  ProgramOnScreen::Alt(kC);
  CHECK(
      fixture.TakeAsked() ==
      Asked{"There have been changes to this Tessara.Do you want to save them?", "ARE YOU SURE?"});
  CHECK(fixture.folder.Read("birds.tsr") == DeckBytes(1));
}

TEST_CASE(
    "The letter C in a builder drops nothing that was typed, and Return takes what it is on") {
  ProgramOnScreen fixture;
  fixture.Start();
  OpenBuilder();
  Write("Text1(0)", u"Norway");
  Write("Text1(1)", u"Oslo");
  for (const char* button : {"Command1(2)", "Command1(3)", "Command1(2)", "Command1(3)"}) {
    ProgramOnScreen::Alt(kC);
    CHECK(ProgramOnScreen::Focus() == button);
  }
  fixture.AnswerByKey(Qt::Key_Y);
  fixture.AnswerByKey(Qt::Key_Return);
  ProgramOnScreen::Key(Qt::Key_Return);
  CHECK(fixture.TakeAsked().back() == "Card is saved");
  CHECK(ProgramOnScreen::Card("CardTotal") == "1");
}

TEST_CASE("On a new deck the letter C goes between two entries of the file menu") {
  ProgramOnScreen fixture;
  fixture.Start();
  ProgramOnScreen::Alt(Qt::Key_F);
  const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  REQUIRE(menu != nullptr);
  for (const char* entry : {"mnuACTTD", "mnuExit", "mnuACTTD"}) {
    ProgramOnScreen::Key(kC);
    CHECK(menu->activeAction()->objectName() == entry);
  }
  ProgramOnScreen::Key(Qt::Key_Return);
  CHECK(ProgramOnScreen::Focus() == "Text1(0)");
  CHECK(fixture.TakeAsked().empty());
}

TEST_CASE("The focus never falls on Close Deck, so a blank closes no deck") {
  ProgramOnScreen fixture;
  const auto clear = [] { ProgramOnScreen::ChooseByKeys("mnuFile", "mnuNCD"); };
  const auto startWith = [&fixture](const std::string& cards) {
    fixture.folder.Write("deck.tsr", InfoBytes({}) + cards + EndBytes());
    fixture.Start(u"deck.tsr");
  };
  SUBCASE("at a start without a deck") {
    fixture.Start();
  }
  SUBCASE("behind the builder, with one card") {
    fixture.Start();
    WriteCard(u"Norway", u"Oslo");
  }
  SUBCASE("behind the builder, at the first of two cards") {
    startWith(CardBytes(1, u"Norway", u"Oslo") + CardBytes(2, u"Sweden", u"Stockholm"));
    GoTo("Command3(2)");
    OpenBuilder();
    ProgramOnScreen::Alt(kC);
  }
  SUBCASE("behind the builder's close box, at a question") {
    startWith(TrueCardBytes(1, u"?"));
    GoTo("Command3(2)");
    OpenBuilder();
    ProgramOnScreen::Key(Qt::Key_F4, Qt::ControlModifier);
  }
  SUBCASE("after a clear") {
    startWith(CardBytes(1, u"Norway", u"Oslo"));
    clear();
  }
  SUBCASE("after a clear from Close Deck") {
    startWith(TrueCardBytes(1, u"?"));
    GoTo("Command3(2)");
    clear();
  }
  SUBCASE("at a deck of one question") {
    startWith(TrueCardBytes(1, u"?"));
  }
  SUBCASE("after the only card has been deleted") {
    startWith(CardBytes(1, u"Norway", u"Oslo"));
    fixture.AnswerByKey(Qt::Key_Return);
    ProgramOnScreen::ChooseByKeys("mnuFile", "mnuDelete");
    fixture.TakeAsked();
  }
  const std::string focus = ProgramOnScreen::Focus();
  CAPTURE(focus);
  const bool useful = focus == "NoteletCtl1" || focus == "cmdMove(1)";
  CHECK(useful);
  ProgramOnScreen::Key(Qt::Key_Space);
  CHECK(fixture.TakeAsked().empty());
  CHECK(fixture.program.DeckWindowOf().IsLoaded());
}
