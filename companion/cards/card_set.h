#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "companion/cards/complaints.h"
#include "deck/card_type.h"
#include "deck/file/deck_record.h"

namespace tessara {

/// A card on its way from one file to another, and where it comes from. Its number is not used.
struct SourceCard {
  DeckRecord record;
  Place place;
};

/// What a deck's information tells besides its kind.
struct SetInfo {
  Text title;
  Text author;
  Text description;
  Text date;  ///< as "m/d/yyyy"
};

/// Cards of one kind in any number: what each format is read into and written from. A text card has
/// front and back in `text` and `longText`, a question its choices in `shortFields`. Line breaks
/// are CR LF.
struct CardSet {
  DeckKind kind = kStandardDeck;
  SetInfo info;
  std::vector<SourceCard> cards;
};

/// What goes into one file: all cards of a set, or those that a file of the format holds.
struct CardsToWrite {
  DeckKind kind;
  SetInfo info;
  std::span<const SourceCard> cards;  ///< at least one
};

inline constexpr const char* kTakenForEmpty =
    "its text is empty: the program takes the deck for empty";

/// Tells where the program will take the file for a deck without cards: the first one has no text.
void TellEmptyDeck(const CardsToWrite& deck, Losses& losses);

/// What messages call the short fields of a question.
inline constexpr std::array<const char*, 4> kChoiceNames = {"choice A", "choice B", "choice C",
                                                            "choice D"};

[[nodiscard]] bool HasChoices(const DeckRecord& record);

/// Tells what of a card a file without a place for it can't keep: choices and answer among cards of
/// two sides, a second side among questions.
void TellOtherKind(const SourceCard& card, DeckKind kind, Losses& losses);

/// The most cards that are taken together, and the most bytes of all inputs and of a field: what
/// keeps the memory in bounds.
inline constexpr std::size_t kMostSetCards = 50'000;
inline constexpr std::size_t kLargestInput = std::size_t{16} << 20U;
inline constexpr std::size_t kLargestField = std::size_t{1} << 20U;

/// Adds a card. Raises Refused beyond kMostSetCards.
void AddCard(CardSet& set, SourceCard card);

/// The numbers that ranges like "1-20,25" name, from 1 up to `count`, in their order and each once.
/// Nothing where the text names no numbers or one that is not there.
[[nodiscard]] std::optional<std::vector<int>> CardNumbersIn(std::string_view ranges, int count);

}  // namespace tessara
