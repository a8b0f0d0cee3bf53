#pragma once

#include <optional>

#include "base/text.h"
#include "deck/deck.h"

namespace tessara {

/// What a row of the table, or a record of the deck file, is.
enum class CardType { kInformation, kText, kTrueFalse, kMultipleChoice, kTerminator };

/// The letter that stands for it in the table and in the file.
[[nodiscard]] constexpr TextView LetterOf(CardType type) {
  switch (type) {
    case CardType::kInformation:
      return u"I";
    case CardType::kText:
      return u"E";
    case CardType::kTrueFalse:
      return u"T";
    case CardType::kMultipleChoice:
      return u"M";
    case CardType::kTerminator:
      return u"X";
  }
  return {};
}

[[nodiscard]] constexpr bool IsType(TextView letter, CardType type) {
  return letter == LetterOf(type);
}

/// The kind of deck that a card with the letter belongs to; nothing for a letter of no card.
[[nodiscard]] constexpr std::optional<DeckKind> DeckKindOf(TextView letter) {
  if (IsType(letter, CardType::kText)) return kStandardDeck;
  const bool question =
      IsType(letter, CardType::kTrueFalse) || IsType(letter, CardType::kMultipleChoice);
  return question ? std::optional(kExtendedDeck) : std::nullopt;
}

/// What the deck's information calls the kind; empty for an unknown one.
[[nodiscard]] constexpr TextView NameOf(DeckKind kind) {
  switch (kind) {
    case kStandardDeck:
      return u" Standard";
    case kExtendedDeck:
      return u" Extended";
  }
  return {};
}

}  // namespace tessara
