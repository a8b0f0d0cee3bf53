#pragma once

#include "base/text.h"

namespace tessara {

/// What stands in the table and in the file for the right answer of a question: "T" or "F" of one
/// that is true or false, else the letter of a choice. Exact and case-sensitive.
inline constexpr TextView kTrueKey = u"T";
inline constexpr TextView kFalseKey = u"F";
inline constexpr TextView kChoiceKeys = u"ABCD";

[[nodiscard]] constexpr bool IsTrueFalseKey(TextView key) {
  return key == kTrueKey || key == kFalseKey;
}

[[nodiscard]] constexpr bool IsChoiceKey(TextView key) {
  return key.size() == 1 && kChoiceKeys.find(key) != TextView::npos;
}

/// The place of an answer key among the choices, 0 to 3; 0 for a key that is none.
[[nodiscard]] constexpr int AnswerIndex(TextView key) {
  if (IsChoiceKey(key)) return static_cast<int>(kChoiceKeys.find(key));
  return key == kFalseKey ? 1 : 0;
}

}  // namespace tessara
