#include "tests/random_user/card_record.h"

#include "base/code_page.h"
#include "deck/file/deck_file.h"

namespace tessara::test {

namespace {

constexpr std::size_t kNumberPlace = 445;
constexpr std::size_t kNumberBytes = 2;

std::string WithoutNumber(std::string record) {
  return record.replace(kNumberPlace, kNumberBytes, kNumberBytes, '\0');
}

bool IsCard(const std::string& record) {
  return record.front() != 'I' && record.front() != 'X';
}

}  // namespace

std::set<std::string> CardsOf(const ProgramState& state) {
  std::set<std::string> cards;
  for (int row = 1; row <= kMostCards; ++row) {
    if (state.deck.Cell(row, kCardText).empty()) continue;
    DeckRecordView record = TextsOfRow(state, row);
    record.cardType = state.deck.Cell(row, kCardType);
    const RecordBytes bytes = EncodeRecord(record, CodePage::Western());
    cards.insert(WithoutNumber({bytes.begin(), bytes.end()}));
  }
  return cards;
}

std::set<std::string> CardsIn(const std::string& deck) {
  std::set<std::string> cards;
  for (std::size_t at = 0; at + kRecordSize <= deck.size(); at += kRecordSize) {
    const std::string record = deck.substr(at, kRecordSize);
    if (IsCard(record)) cards.insert(WithoutNumber(record));
  }
  return cards;
}

}  // namespace tessara::test
