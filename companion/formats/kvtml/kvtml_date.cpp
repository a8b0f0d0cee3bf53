#include <array>
#include <cstdio>
#include <string>

#include "base/utf8.h"
#include "companion/formats/kvtml/kvtml_format.h"
#include "deck/date_text.h"

namespace tessara {

namespace {

/// The date in the order of the three numbers; a year of 0 where the text is none.
struct Numbers {
  int first = 0;
  int second = 0;
  int third = 0;
};

bool ReadNumbers(const Text& text, const char* format, Numbers& numbers) {
  const std::string bytes = ToUtf8(text);
  int end = 0;
  const int read =
      std::sscanf(bytes.c_str(), format, &numbers.first, &numbers.second, &numbers.third, &end);
  return read == 3 && static_cast<std::size_t>(end) == bytes.size();
}

}  // namespace

Text DeckDateOf(const Text& kvtmlDate) {
  Numbers date;
  if (!ReadNumbers(kvtmlDate, "%4d-%2d-%2d%n", date)) return kvtmlDate;
  return DateText({date.first, date.second, date.third});
}

Text KvtmlDateOf(const Text& deckDate) {
  Numbers date;
  if (!ReadNumbers(deckDate, "%2d/%2d/%4d%n", date)) return deckDate;
  std::array<char, 40> bytes{};
  std::snprintf(bytes.data(), bytes.size(), "%04d-%02d-%02d", date.third, date.first, date.second);
  // Another way of writing the same day would not come back.
  const Text kvtmlDate = FromUtf8(bytes.data());
  return DeckDateOf(kvtmlDate) == deckDate ? kvtmlDate : deckDate;
}

}  // namespace tessara
