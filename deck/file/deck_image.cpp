#include "deck/file/deck_image.h"

#include "deck/card_type.h"
#include "deck/file/deck_file.h"

namespace tessara {

namespace {

/// A reader goes by the number, and takes the information again where a card is missing.
DeckRecordView RecordAt(const ProgramState& state, int row) {
  const bool isCard = row != kInfoRow && state.deck.cardPresent.At(row) != 0;
  DeckRecordView record = TextsOfRow(state, isCard ? row : kInfoRow);
  record.number = static_cast<std::int16_t>(isCard ? row : kInfoRow);
  if (!isCard) record.cardType = LetterOf(CardType::kInformation);
  return record;
}

}  // namespace

std::uint64_t DeckImage::Changes() const {
  return state_.deck.cardGrid.Changes().Count() + state_.deck.cardPresent.Changes().Count();
}

int DeckImage::LastCard() const {
  int row = kRows - 1;
  while (row > kInfoRow && state_.deck.cardPresent.At(row) == 0) --row;
  return row;
}

bool DeckImage::IsEncoded(int row) const {
  return state_.deck.cardPresent.At(row) != 0 &&
         state_.deck.cardGrid.Changes().Of(row) <= cellsEncoded_ &&
         state_.deck.cardPresent.Changes().Of(row) <= flagsEncoded_;
}

void DeckImage::EncodeRow(int row) {
  char* const place = bytes_.data() + kRecordSize * static_cast<std::size_t>(row);
  EncodeRecord(RecordAt(state_, row), codePage_, std::span<char, kRecordSize>(place, kRecordSize));
}

std::string_view DeckImage::Bytes() {
  const int last = LastCard();
  bytes_.resize(kRecordSize * (static_cast<std::size_t>(last) + 1));
  for (int row = kInfoRow; row <= last; ++row) {
    if (!IsEncoded(row)) EncodeRow(row);
  }
  cellsEncoded_ = state_.deck.cardGrid.Changes().Count();
  flagsEncoded_ = state_.deck.cardPresent.Changes().Count();
  DeckRecordView end;
  end.cardType = LetterOf(CardType::kTerminator);
  const RecordBytes terminator = EncodeRecord(end, codePage_);
  bytes_.append(terminator.begin(), terminator.end());
  return bytes_;
}

}  // namespace tessara
