#include <doctest/doctest.h>

#include "base/utf8.h"
#include "tests/support/program_fixture.h"

namespace tessara::test {

TEST_CASE("a plain start brings up the frame and an empty deck window") {
  ProgramFixture fixture;
  fixture.Start();
  CHECK(fixture.Frame().Caption() == u"Tessara 1.0");
  CHECK(fixture.Frame().Visible());
  CHECK(fixture.Deck().Visible());
  CHECK(fixture.Deck().Caption() == u"New Deck");
  CHECK(fixture.Deck().Width() == 7230);
  CHECK(fixture.Deck().Height() == 6315);
  CHECK(fixture.Deck().flip.Caption() == u"&Show Back");
  CHECK_FALSE(fixture.Deck().flip.Enabled());
  CHECK_FALSE(fixture.Deck().modeMenu.Enabled());
  for (const MenuEntry* mode :
       {&fixture.Deck().study, &fixture.Deck().quiz, &fixture.Deck().test}) {
    CHECK(mode->Visible());
  }
  CHECK_FALSE(fixture.Deck().goToCard.Enabled());
  const Bounds choices = fixture.Deck().choicePanel.BoundsOf();
  CHECK(fixture.Deck().creditPanel.BoundsOf().left == choices.left);
  CHECK(fixture.Deck().creditPanel.BoundsOf().top == choices.top);
  CHECK(fixture.Deck().study.Checked());
  CHECK(fixture.state.deck.cardPresent.At(0) == 1);
  CHECK(fixture.state.deck.currentCard == 0);
  CHECK(fixture.fakes.messages.shown.empty());
}

TEST_CASE("a deck on the command line comes up in study mode") {
  for (const TextView type : {TextView(u"E"), TextView(u"T")}) {
    ProgramFixture fixture;
    fixture.fakes.files.Put(u"/decks/birds.tsr", ProgramFixture::DeckBytes(3, type));
    fixture.Start(u"/decks/birds.tsr");
    CHECK(fixture.Deck().Caption() == u"birds  [STUDY]");
    CHECK(fixture.Deck().card.CardText() == u"front 1");
    CHECK(fixture.Deck().card.CardTotal() == u"3");
    CHECK(fixture.state.deck.filePath == u"/decks/birds.tsr");
    CHECK(fixture.state.deck.kind == (type == u"T" ? kExtendedDeck : kStandardDeck));
    CHECK(fixture.state.start.commandLineFile.empty());
    CHECK_FALSE(fixture.state.start.deckFromCommandLine);
    CHECK_FALSE(fixture.state.deck.onFile);
    CHECK(fixture.Deck().saveDeckAs.Enabled());
    CHECK(fixture.Deck().Width() == 7230);
    CHECK(fixture.Deck().Height() == 6315);
  }
}

TEST_CASE("a deck on the command line shows the design's colours, whatever the settings") {
  ProgramFixture fixture;
  fixture.fakes.settings.values[u"LargeCardColor"] = u"1";
  fixture.fakes.settings.values[u"SmallCardColor"] = u"1";
  fixture.fakes.files.Put(u"/decks/birds.tsr", ProgramFixture::DeckBytes(1));
  fixture.Start(u"/decks/birds.tsr");
  CHECK(fixture.Deck().card.CardColor() == u"Q");
  CHECK(fixture.Deck().answerCard.PictureOf().file == "skins/white_3d.png");
}

TEST_CASE("a deck on the command line is left as its view has placed it") {
  ProgramFixture fixture;
  // Without an information record row 0 would be present only by the steps of a plain start.
  fixture.fakes.files.Put(u"/decks/birds.tsr", ProgramFixture::DeckBytes(2).substr(kRecordSize));
  fixture.Start(u"/decks/birds.tsr");
  CHECK(fixture.state.deck.cardPresent.At(kInfoRow) == 0);
  CHECK(fixture.Deck().flip.Enabled());
  CHECK(fixture.Deck().modeMenu.Enabled());
  CHECK(fixture.Deck().goToCard.Enabled());
  CHECK(fixture.Deck().Left() == (fixture.Frame().ScaleWidth() - 7230) / 2);
  CHECK(fixture.Deck().Top() == (fixture.Frame().ScaleHeight() - 6315) / 2);
}

TEST_CASE("a deck on the command line that can't be read ends the program with a report") {
  struct Case {
    const char* what;
    TextView path;
    TextView error;
  };
  const Case cases[] = {
      {"missing", u"/decks/none.tsr", u"75"},
      {"a folder", u"/decks", u"75"},
      {"without permission", u"/decks/secret.tsr", u"70"},
      {"a number outside the table", u"/decks/wild.tsr", u"9"},
  };
  for (const Case& c : cases) {
    CAPTURE(c.what);
    ProgramFixture fixture;
    fixture.fakes.files.Put(u"/decks/secret.tsr", ProgramFixture::DeckBytes(1));
    fixture.fakes.files.withoutPermission.insert(u"/decks/secret.tsr");
    std::string wild = ProgramFixture::DeckBytes(1);
    wild[kRecordSize + 446] = '\x7F';
    fixture.fakes.files.Put(u"/decks/wild.tsr", wild);
    fixture.Start(Text(c.path));
    REQUIRE(fixture.fakes.messages.shown.size() == 1);
    CHECK(fixture.fakes.messages.shown[0].text.starts_with(u"Run-time error '" + Text(c.error) +
                                                           u"'"));
    CHECK(fixture.fakes.messages.shown[0].title == u"Tessara");
    CHECK(fixture.renderer.exitStatus == 1);
  }
}

TEST_CASE("a second instance refuses and ends at once") {
  ProgramFixture fixture;
  fixture.fakes.desktop.previousInstance = true;
  fixture.Start(u"/decks/birds.tsr");
  CHECK(fixture.fakes.messages.shown ==
        std::vector<FakeMessages::Shown>{
            {u"Tessara is already open. Please close the last deck before opening another.", 16,
             u"Another Tessara Open"}});
  CHECK(fixture.renderer.exitStatus == 0);
  CHECK(fixture.program.Windows().LoadedForms().empty());
  CHECK(fixture.fakes.settings.readKeys.empty());
}

TEST_CASE("the settings are read in their order, with defaults, and nothing is written") {
  ProgramFixture fixture;
  fixture.fakes.settings.values = {{u"FirstLoad", u"0"}};
  fixture.Start();
  CHECK(fixture.fakes.settings.readKeys ==
        std::vector<Text>{u"ShowSplash", u"LargeCardColor", u"LargeCard3D", u"SmallCardColor",
                          u"SmallCard3D", u"BackDrop", u"FirstLoad"});
  CHECK(fixture.fakes.settings.writes.empty());
  CHECK(fixture.state.settings.showSplash == u"1");
  CHECK(fixture.state.settings.largeCard3D == u"1");
  CHECK(fixture.state.settings.backdrop == u"DEFAULT");
}

TEST_CASE("nonsense in the settings ends the start with a run-time error") {
  struct Case {
    TextView key;
    TextView value;
    TextView error;
  };
  const Case cases[] = {{u"FirstLoad", u"maybe", u"13"},     {u"ShowSplash", u"yes", u"13"},
                        {u"ShowSplash", u"1e999", u"6"},     {u"LargeCard3D", u"", u"13"},
                        {u"LargeCardColor", u"blue", u"13"}, {u"SmallCard3D", u"x", u"13"},
                        {u"BackDrop", u"PLAID", u"35601"},   {u"BackDrop", u"", u"35600"},
                        {u"BackDrop", u"<NONE>", u"35600"},  {u"BackDrop", u"default", u"35601"}};
  for (const Case& c : cases) {
    const std::string key = ToUtf8(c.key);
    CAPTURE(key);
    ProgramFixture fixture;
    fixture.fakes.settings.values[Text(c.key)] = c.value;
    fixture.Start();
    REQUIRE_FALSE(fixture.fakes.messages.shown.empty());
    CHECK(fixture.fakes.messages.shown[0].text.starts_with(u"Run-time error '" + Text(c.error) +
                                                           u"'"));
    CHECK(fixture.renderer.exitStatus == 1);
  }
}

TEST_CASE("the splash is shown for 5000 yields where its setting is numerically 1") {
  struct Case {
    TextView value;
    int yields;
  };
  const Case cases[] = {{u"1", 5000}, {u"1.0", 5000}, {u"0", 0}, {u"2", 0}, {u"-1", 0}};
  for (const Case& c : cases) {
    ProgramFixture fixture;
    fixture.fakes.settings.values[u"ShowSplash"] = c.value;
    int yieldsWithSplash = 0;
    fixture.fakes.desktop.whileYielding = [&] {
      for (const Form* form : fixture.program.Windows().LoadedForms()) {
        if (form->Name() == "Splash" && form->Visible()) ++yieldsWithSplash;
      }
    };
    fixture.Start();
    CHECK(fixture.fakes.desktop.yields == c.yields);
    CHECK(yieldsWithSplash == c.yields);
    CHECK(fixture.renderer.seen.size() == (c.yields > 0 ? 1U : 0U));
    for (const Form* form : fixture.program.Windows().LoadedForms())
      CHECK(form->Name() != "Splash");
  }
}

TEST_CASE("the first load declares the document type once, as the package describes it") {
  ProgramFixture fixture;
  fixture.fakes.settings.values.erase(u"FirstLoad");
  fixture.Start();
  REQUIRE(fixture.fakes.documentTypes.declared.size() == 1);
  const DocumentType& type = fixture.fakes.documentTypes.declared.front();
  CHECK(type.description == u"/opt/tessara/tessara.xml");
  CHECK(type.entry == u"/opt/tessara/tessara.desktop");
  CHECK(type.icons == u"/opt/tessara/icons");
  CHECK(type.program == u"/opt/tessara/tessara");
  CHECK(fixture.fakes.settings.values[u"FirstLoad"] == u"False");
}

TEST_CASE("a registration is not tried again") {
  ProgramFixture fixture;
  fixture.Start();
  CHECK(fixture.fakes.documentTypes.declared.empty());
}

}  // namespace tessara::test
