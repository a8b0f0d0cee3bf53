#include "deck/file/deck_image.h"

#include <utility>

#include "deck/card_type.h"
#include "deck/file/deck_file.h"

namespace tessara {

namespace {

DeckRecordView InformationOf(const ProgramState& state) {
  DeckRecordView record = TextsOfRow(state, kInfoRow);
  record.cardType = LetterOf(CardType::kInformation);
  return record;
}

/// What was never made present may lack its letter.
TextView LetterOfCard(const Deck& deck, int row) {
  const Text& letter = deck.Cell(row, kCardType);
  return letter.empty() ? LetterOf(CardType::kText) : TextView(letter);
}

DeckRecordView CardOf(const ProgramState& state, int row, std::size_t number) {
  DeckRecordView record = TextsOfRow(state, row);
  record.cardType = LetterOfCard(state.deck, row);
  record.number = static_cast<std::int16_t>(number);
  return record;
}

}  // namespace

std::uint64_t DeckImage::Changes() const {
  return state_.deck.cardGrid.Changes().Count() + state_.deck.cardPresent.Changes().Count();
}

bool DeckImage::IsEncoded(std::size_t place, int row) const {
  return row != kInfoRow && place < rows_.size() && rows_[place] == row &&
         state_.deck.cardGrid.Changes().Of(row) <= cellsEncoded_ &&
         state_.deck.cardPresent.Changes().Of(row) <= flagsEncoded_;
}

void DeckImage::Encode(std::size_t place, int row) {
  const std::span<char, kRecordSize> bytes(bytes_.data() + kRecordSize * place, kRecordSize);
  const bool isCard = row != kInfoRow;
  EncodeRecord(isCard ? CardOf(state_, row, place) : InformationOf(state_), codePage_, bytes);
}

std::string_view DeckImage::Bytes() {
  std::vector<int> rows = CardRows(state_.deck);
  rows.insert(rows.begin(), kInfoRow);
  bytes_.resize(kRecordSize * rows.size());
  for (std::size_t place = 0; place < rows.size(); ++place) {
    if (!IsEncoded(place, rows[place])) Encode(place, rows[place]);
  }
  rows_ = std::move(rows);
  cellsEncoded_ = state_.deck.cardGrid.Changes().Count();
  flagsEncoded_ = state_.deck.cardPresent.Changes().Count();
  DeckRecordView end;
  end.cardType = LetterOf(CardType::kTerminator);
  const RecordBytes terminator = EncodeRecord(end, codePage_);
  bytes_.append(terminator.begin(), terminator.end());
  return bytes_;
}

}  // namespace tessara
