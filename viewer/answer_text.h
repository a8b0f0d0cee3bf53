#pragma once

#include "deck/answer_key.h"
#include "deck/program_state.h"

namespace tessara {

/// What the user reads for an answer key: the choice's text for "A" to "D", "TRUE" or "FALSE" for
/// "T" and "F", nothing for any other key. Exact and case-sensitive. Raises error 9 for a row
/// outside the table.
[[nodiscard]] Text AnswerText(TextView key, int row, const ProgramState& state);

/// The answer key that a choice, 0 to 3, of a card of that type stands for. Empty for the first
/// two choices of a card that is no question.
[[nodiscard]] TextView KeyOfChoice(int choice, TextView cardType);

}  // namespace tessara
