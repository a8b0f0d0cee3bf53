#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>

#include "base/code_page.h"
#include "base/text.h"
#include "deck/file/field_widths.h"

namespace tessara {

/// One row of the table as the file holds it, field by field.
template <class Characters>
struct RecordFields {
  Characters cardType;
  Characters text;
  std::int16_t number = 0;
  std::array<Characters, 4> shortFields;
  Characters answer;
  Characters longText;

  /// Its texts where they are.
  operator RecordFields<TextView>() const requires std::same_as<Characters, Text> {
    const auto& [a, b, c, d] = shortFields;
    return {cardType, text, number, {a, b, c, d}, answer, longText};
  }
  /// The same with texts of its own.
  operator RecordFields<Text>() const requires std::same_as<Characters, TextView> {
    const auto& [a, b, c, d] = shortFields;
    return {Text(cardType), Text(text),    number, {Text(a), Text(b), Text(c), Text(d)},
            Text(answer),   Text(longText)};
  }
};

using DeckRecord = RecordFields<Text>;
/// Of texts that lie elsewhere.
using DeckRecordView = RecordFields<TextView>;

using RecordBytes = std::array<char, kRecordSize>;
using RecordView = std::span<const char, kRecordSize>;

/// Each text is cut or filled up with blanks to its field's width, by the rules of StoreText.
void EncodeRecord(const DeckRecordView& record, const CodePage& codePage,
                  std::span<char, kRecordSize> bytes);
[[nodiscard]] RecordBytes EncodeRecord(const DeckRecordView& record, const CodePage& codePage);
/// Texts come without the blanks at their ends.
[[nodiscard]] DeckRecord DecodeRecord(RecordView bytes, const CodePage& codePage);

}  // namespace tessara
