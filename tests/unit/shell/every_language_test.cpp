// Cards in twelve scripts through the whole program, on desktops of four languages: written, saved,
// imported, studied, tested, printed, and read on each of the others.

#include <algorithm>
#include <doctest/doctest.h>

#include "adapters/posix/code_page_of_locale.h"
#include "base/characters.h"
#include "base/utf8.h"
#include "deck/card_display.h"
#include "deck/file/deck_record.h"
#include "shell/program.h"
#include "tests/support/fakes/fake_machine.h"
#include "tests/support/fakes/headless_renderer.h"
#include "tests/support/fakes/recording_print_surface.h"
#include "tests/support/fakes/recording_spreadsheet.h"

namespace tessara::test {

namespace {

const Text kPath = u"/decks/words.tsr";
const Text kTextPath = u"/decks/words.txt";
constexpr const char* kLocales[] = {"C.UTF-8", "en_US.UTF-8", "ru_RU.UTF-8", "ja_JP.UTF-8"};

struct Word {
  TextView front;
  TextView back;
};

/// Latin, Greek, Cyrillic, Hebrew, Arabic, Devanagari, Thai, Georgian, Chinese, Japanese, Korean,
/// the sounds of English; letters apart from their marks, and pictures.
constexpr Word kWords[] = {
    {u"caf\u00E9 & co", u"\u00C4\u00D6\u00FC \u20AC"},
    {u"cafe\u0301", u"A\u030A"},
    {u"\u0142\u00F3d\u017A", u"za\u017C\u00F3\u0142\u0107 g\u0119\u015Bl\u0105"},
    {u"p\u0159\u00EDli\u0161", u"\u017Elu\u0165ou\u010Dk\u00FD"},
    {u"\u03BD\u03B5\u03C1\u03CC", u"\u1F41 \u03BB\u03CC\u03B3\u03BF\u03C2"},
    {u"\u03B7\u0301", u"\u03C9\u0313\u0342\u0345"},
    {u"\u0432\u043E\u0434\u0430", u"\u0445\u043B\u0435\u0431"},
    {u"\u0451\u0436", u"\u0435\u0308\u0436"},
    {u"\u0457\u0436\u0430\u043A", u"\u045E"},
    {u"\u05DE\u05D9\u05DD", u"\u05E9\u05C1\u05B8\u05DC\u05D5\u05B9\u05DD"},
    {u"\u05D1\u05D9\u05EA", u"(bayit)"},
    {u"\u0645\u0627\u0621", u"\u0645\u064E\u0627\u0621\u064C"},
    {u"\u0633\u0644\u0627\u0645", u"\u0663 + \u0664"},
    {u"\u092A\u093E\u0928\u0940", u"\u0939\u093F\u0928\u094D\u0926\u0940"},
    {u"\u0958", u"\u0915\u093C"},
    {u"\u0E19\u0E49\u0E33", u"\u0E20\u0E32\u0E29\u0E32\u0E44\u0E17\u0E22"},
    {u"\u10EC\u10E7\u10D0\u10DA\u10D8", u"\u10E5\u10D0\u10E0\u10D7\u10E3\u10DA\u10D8"},
    {u"\u6C34", u"shu\u01D0"},
    {u"\u5C71\u5DDD", u"\xD842\xDFB7"},
    {u"\u307F\u305A", u"\u6C34"},
    {u"\u30AC", u"\u30AB\u3099"},
    {u"\uFF21\uFF11", u"\uFF76\uFF9E"},
    {u"\uD55C\uAE00", u"\u1112\u1161\u11AB"},
    {u"\uBB3C", u"mul"},
    {u"\u0283\u026Ap", u"ship"},
    {u"\u03B8\u026A\u014Bk", u"think"},
    {u"\u02C8w\u0254\u02D0t\u0259", u"water"},
    {u"\xD83D\xDE00", u"\xD83D\xDC68\u200D\xD83D\xDC69\u200D\xD83D\xDC67"},
    {u"\xD83C\xDDF3\xD83C\xDDF4", u"\xD83D\xDC00 rat"},
    {u"\uFEFFmark", u"\uFEFF\u0416"},
    {u"\u00EF\u00BB\u00BF", u"\u00EF\u00BB\u00BF\u00D0\u2013"},
    {u"one\r\n\u0434\u0432\u0430", u"\u4E00\r\n\r\n\u4E8C"},
    {u"\u05D0\r\nb", u"\u0416\u0301"},
    {u"ti\u1EBFng Vi\u1EC7t", u"tie\u0302\u0301ng"},
    {u"\u0130stanbul", u"\u0131\u015F\u0131k"},
    {u"\u00E6\u00F8\u00E5", u"\u00DF"},
    {u"\u2200x \u2208 \u211D", u"\u222B\u2202\u03C9"},
    {u"\uE001 \uF8FF", u"\u2029\u2028"},
    {u"\u0410?", u"?"},
    {u"\u0E01", u"\u0939"},
};
constexpr int kCards = static_cast<int>(std::size(kWords));
static_assert(kCards == 40);

/// The program on a desktop of a language.
struct LanguageFixture {
  CodePage codePage;
  FakeMachine fakes;
  RecordingSpreadsheet server;
  RecordingPrintSurface surface;
  FakePrinter printer{surface};
  Machine machine{fakes.messages, fakes.dialogs, fakes.settings, fakes.files,
                  fakes.copies,   fakes.clock,   fakes.desktop,  fakes.documentTypes,
                  server,         printer,       codePage,       u"/opt/tessara"};
  HeadlessRenderer renderer;
  Program program{machine};
  ProgramState& state = program.State();

  explicit LanguageFixture(const char* locale) : codePage(CodePageNamed(CodePageNameOf(locale))) {
    program.Windows().SetRenderer(renderer);
    fakes.settings.values = {{u"ShowSplash", u"0"}, {u"FirstLoad", u"False"}};
    // A place is one where a file is.
    fakes.files.Put(u"/decks/other.tsr", "");
  }

  DeckWindow& Deck() { return program.DeckWindowOf().Loaded(); }
  ProgramFrame& Frame() { return program.FrameWindow().Loaded(); }

  void OpenEmpty() {
    program.Main(u"");
    Deck().UserClose();
  }
  void Open(const std::string& deck) {
    fakes.files.Put(kPath, deck);
    program.Main(kPath);
  }
  std::string Saved() {
    fakes.dialogs.files = {kPath};
    program.Windows().Run([this] { Deck().SaveDeckAs(); });
    return fakes.files.Bytes(kPath);
  }
};

/// Character by character, as a keyboard or an input method has them.
void Type(TextBox& box, TextView text) {
  while (!text.empty()) {
    const std::size_t length =
        text.starts_with(kLineBreak) || (text.size() > 1 && (text[0] & 0xFC00) == 0xD800) ? 2 : 1;
    box.UserEdit({box.TextOf().size(), 0, Text(text.substr(0, length))});
    text.remove_prefix(length);
  }
}

void Paste(TextBox& box, TextView text) {
  box.UserEdit({0, box.TextOf().size(), Text(text)});
}

/// A deck of the words, written in the builder, saved.
std::string WrittenDeck(LanguageFixture& fixture, void (*write)(TextBox& box, TextView text)) {
  fixture.OpenEmpty();
  fixture.Frame().newStandardDeck.Press();
  fixture.Deck().createOrEditCard.Press();
  TextCardBuilder& builder = fixture.program.TextBuilder().Loaded();
  for (const Word& word : kWords) {
    if (fixture.state.deck.cardCount > 0) builder.buttons[kNewButton].Press();
    write(builder.sides[kFrontSide], word.front);
    write(builder.sides[kBackSide], word.back);
    builder.buttons[kAddButton].Press();
  }
  builder.buttons[kCloseButton].Press();
  return fixture.Saved();
}

std::string ImportedDeck(LanguageFixture& fixture) {
  Text text = u"STD\r\n";
  const auto line = [](TextView side) {
    Text joined;
    for (const char16_t unit : side) {
      if (unit != u'\r' && unit != u'\n') joined += unit;
    }
    return joined;
  };
  for (int card = 1; card <= kCards; ++card) {
    const Word& word = kWords[card - 1];
    text += DecimalText(card) + u".\r\n*>F\r\n" + line(word.front) + u"\r\n*>B\r\n" +
            line(word.back) + u"\r\n\r\n";
  }
  fixture.fakes.files.Put(kTextPath, ToUtf8(text));
  fixture.OpenEmpty();
  fixture.fakes.dialogs.files = {kTextPath};
  fixture.Frame().importTextFile.Press();
  return fixture.Saved();
}

bool IsBehindSignature(const std::string& deck, int card, std::size_t offset) {
  return deck.substr(kRecordSize * static_cast<std::size_t>(card) + offset, 3) == "\xEF\xBB\xBF";
}

std::string Composed8(TextView text) {
  return ToUtf8(Composed(text));
}

/// On the desktop that wrote it all texts are there, on another one those behind a signature.
void CheckRead(const std::string& deck, const char* locale, bool sameCodePage) {
  CAPTURE(locale);
  constexpr std::size_t kFrontOffset = 1;
  constexpr std::size_t kBackOffset = 748;
  LanguageFixture reader(locale);
  reader.Open(deck);
  REQUIRE(reader.state.deck.cardCount == kCards);
  for (int card = 1; card <= kCards; ++card) {
    const Word& word = kWords[card - 1];
    if (sameCodePage || IsBehindSignature(deck, card, kFrontOffset)) {
      CHECK(Composed8(reader.state.deck.Cell(card, kCardText)) == Composed8(word.front));
    }
    if (sameCodePage || IsBehindSignature(deck, card, kBackOffset)) {
      CHECK(Composed8(reader.state.deck.Cell(card, kBackText)) == Composed8(word.back));
    }
  }
}

void CheckReadEverywhere(const std::string& deck, const char* writer) {
  for (const char* const reader : kLocales) {
    CheckRead(deck, reader, CodePageNameOf(reader) == CodePageNameOf(writer));
  }
}

}  // namespace

TEST_CASE("cards in twelve scripts come back as they were written, on every desktop") {
  for (const char* const locale : kLocales) {
    CAPTURE(locale);
    for (const auto write : {&Type, &Paste}) {
      LanguageFixture fixture(locale);
      const std::string deck = WrittenDeck(fixture, write);
      CheckReadEverywhere(deck, locale);
      // A load and another save change nothing more.
      LanguageFixture again(locale);
      again.Open(deck);
      CHECK(again.Saved().substr(kRecordSize) == deck.substr(kRecordSize));
    }
  }
}

TEST_CASE("cards in twelve scripts come back as they were imported") {
  for (const char* const locale : kLocales) {
    CAPTURE(locale);
    LanguageFixture fixture(locale);
    const std::string deck = ImportedDeck(fixture);
    LanguageFixture again(locale);
    again.Open(deck);
    REQUIRE(again.state.deck.cardCount == kCards);
    for (int card = 1; card <= kCards; ++card) {
      CHECK(Composed8(again.state.deck.Cell(card, kCardText)) ==
            Composed8(fixture.state.deck.Cell(card, kCardText)));
    }
    CHECK(ToUtf8(fixture.state.deck.Cell(19, kBackText)) == ToUtf8(kWords[18].back));
  }
}

TEST_CASE("cards in twelve scripts are studied and tested as they stand") {
  for (const char* const locale : kLocales) {
    CAPTURE(locale);
    LanguageFixture fixture(locale);
    fixture.Open([&] {
      LanguageFixture writer(locale);
      return WrittenDeck(writer, &Paste);
    }());
    DeckWindow& deck = fixture.Deck();
    const auto checkCard = [&](int card) {
      const Text& front = fixture.state.deck.Cell(card, kCardText);
      CHECK(ToUtf8(deck.card.CardText()) == ToUtf8(DoubleAmps(front)));
      deck.flip.Press();
      const Text& back = fixture.state.deck.Cell(card, kBackText);
      CHECK(ToUtf8(deck.card.CardText()) == ToUtf8(DoubleAmps(back)));
    };
    for (int card = 1; card <= kCards; ++card) {
      checkCard(card);
      deck.flip.Press();
      if (card < kCards) deck.arrows[kNextCard].Press();
    }
    deck.test.Press();
    for (int card = 1; card <= kCards; ++card) {
      checkCard(card);
      deck.credits[kFullCredit].Press();
      CHECK(fixture.state.deck.currentCard == std::min(card + 1, kCards));
    }
  }
}

TEST_CASE("cards in twelve scripts are printed as they stand, in both ways") {
  LanguageFixture fixture("en_US.UTF-8");
  fixture.Open([&] {
    LanguageFixture writer("en_US.UTF-8");
    return WrittenDeck(writer, &Paste);
  }());
  fixture.Deck().printDeck.Press();
  PrintWindow& window = fixture.program.PrintWindowOf().Loaded();
  for (const bool flat : {false, true}) {
    fixture.fakes.dialogs.printers.emplace_back(PrinterChoice{{u"", u"/decks/words.pdf"}, 1});
    window.SelectAll();
    window.flatSheet.SetTicked(flat);
    window.print.SetEnabled(true);
    window.print.Press();
  }
  for (int card = 1; card <= kCards; ++card) {
    CAPTURE(card);
    const Text& front = fixture.state.deck.Cell(card, kCardText);
    const Text& back = fixture.state.deck.Cell(card, kBackText);
    const auto isOnSheet = [](const Text& text) {
      return [&text](const RecordingSpreadsheet::Cells& sheet) {
        return std::ranges::any_of(sheet, [&](const auto& cell) { return cell.second == text; });
      };
    };
    CHECK(std::ranges::any_of(fixture.server.sheets, isOnSheet(front)));
    CHECK(std::ranges::any_of(fixture.server.sheets, isOnSheet(back)));
    // The listing begins with card 2.
    if (card == 1) continue;
    const auto& calls = fixture.surface.record.calls;
    CHECK(std::ranges::find(calls, "Line " + ToUtf8(front)) != calls.end());
  }
}

}  // namespace tessara::test
