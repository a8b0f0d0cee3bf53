#include "import/cards_reading.h"

namespace tessara {

void CardsReading::NextLine() {
  // Swapped, so that the memory of a long line goes with it.
  lines_.ReadLine().swap(state_.import.line);
  ++line_;
}

bool CardsReading::FindText() {
  while (!AtEnd()) {
    NextLine();
    if (!state_.import.line.empty()) return true;
  }
  return false;
}

void CardsReading::MeetTypeLine(std::int16_t card) {
  if (line_ > 1) Meet(ImportEvent::kTypeLine, card);
}

bool IsNumberOfCard(double number) {
  return number >= 1 && number < kRows;
}

bool CheckCardSequence(std::int16_t card, std::int16_t previous, CardsReading& reading) {
  if (card == 0 || (card > 1 && previous == 0)) {
    reading.Meet(ImportEvent::kBadFirstCard, card);
    return false;
  }
  if (previous >= card || card >= previous + 2) {
    reading.Meet(ImportEvent::kBadSequence, previous);
    return false;
  }
  return true;
}

}  // namespace tessara
