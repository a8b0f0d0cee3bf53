#pragma once

#include <optional>
#include <vector>

#include "companion/cards/card_set.h"
#include "companion/cards/complaints.h"

namespace tessara {

/// What a column of a table holds of a card.
enum class CardColumn { kFront, kBack, kQuestion, kA, kB, kC, kD, kAnswer, kOther };

/// The columns of a table of cards, and the kind of deck that they make.
struct CardColumns {
  DeckKind kind = kStandardDeck;
  std::vector<CardColumn> columns;
};

/// The names that stand above the columns of a kind, in the order in which they are written.
[[nodiscard]] std::vector<const char*> ColumnNamesOf(DeckKind kind);

/// The columns by their names, in any order and case; nothing where they are no names of columns:
/// "front" and "back", or "question" and "answer", must be among them.
[[nodiscard]] std::optional<CardColumns> NamedColumns(const std::vector<Text>& names);

/// The columns of a table without names: up to three make a standard deck.
[[nodiscard]] CardColumns UnnamedColumns(std::size_t count);

/// The card of a record. An answer that is no choice is told and left empty.
[[nodiscard]] DeckRecord CardOfFields(const std::vector<Text>& fields, const CardColumns& columns,
                                      const Place& place, Losses& losses);

/// The fields of a card in the order of the names, for a table. Tells what a table of the kind does
/// not hold.
[[nodiscard]] std::vector<Text> FieldsOfCard(const SourceCard& card, DeckKind kind, Losses& losses);

}  // namespace tessara
