#include "viewer/answer_text.h"

#include "deck/card_type.h"

namespace tessara {

Text AnswerText(TextView key, int row, const ProgramState& state) {
  if (key == kTrueKey) return u"TRUE";
  if (key == kFalseKey) return u"FALSE";
  return IsChoiceKey(key) ? state.deck.Cell(row, kChoiceA + AnswerIndex(key)) : Text();
}

TextView KeyOfChoice(int choice, TextView cardType) {
  if (IsType(cardType, CardType::kMultipleChoice) || choice >= 2)
    return kChoiceKeys.substr(static_cast<std::size_t>(choice), 1);
  if (IsType(cardType, CardType::kTrueFalse)) return choice == 0 ? kTrueKey : kFalseKey;
  return {};
}

}  // namespace tessara
