#include "companion/cards/card_set.h"

#include <algorithm>
#include <charconv>
#include <set>
#include <utility>

#include "companion/cards/complaints.h"

namespace tessara {

namespace {

/// 0 where it is no number.
int NumberOf(std::string_view digits) {
  int number = 0;
  const char* end = digits.data() + digits.size();
  const auto read = std::from_chars(digits.data(), end, number);
  return read.ptr == end && read.ec == std::errc() ? number : 0;
}

bool AddRange(std::string_view range, int count, std::set<int>& numbers) {
  const std::size_t dash = range.find('-');
  const int first = NumberOf(range.substr(0, dash));
  const int last = dash == range.npos ? first : NumberOf(range.substr(dash + 1));
  if (first < 1 || last < first || last > count) return false;
  for (int number = first; number <= last; ++number) numbers.insert(number);
  return true;
}

}  // namespace

bool HasChoices(const DeckRecord& record) {
  return std::any_of(record.shortFields.begin(), record.shortFields.end(),
                     [](const Text& choice) { return !choice.empty(); });
}

void TellOtherKind(const SourceCard& card, DeckKind kind, Losses& losses) {
  const DeckRecord& record = card.record;
  if (kind == kStandardDeck && (HasChoices(record) || !record.answer.empty()))
    losses.Tell(card.place, "its choices and its answer are not kept");
  if (kind == kExtendedDeck && !record.longText.empty())
    losses.Tell(card.place, "its long text is not kept");
}

void TellEmptyDeck(const CardsToWrite& deck, Losses& losses) {
  const SourceCard& first = deck.cards.front();
  if (Trimmed(first.record.text).empty()) losses.Tell(first.place, kTakenForEmpty);
}

void AddCard(CardSet& set, SourceCard card) {
  if (set.cards.size() == kMostSetCards)
    throw Refused(card.place, "more than " + std::to_string(kMostSetCards) + " cards");
  set.cards.push_back(std::move(card));
}

std::optional<std::vector<int>> CardNumbersIn(std::string_view ranges, int count) {
  std::set<int> numbers;
  for (std::size_t comma = 0; comma != ranges.npos;) {
    comma = ranges.find(',');
    if (!AddRange(ranges.substr(0, comma), count, numbers)) return std::nullopt;
    if (comma != ranges.npos) ranges.remove_prefix(comma + 1);
  }
  return std::vector<int>(numbers.begin(), numbers.end());
}

}  // namespace tessara
