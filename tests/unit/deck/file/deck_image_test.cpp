#include "deck/file/deck_image.h"

#include <doctest/doctest.h>

#include "deck/file/deck_record.h"
#include "tests/support/cards.h"
#include "tests/support/deck_bytes.h"

namespace tessara::test {

namespace {

struct ImageDesk {
  ProgramState state;
  DeckImage image{state, CodePage::Western()};

  void Put(int row, const Text& front) { PutCard(state, row, {.text = front}); }
  static std::string Info() { return RecordText('I', u"", 0, {}, u""); }
  [[nodiscard]] std::string Bytes() { return std::string(image.Bytes()); }
};

}  // namespace

TEST_CASE("the image of a table is the deck file of its cards") {
  ImageDesk desk;
  desk.Put(1, u"one");
  desk.Put(2, u"two");
  const std::string expected =
      ImageDesk::Info() + CardBytes(1, u"one", u"") + CardBytes(2, u"two", u"") + EndBytes();
  CHECK(desk.Bytes() == expected);
  CHECK(desk.Bytes() == expected);
}

TEST_CASE("the image follows each change of the table") {
  ImageDesk desk;
  for (int row = 1; row <= 3; ++row) desk.Put(row, DecimalText(row));
  CHECK(desk.Bytes().size() == 5 * kRecordSize);
  desk.state.deck.cardGrid.Set(2, kCardText, u"changed");
  CHECK(desk.Bytes().substr(2 * kRecordSize, kRecordSize) == CardBytes(2, u"changed", u""));
  desk.state.deck.cardGrid.Row(3)[kCardText] = u"moved";
  CHECK(desk.Bytes().substr(3 * kRecordSize, kRecordSize) == CardBytes(3, u"moved", u""));
  EmptyCardRow(desk.state.deck, 1);
  CompactCards(desk.state.deck);
  CHECK(desk.Bytes() == ImageDesk::Info() + CardBytes(1, u"changed", u"") +
                            CardBytes(2, u"moved", u"") + EndBytes());
  desk.Put(3, u"again");
  CHECK(desk.Bytes().substr(3 * kRecordSize) == CardBytes(3, u"again", u"") + EndBytes());
}

TEST_CASE("cards behind a gap are in the image, each by its row") {
  ImageDesk desk;
  desk.Put(1, u"one");
  desk.Put(3, u"three");
  CHECK(desk.Bytes() == ImageDesk::Info() + CardBytes(1, u"one", u"") + ImageDesk::Info() +
                            CardBytes(3, u"three", u"") + EndBytes());
  desk.Put(kRows - 1, u"last");
  CHECK(desk.Bytes().size() == kRecordSize * (kRows + 1));
}

TEST_CASE("a table without cards has none in its image, and each change counts") {
  ImageDesk desk;
  CHECK_FALSE(desk.image.HasCards());
  const std::uint64_t before = desk.image.Changes();
  desk.state.deck.cardPresent.Set(kInfoRow, 1);
  CHECK_FALSE(desk.image.HasCards());
  CHECK(desk.image.Changes() > before);
  desk.Put(2, u"two");
  CHECK(desk.image.HasCards());
}

}  // namespace tessara::test
