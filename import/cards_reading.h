#pragma once

#include <cstddef>
#include <cstdint>

#include "deck/program_state.h"
#include "import/import_listener.h"
#include "import/line_reader.h"

namespace tessara {

/// The reading of a text's lines into the table: the line in hand lies in the state, its number
/// here, and a listener is told what is met.
class CardsReading {
 public:
  CardsReading(LineReader& lines, ProgramState& state, ImportListener& listener)
      : lines_(lines), state_(state), listener_(listener) {}

  [[nodiscard]] ProgramState& State() const { return state_; }
  [[nodiscard]] bool GoesOn() const { return listener_.GoesOn(); }
  [[nodiscard]] bool AtEnd() { return lines_.AtEnd(); }
  /// Takes the next line into the state.
  void NextLine();
  /// Takes lines up to one that is not empty. False at the end of the text.
  bool FindText();

  void MeetCard(std::int16_t card) { listener_.MeetCard(card, line_); }
  void Meet(ImportEvent event, std::int16_t card) { listener_.Meet({event, line_, card}); }
  /// The first line names the format.
  void MeetTypeLine(std::int16_t card);

 private:
  LineReader& lines_;
  ProgramState& state_;
  ImportListener& listener_;
  std::size_t line_ = 0;
};

/// True where the card may follow the last finished one, else tells that it may not.
[[nodiscard]] bool CheckCardSequence(std::int16_t card, std::int16_t previous,
                                     CardsReading& reading);

/// True for the number of a row that a card can have.
[[nodiscard]] bool IsNumberOfCard(double number);

/// Reads lines to the end of the cards. False where the text has an error, which has been told.
/// Raises run-time errors for what it does not foresee.
using CardsReader = bool (*)(CardsReading& reading);

}  // namespace tessara
