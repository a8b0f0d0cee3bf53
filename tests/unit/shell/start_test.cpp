#include <doctest/doctest.h>

#include "base/utf8.h"
#include "tests/support/program_desk.h"

namespace tessara::test {

TEST_CASE("a plain start brings up the frame and an empty deck window") {
  ProgramDesk desk;
  desk.Start();
  CHECK(desk.Frame().Caption() == u"Tessara 1.0");
  CHECK(desk.Frame().Visible());
  CHECK(desk.Deck().Visible());
  CHECK(desk.Deck().Caption() == u"New Deck");
  CHECK(desk.Deck().Width() == 7230);
  CHECK(desk.Deck().Height() == 6315);
  CHECK(desk.Deck().flip.Caption() == u"&Show Back");
  CHECK_FALSE(desk.Deck().flip.Enabled());
  CHECK_FALSE(desk.Deck().modeMenu.Enabled());
  CHECK_FALSE(desk.Deck().goToCard.Enabled());
  CHECK(desk.Deck().study.Checked());
  CHECK(desk.state.deck.cardPresent.At(0) == 1);
  CHECK(desk.state.deck.currentCard == 0);
  CHECK(desk.fakes.messages.shown.empty());
}

TEST_CASE("a deck on the command line comes up in study mode") {
  for (const TextView type : {TextView(u"E"), TextView(u"T")}) {
    ProgramDesk desk;
    desk.fakes.files.Put(u"/decks/birds.tsr", ProgramDesk::DeckBytes(3, type));
    desk.Start(u"/decks/birds.tsr");
    CHECK(desk.Deck().Caption() == u"birds  [STUDY]");
    CHECK(desk.Deck().card.CardText() == u"front 1");
    CHECK(desk.Deck().card.CardTotal() == u"3");
    CHECK(desk.state.deck.filePath == u"/decks/birds.tsr");
    CHECK(desk.state.deck.kind == (type == u"T" ? kExtendedDeck : kStandardDeck));
    CHECK(desk.state.start.commandLineFile.empty());
    CHECK_FALSE(desk.state.start.deckFromCommandLine);
    CHECK_FALSE(desk.state.deck.onFile);
    CHECK(desk.Deck().saveDeckAs.Enabled());
    CHECK(desk.Deck().Width() == 7230);
    CHECK(desk.Deck().Height() == 6315);
  }
}

TEST_CASE("a deck on the command line shows the design's colours, whatever the settings") {
  ProgramDesk desk;
  desk.fakes.settings.values[u"LargeCardColor"] = u"1";
  desk.fakes.settings.values[u"SmallCardColor"] = u"1";
  desk.fakes.files.Put(u"/decks/birds.tsr", ProgramDesk::DeckBytes(1));
  desk.Start(u"/decks/birds.tsr");
  CHECK(desk.Deck().card.CardColor() == u"Q");
  CHECK(desk.Deck().answerCard.PictureOf().file == "skins/white_3d.png");
}

TEST_CASE("a deck on the command line is left as its view has placed it") {
  ProgramDesk desk;
  // Without an information record row 0 would be present only by the steps of a plain start.
  desk.fakes.files.Put(u"/decks/birds.tsr", ProgramDesk::DeckBytes(2).substr(kRecordSize));
  desk.Start(u"/decks/birds.tsr");
  CHECK(desk.state.deck.cardPresent.At(kInfoRow) == 0);
  CHECK(desk.Deck().flip.Enabled());
  CHECK(desk.Deck().modeMenu.Enabled());
  CHECK(desk.Deck().goToCard.Enabled());
  CHECK(desk.Deck().Left() == (desk.Frame().ScaleWidth() - 7230) / 2);
  CHECK(desk.Deck().Top() == (desk.Frame().ScaleHeight() - 6315) / 2);
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
    ProgramDesk desk;
    desk.fakes.files.Put(u"/decks/secret.tsr", ProgramDesk::DeckBytes(1));
    desk.fakes.files.withoutPermission.insert(u"/decks/secret.tsr");
    std::string wild = ProgramDesk::DeckBytes(1);
    wild[kRecordSize + 446] = '\x7F';
    desk.fakes.files.Put(u"/decks/wild.tsr", wild);
    desk.Start(Text(c.path));
    REQUIRE(desk.fakes.messages.shown.size() == 1);
    CHECK(
        desk.fakes.messages.shown[0].text.starts_with(u"Run-time error '" + Text(c.error) + u"'"));
    CHECK(desk.fakes.messages.shown[0].title == u"Tessara");
    CHECK(desk.renderer.exitStatus == 1);
  }
}

TEST_CASE("a second instance refuses and ends at once") {
  ProgramDesk desk;
  desk.fakes.desktop.previousInstance = true;
  desk.Start(u"/decks/birds.tsr");
  CHECK(desk.fakes.messages.shown ==
        std::vector<FakeMessages::Shown>{
            {u"Tessara is already open. Please close the last deck before opening another.", 16,
             u"Another Tessara Open"}});
  CHECK(desk.renderer.exitStatus == 0);
  CHECK(desk.program.Windows().LoadedForms().empty());
  CHECK(desk.fakes.settings.readKeys.empty());
}

TEST_CASE("the settings are read in their order, with defaults, and nothing is written") {
  ProgramDesk desk;
  desk.fakes.settings.values = {{u"FirstLoad", u"0"}};
  desk.Start();
  CHECK(desk.fakes.settings.readKeys ==
        std::vector<Text>{u"ShowSplash", u"LargeCardColor", u"LargeCard3D", u"SmallCardColor",
                          u"SmallCard3D", u"BackDrop", u"FirstLoad"});
  CHECK(desk.fakes.settings.writes.empty());
  CHECK(desk.state.settings.showSplash == u"1");
  CHECK(desk.state.settings.largeCard3D == u"1");
  CHECK(desk.state.settings.backdrop == u"DEFAULT");
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
    ProgramDesk desk;
    desk.fakes.settings.values[Text(c.key)] = c.value;
    desk.Start();
    REQUIRE_FALSE(desk.fakes.messages.shown.empty());
    CHECK(
        desk.fakes.messages.shown[0].text.starts_with(u"Run-time error '" + Text(c.error) + u"'"));
    CHECK(desk.renderer.exitStatus == 1);
  }
}

TEST_CASE("the splash is shown for 5000 yields where its setting is numerically 1") {
  struct Case {
    TextView value;
    int yields;
  };
  const Case cases[] = {{u"1", 5000}, {u"1.0", 5000}, {u"0", 0}, {u"2", 0}, {u"-1", 0}};
  for (const Case& c : cases) {
    ProgramDesk desk;
    desk.fakes.settings.values[u"ShowSplash"] = c.value;
    int yieldsWithSplash = 0;
    desk.fakes.desktop.whileYielding = [&] {
      for (const Form* form : desk.program.Windows().LoadedForms()) {
        if (form->Name() == "Splash" && form->Visible()) ++yieldsWithSplash;
      }
    };
    desk.Start();
    CHECK(desk.fakes.desktop.yields == c.yields);
    CHECK(yieldsWithSplash == c.yields);
    CHECK(desk.renderer.seen.size() == (c.yields > 0 ? 1U : 0U));
    for (const Form* form : desk.program.Windows().LoadedForms()) CHECK(form->Name() != "Splash");
  }
}

TEST_CASE("the first load declares the document type once, as the package describes it") {
  ProgramDesk desk;
  desk.fakes.settings.values.erase(u"FirstLoad");
  desk.Start();
  REQUIRE(desk.fakes.documentTypes.declared.size() == 1);
  const DocumentType& type = desk.fakes.documentTypes.declared.front();
  CHECK(type.description == u"/opt/tessara/tessara.xml");
  CHECK(type.entry == u"/opt/tessara/tessara.desktop");
  CHECK(type.icons == u"/opt/tessara/icons");
  CHECK(type.program == u"/opt/tessara/tessara");
  CHECK(desk.fakes.settings.values[u"FirstLoad"] == u"False");
}

TEST_CASE("a registration is not tried again") {
  ProgramDesk desk;
  desk.Start();
  CHECK(desk.fakes.documentTypes.declared.empty());
}

}  // namespace tessara::test
