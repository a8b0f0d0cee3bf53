#include "viewer/answer_text.h"

namespace tessara {

namespace {

constexpr TextView kChoiceKeys = u"ABCD";

bool IsChoiceKey(TextView xAns) {
  return xAns.size() == 1 && kChoiceKeys.find(xAns) != TextView::npos;
}

}  // namespace

Text AnswerText(TextView xAns, int xRec, const ProgramState& state) {
  if (xAns == u"T") return u"TRUE";
  if (xAns == u"F") return u"FALSE";
  return IsChoiceKey(xAns) ? state.Cell(xRec, kChoiceA + AnswerIndex(xAns)) : Text();
}

int AnswerIndex(TextView xAns) {
  if (IsChoiceKey(xAns)) return static_cast<int>(kChoiceKeys.find(xAns));
  return xAns == u"F" ? 1 : 0;
}

TextView KeyOfChoice(int choice, TextView cardType) {
  if (cardType == u"M" || choice >= 2)
    return kChoiceKeys.substr(static_cast<std::size_t>(choice), 1);
  if (cardType == u"T") return choice == 0 ? u"T" : u"F";
  return {};
}

}  // namespace tessara
