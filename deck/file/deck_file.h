#pragma once

#include <optional>

#include "base/code_page.h"
#include "deck/file/deck_record.h"
#include "deck/file/file_number.h"
#include "deck/program_state.h"

namespace tessara {

/// The next record of the open file; nothing at its end. One that was cut off behind its number
/// counts: blanks take the place of what is missing.
[[nodiscard]] std::optional<DeckRecord> ReadRecord(FileNumber& file, const CodePage& codePage);

/// The texts of a row as they lie in the table, without its number; the row behind the last card
/// gives those of the terminator.
[[nodiscard]] DeckRecordView TextsOfRow(const ProgramState& state, int row);
/// The same with the number.
[[nodiscard]] DeckRecordView RecordOfRow(const ProgramState& state, int row);

/// Writes a record for each row down to the first absent one, whose record is the terminator.
/// A record that can't be written is skipped; no error is raised. True where none was
/// skipped and no card is left out.
bool WriteRecords(const ProgramState& state, FileNumber& file, const CodePage& codePage);

/// Reads the file into the table, the card count and the deck strings, and sets the current card
/// to 1. Rows that the file does not name stay: the caller has emptied the table. What the file
/// number still holds is closed first. Raises error 9
/// for a number outside the table, and the errors of a file; one that is raised while it reads
/// leaves the file open.
void LoadDeckFromFile(const Text& fileName, ProgramState& state, FileNumber& file,
                      const CodePage& codePage);

}  // namespace tessara
