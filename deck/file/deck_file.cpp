#include "deck/file/deck_file.h"

#include <algorithm>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "base/conversion.h"
#include "base/skip_errors.h"
#include "deck/card_rows.h"
#include "deck/card_type.h"
#include "deck/file/stored_text.h"

namespace tessara {

namespace {

/// An empty cell is the number 0.
std::int16_t NumberInCell(const Text& cell) {
  return cell.empty() ? std::int16_t{0} : IntegerOf(cell);
}

void StoreRecord(DeckRecord&& record, ProgramState& state) {
  const CardTable::RowCells cells = state.deck.cardGrid.Row(record.number);
  cells[kCardType] = std::move(record.cardType);
  cells[kCardText] = std::move(record.text);
  cells[kRowNumber] = DecimalText(record.number);
  std::move(record.shortFields.begin(), record.shortFields.end(), cells.begin() + kChoiceA);
  cells[kAnswer] = std::move(record.answer);
  cells[kBackText] = std::move(record.longText);
  state.deck.cardPresent.Set(record.number, 1);
}

void ReadRecords(FileNumber& file, ProgramState& state, const CodePage& codePage) {
  while (std::optional<DeckRecord> record = ReadRecord(file, codePage)) {
    if (IsType(record->cardType, CardType::kTerminator) || state.deck.cardCount == kMostCards)
      return;
    const bool isCard = !IsType(record->cardType, CardType::kInformation);
    StoreRecord(std::move(*record), state);
    if (isCard) ++state.deck.cardCount;
  }
}

void TakeDeckStrings(ProgramState& state) {
  state.deck.date = state.deck.Cell(kInfoRow, kInfoDate);
  state.deck.typeName = state.deck.Cell(kInfoRow, kInfoType);
  state.deck.title = state.deck.Cell(kInfoRow, kInfoTitle);
  state.deck.author = state.deck.Cell(kInfoRow, kInfoAuthor);
  state.deck.description = state.deck.Cell(kInfoRow, kInfoDescription);
}

/// True where a card stands in the absent row, at which a save ends, or behind it.
bool LeavesOutCards(const Deck& deck, int row) {
  const std::vector<int> rows = CardRows(deck);
  return !rows.empty() && rows.back() >= row;
}

}  // namespace

std::optional<DeckRecord> ReadRecord(FileNumber& file, const CodePage& codePage) {
  RecordBytes bytes;
  const std::size_t count = file.GetNext(bytes);
  if (count < kLeastRecord) return std::nullopt;
  std::fill(bytes.begin() + count, bytes.end(), kBlank);
  return DecodeRecord(bytes, codePage);
}

DeckRecordView TextsOfRow(const ProgramState& state, int row) {
  // A row's cells lie side by side: this looks only once whether the row is there.
  const std::span cells(&state.deck.cardGrid.At(row, 0), kColumns);
  const bool present = state.deck.cardPresent.At(row) != 0;
  return {present ? TextView(cells[kCardType]) : LetterOf(CardType::kTerminator),
          cells[kCardText],
          0,
          {cells[kChoiceA], cells[kChoiceB], cells[kChoiceC], cells[kChoiceD]},
          cells[kAnswer],
          cells[kBackText]};
}

DeckRecordView RecordOfRow(const ProgramState& state, int row) {
  DeckRecordView record = TextsOfRow(state, row);
  const bool present = state.deck.cardPresent.At(row) != 0;
  record.number = present ? NumberInCell(state.deck.Cell(row, kRowNumber)) : std::int16_t{0};
  return record;
}

bool WriteRecords(const ProgramState& state, FileNumber& file, const CodePage& codePage) {
  bool whole = true;
  for (int row = kInfoRow; row < kRows; ++row) {
    whole &= SkipErrors([&] {
      file.Put(static_cast<std::uint64_t>(row) + 1,
               EncodeRecord(RecordOfRow(state, row), codePage));
    });
    if (state.deck.cardPresent.At(row) == 0) return whole && !LeavesOutCards(state.deck, row);
  }
  return whole;
}

void LoadDeckFromFile(const Text& fileName, ProgramState& state, FileNumber& file,
                      const CodePage& codePage) {
  // An import that an error has broken off leaves its text open.
  file.Close();
  file.OpenRandom(fileName, OpenMode::kRead, kRecordSize);
  state.deck.cardCount = 0;
  ReadRecords(file, state, codePage);
  file.Close();
  TakeDeckStrings(state);
  state.deck.currentCard = 1;
}

}  // namespace tessara
