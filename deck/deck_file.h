#pragma once

#include <array>
#include <span>

#include "deck/card_table.h"
#include "deck/file_number.h"
#include "platform/code_page.h"

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

/// Each text is cut or filled up with blanks to its field's width.
[[nodiscard]] RecordBytes EncodeRecord(const DeckRecord& record, const CodePage& codePage);
/// Texts come without the blanks at their ends.
[[nodiscard]] DeckRecord DecodeRecord(std::span<const char, kRecordSize> bytes,
                                      const CodePage& codePage);

/// The record of a row; the row behind the last card gives the terminator.
[[nodiscard]] DeckRecord RecordOfRow(const ProgramState& state, int row);

/// Writes a record for each row down to the first absent one, whose record is the terminator.
/// A record that can't be written is skipped; no error is raised.
void WriteRecords(const ProgramState& state, FileNumber& file, const CodePage& codePage);

/// Reads the file into the table, the card count, the deck strings, and sets the current card
/// to 1. Rows that the file does not name stay: the caller has emptied the table. Raises error 9
/// for a number outside the table and the file errors 53, 55, 70, 75, 76.
void LoadDeckFromFile(const Text& xFilename, ProgramState& state, FileNumber& file,
                      const CodePage& codePage);

}  // namespace tessara
