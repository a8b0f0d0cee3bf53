#include "viewer/answer_text.h"

#include "deck/card_type.h"

namespace tessara {

namespace {

constexpr TextView kChoiceKeys = u"ABCD";

bool IsChoiceKey(TextView key) {
  return key.size() == 1 && kChoiceKeys.find(key) != TextView::npos;
}

}  // namespace

Text AnswerText(TextView key, int row, const ProgramState& state) {
  if (key == u"T") return u"TRUE";
  if (key == u"F") return u"FALSE";
  return IsChoiceKey(key) ? state.deck.Cell(row, kChoiceA + AnswerIndex(key)) : Text();
}

int AnswerIndex(TextView key) {
  if (IsChoiceKey(key)) return static_cast<int>(kChoiceKeys.find(key));
  return key == u"F" ? 1 : 0;
}

TextView KeyOfChoice(int choice, TextView cardType) {
  if (IsType(cardType, CardType::kMultipleChoice) || choice >= 2)
    return kChoiceKeys.substr(static_cast<std::size_t>(choice), 1);
  if (IsType(cardType, CardType::kTrueFalse)) return choice == 0 ? u"T" : u"F";
  return {};
}

}  // namespace tessara
