#include "deck/file/deck_image.h"

#include <doctest/doctest.h>

#include "deck/file/deck_record.h"
#include "tests/support/cards.h"
#include "tests/support/deck_bytes.h"

namespace tessara::test {

namespace {

struct ImageFixture {
  ProgramState state;
  DeckImage image{state, CodePage::Western()};

  void Put(int row, const Text& front) { PutCard(state, row, {.text = front}); }
  static std::string Info() { return RecordText('I', u"", 0, {}, u""); }
  [[nodiscard]] std::string Bytes() { return std::string(image.Bytes()); }
};

}  // namespace

TEST_CASE("the image of a table is the deck file of its cards") {
  ImageFixture fixture;
  fixture.Put(1, u"one");
  fixture.Put(2, u"two");
  const std::string expected =
      ImageFixture::Info() + CardBytes(1, u"one", u"") + CardBytes(2, u"two", u"") + EndBytes();
  CHECK(fixture.Bytes() == expected);
  CHECK(fixture.Bytes() == expected);
}

TEST_CASE("the image follows each change of the table") {
  ImageFixture fixture;
  for (int row = 1; row <= 3; ++row) fixture.Put(row, DecimalText(row));
  CHECK(fixture.Bytes().size() == 5 * kRecordSize);
  fixture.state.deck.cardGrid.Set(2, kCardText, u"changed");
  CHECK(fixture.Bytes().substr(2 * kRecordSize, kRecordSize) == CardBytes(2, u"changed", u""));
  fixture.state.deck.cardGrid.Row(3)[kCardText] = u"moved";
  CHECK(fixture.Bytes().substr(3 * kRecordSize, kRecordSize) == CardBytes(3, u"moved", u""));
  EmptyCardRow(fixture.state.deck, 1);
  CompactCards(fixture.state.deck);
  CHECK(fixture.Bytes() == ImageFixture::Info() + CardBytes(1, u"changed", u"") +
                               CardBytes(2, u"moved", u"") + EndBytes());
  fixture.Put(3, u"again");
  CHECK(fixture.Bytes().substr(3 * kRecordSize) == CardBytes(3, u"again", u"") + EndBytes());
}

TEST_CASE("cards that a save leaves out follow in the image, numbered on") {
  ImageFixture fixture;
  fixture.Put(1, u"one");
  fixture.Put(3, u"three");
  const std::string first = ImageFixture::Info() + CardBytes(1, u"one", u"");
  CHECK(fixture.Bytes() == first + CardBytes(2, u"three", u"") + EndBytes());
  fixture.state.deck.cardGrid.Set(2, kCardText, u"never made present");
  const std::string cards =
      first + CardBytes(2, u"never made present", u"") + CardBytes(3, u"three", u"");
  CHECK(fixture.Bytes() == cards + EndBytes());
  CHECK(fixture.Bytes() == cards + EndBytes());
  fixture.Put(kRows - 1, u"last");
  CHECK(fixture.Bytes() == cards + CardBytes(4, u"last", u"") + EndBytes());
}

TEST_CASE("a table without cards has none in its image, and each change counts") {
  ImageFixture fixture;
  CHECK_FALSE(fixture.image.HasCards());
  const std::uint64_t before = fixture.image.Changes();
  fixture.state.deck.cardPresent.Set(kInfoRow, 1);
  CHECK_FALSE(fixture.image.HasCards());
  CHECK(fixture.image.Changes() > before);
  fixture.Put(2, u"two");
  CHECK(fixture.image.HasCards());
}

}  // namespace tessara::test
