#include "import/line_kinds.h"

namespace tessara {

bool IsWord(TextView line, TextView word) {
  const TextView trimmed = Trimmed(line);
  return trimmed.size() == word.size() && UpperCase(trimmed) == word;
}

bool IsTypeLine(TextView line) {
  return IsWord(line, kExtendedWord) || IsWord(line, kStandardWord);
}

bool HasEarlyDot(TextView line) {
  constexpr std::size_t kFirstPlace = 1;
  constexpr std::size_t kPlaces = 3;
  if (line.size() <= kFirstPlace) return false;
  return line.substr(kFirstPlace, kPlaces).find(u'.') != line.npos;
}

}  // namespace tessara
