#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "base/code_page.h"
#include "base/text.h"

namespace tessara {

/// Bytes of a record of the deck file; docs/deck-format.md has the fields.
inline constexpr std::size_t kRecordSize = 1192;

/// One row of the table as the file holds it, field by field.
struct DeckRecord {
  Text cardType;
  Text text;
  std::int16_t number = 0;
  std::array<Text, 4> shortFields;
  Text answer;
  Text longText;
};

using RecordBytes = std::array<char, kRecordSize>;
using RecordView = std::span<const char, kRecordSize>;

/// What fills up a text's field.
inline constexpr char kBlank = ' ';

/// How many bytes of a record there must be at least: one that is cut off before the end of its
/// number has no row to go to.
inline constexpr std::size_t kLeastRecord = 447;

/// Each text is cut or filled up with blanks to its field's width.
[[nodiscard]] RecordBytes EncodeRecord(const DeckRecord& record, const CodePage& codePage);
/// Texts come without the blanks at their ends.
[[nodiscard]] DeckRecord DecodeRecord(RecordView bytes, const CodePage& codePage);

}  // namespace tessara
