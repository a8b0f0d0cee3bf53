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

}  // namespace tessara
