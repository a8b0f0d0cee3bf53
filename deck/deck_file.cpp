#include "deck/deck_file.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/conversion.h"
#include "platform/skip_errors.h"

namespace tessara {

namespace {

constexpr TextView kTerminator = u"X";
constexpr TextView kInformation = u"I";

/// An empty cell is the number 0.
std::int16_t NumberInCell(const Text& cell) {
  return cell.empty() ? std::int16_t{0} : IntegerOf(cell);
}

void StoreRecord(DeckRecord&& record, ProgramState& state) {
  const CardTable::RowCells cells = state.CardGrid.Row(record.number);
  cells[kCardType] = std::move(record.cardType);
  cells[kCardText] = std::move(record.text);
  cells[kRowNumber] = DecimalText(record.number);
  std::move(record.shortFields.begin(), record.shortFields.end(), cells.begin() + kChoiceA);
  cells[kAnswer] = std::move(record.answer);
  cells[kBackText] = std::move(record.longText);
  state.CardPresent.Set(record.number, 1);
}

/// A record that was cut off behind its number counts: blanks take the place of what is missing.
std::optional<DeckRecord> ReadRecord(FileNumber& file, const CodePage& codePage) {
  RecordBytes bytes;
  const std::size_t count = file.GetNext(bytes);
  if (count < kLeastRecord) return std::nullopt;
  std::fill(bytes.begin() + count, bytes.end(), kBlank);
  return DecodeRecord(bytes, codePage);
}

void ReadRecords(FileNumber& file, ProgramState& state, const CodePage& codePage) {
  while (std::optional<DeckRecord> record = ReadRecord(file, codePage)) {
    if (record->cardType == kTerminator || state.CardCount == kMostCards) return;
    const bool isCard = record->cardType != kInformation;
    StoreRecord(std::move(*record), state);
    if (isCard) ++state.CardCount;
  }
}

void TakeDeckStrings(ProgramState& state) {
  state.DeckDate = state.Cell(kInfoRow, kInfoDate);
  state.DeckTypeName = state.Cell(kInfoRow, kInfoType);
  state.DeckTitle = state.Cell(kInfoRow, kInfoTitle);
  state.DeckAuthor = state.Cell(kInfoRow, kInfoAuthor);
  state.DeckDescription = state.Cell(kInfoRow, kInfoDescription);
}

}  // namespace

DeckRecord RecordOfRow(const ProgramState& state, int row) {
  const bool present = state.CardPresent.At(row) != 0;
  DeckRecord record;
  record.cardType = present ? state.Cell(row, kCardType) : Text(kTerminator);
  record.text = state.Cell(row, kCardText);
  record.number = present ? NumberInCell(state.Cell(row, kRowNumber)) : std::int16_t{0};
  for (std::size_t at = 0; at < record.shortFields.size(); ++at) {
    record.shortFields[at] = state.Cell(row, kChoiceA + static_cast<int>(at));
  }
  record.answer = state.Cell(row, kAnswer);
  record.longText = state.Cell(row, kBackText);
  return record;
}

bool WriteRecords(const ProgramState& state, FileNumber& file, const CodePage& codePage) {
  bool whole = true;
  for (int row = kInfoRow; row < kRows; ++row) {
    whole &= SkipErrors([&] {
      file.Put(static_cast<std::uint64_t>(row) + 1,
               EncodeRecord(RecordOfRow(state, row), codePage));
    });
    if (state.CardPresent.At(row) == 0) break;
  }
  return whole;
}

void LoadDeckFromFile(const Text& xFilename, ProgramState& state, FileNumber& file,
                      const CodePage& codePage) {
  // An import that an error has broken off leaves its text open.
  file.Close();
  file.OpenRandom(xFilename, OpenMode::kRead, kRecordSize);
  state.CardCount = 0;
  ReadRecords(file, state, codePage);
  file.Close();
  TakeDeckStrings(state);
  state.CurrentCard = 1;
}

}  // namespace tessara
