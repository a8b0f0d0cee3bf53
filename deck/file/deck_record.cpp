#include "deck/file/deck_record.h"

#include <algorithm>
#include <string>

#include "base/ascii.h"
#include "deck/file/stored_text.h"

namespace tessara {

namespace {

using Bytes = std::span<char, kRecordSize>;

/// How many bytes of the field the text has taken.
std::size_t FillFront(std::span<char> field, TextView text, const CodePage& codePage) {
  if (text.empty()) return 0;
  if (CopiedAsAscii(text, field)) return std::min(text.size(), field.size());
  const std::string stored = StoreText(text, field.size(), codePage).bytes;
  std::copy(stored.begin(), stored.end(), field.begin());
  return stored.size();
}

void PutText(Bytes bytes, RecordField field, TextView text, const CodePage& codePage) {
  const std::span<char> place = bytes.subspan(field.offset, field.width);
  const std::span<char> rest = place.subspan(FillFront(place, text, codePage));
  std::fill(rest.begin(), rest.end(), kBlank);
}

Text TextAt(RecordView bytes, RecordField field, const CodePage& codePage) {
  return ReadText({bytes.data() + field.offset, field.width}, codePage);
}

/// Little-endian, whatever the machine.
void PutNumber(Bytes bytes, std::int16_t number) {
  const auto bits = static_cast<std::uint16_t>(number);
  bytes[kNumberField.offset] = static_cast<char>(bits & 0xFFU);
  bytes[kNumberField.offset + 1] = static_cast<char>(bits >> 8U);
}

std::int16_t NumberAt(RecordView bytes) {
  const auto low = static_cast<unsigned char>(bytes[kNumberField.offset]);
  const auto high = static_cast<unsigned char>(bytes[kNumberField.offset + 1]);
  return static_cast<std::int16_t>(low | (high << 8U));
}

}  // namespace

void EncodeRecord(const DeckRecordView& record, const CodePage& codePage, Bytes bytes) {
  PutText(bytes, kTypeField, record.cardType, codePage);
  PutText(bytes, kTextField, record.text, codePage);
  PutNumber(bytes, record.number);
  for (std::size_t at = 0; at < kShortFields.size(); ++at) {
    PutText(bytes, kShortFields[at], record.shortFields[at], codePage);
  }
  PutText(bytes, kAnswerField, record.answer, codePage);
  PutText(bytes, kLongField, record.longText, codePage);
}

RecordBytes EncodeRecord(const DeckRecordView& record, const CodePage& codePage) {
  RecordBytes bytes;
  EncodeRecord(record, codePage, bytes);
  return bytes;
}

DeckRecord DecodeRecord(RecordView bytes, const CodePage& codePage) {
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

}  // namespace tessara
