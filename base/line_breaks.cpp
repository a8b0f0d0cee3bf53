#include "base/line_breaks.h"

namespace tessara {

Text WithLineBreaks(TextView text) {
  Text result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char16_t character = text[at];
    if (character != kCarriageReturn && character != kLineFeed) {
      result += character;
      continue;
    }
    result += kLineBreak;
    const bool pair = character == kCarriageReturn && text.substr(at + 1, 1) == u"\n";
    if (pair) ++at;
  }
  return result;
}

}  // namespace tessara
