#include "import/line_kinds.h"

namespace tessara {

bool IsWord(TextView xLine, TextView word) {
  const TextView trimmed = Trimmed(xLine);
  return trimmed.size() == word.size() && UpperCase(trimmed) == word;
}

bool IsTypeLine(TextView xLine) {
  return IsWord(xLine, kExtendedWord) || IsWord(xLine, kStandardWord);
}

bool HasEarlyDot(TextView xLine) {
  constexpr std::size_t kFirstPlace = 1;
  constexpr std::size_t kPlaces = 3;
  if (xLine.size() <= kFirstPlace) return false;
  return xLine.substr(kFirstPlace, kPlaces).find(u'.') != xLine.npos;
}

}  // namespace tessara
