#include "deck/deck_file.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/conversion.h"
#include "platform/skip_errors.h"

namespace tessara {

namespace {

/// A field of a record: where it begins and its width, in bytes.
struct Field {
  std::size_t offset;
  std::size_t width;
};

constexpr Field kTypeField = {0, 1};
constexpr Field kTextField = {1, 444};
constexpr Field kNumberField = {445, 2};
constexpr std::array<Field, 4> kShortFields = {{{447, 75}, {522, 75}, {597, 75}, {672, 75}}};
constexpr Field kAnswerField = {747, 1};
constexpr Field kLongField = {748, 444};
static_assert(kLongField.offset + kLongField.width == kRecordSize);

/// A record that was cut off before this has no row to go to.
constexpr std::size_t kLeastRecord = kNumberField.offset + kNumberField.width;

constexpr char kBlank = ' ';
constexpr TextView kTerminator = u"X";
constexpr TextView kInformation = u"I";

using Bytes = std::span<const char, kRecordSize>;

void PutText(RecordBytes& bytes, Field field, const Text& text, const CodePage& codePage) {
  const std::string stored = codePage.Encode(TextView(text).substr(0, field.width));
  std::copy(stored.begin(), stored.end(), bytes.data() + field.offset);
}

/// Most of a field is blanks: they go in long strides.
std::string_view WithoutBlanksBehind(std::string_view bytes) {
  constexpr std::string_view kStride = "        ";
  while (bytes.ends_with(kStride)) bytes.remove_suffix(kStride.size());
  while (bytes.ends_with(kBlank)) bytes.remove_suffix(1);
  return bytes;
}

Text TextAt(Bytes bytes, Field field, const CodePage& codePage) {
  std::string_view text = WithoutBlanksBehind({bytes.data() + field.offset, field.width});
  while (text.starts_with(kBlank)) text.remove_prefix(1);
  return text.empty() ? Text() : codePage.Decode(text);
}

/// Little-endian, whatever the machine.
void PutNumber(RecordBytes& bytes, std::int16_t number) {
  const auto bits = static_cast<std::uint16_t>(number);
  bytes[kNumberField.offset] = static_cast<char>(bits & 0xFFU);
  bytes[kNumberField.offset + 1] = static_cast<char>(bits >> 8U);
}

std::int16_t NumberAt(Bytes bytes) {
  const auto low = static_cast<unsigned char>(bytes[kNumberField.offset]);
  const auto high = static_cast<unsigned char>(bytes[kNumberField.offset + 1]);
  return static_cast<std::int16_t>(low | (high << 8U));
}

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

RecordBytes EncodeRecord(const DeckRecord& record, const CodePage& codePage) {
  RecordBytes bytes;
  bytes.fill(kBlank);
  PutText(bytes, kTypeField, record.cardType, codePage);
  PutText(bytes, kTextField, record.text, codePage);
  PutNumber(bytes, record.number);
  for (std::size_t at = 0; at < kShortFields.size(); ++at) {
    PutText(bytes, kShortFields[at], record.shortFields[at], codePage);
  }
  PutText(bytes, kAnswerField, record.answer, codePage);
  PutText(bytes, kLongField, record.longText, codePage);
  return bytes;
}

DeckRecord DecodeRecord(std::span<const char, kRecordSize> bytes, const CodePage& codePage) {
  DeckRecord record;
  record.cardType = TextAt(bytes, kTypeField, codePage);
  record.text = TextAt(bytes, kTextField, codePage);
  record.number = NumberAt(bytes);
  for (std::size_t at = 0; at < kShortFields.size(); ++at) {
    record.shortFields[at] = TextAt(bytes, kShortFields[at], codePage);
  }
  record.answer = TextAt(bytes, kAnswerField, codePage);
  record.longText = TextAt(bytes, kLongField, codePage);
  return record;
}

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

void WriteRecords(const ProgramState& state, FileNumber& file, const CodePage& codePage) {
  for (int row = kInfoRow; row < kRows; ++row) {
    SkipErrors([&] {
      file.Put(static_cast<std::uint64_t>(row) + 1,
               EncodeRecord(RecordOfRow(state, row), codePage));
    });
    if (state.CardPresent.At(row) == 0) return;
  }
}

void LoadDeckFromFile(const Text& xFilename, ProgramState& state, FileNumber& file,
                      const CodePage& codePage) {
  file.OpenRandom(xFilename, OpenMode::kRead, kRecordSize);
  state.CardCount = 0;
  ReadRecords(file, state, codePage);
  file.Close();
  TakeDeckStrings(state);
  state.CurrentCard = 1;
}

}  // namespace tessara
