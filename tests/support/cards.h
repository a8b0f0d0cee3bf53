#pragma once

#include <vector>

#include "deck/card_table.h"

namespace tessara::test {

/// A card as a test tells it: what it does not name is empty.
struct TestCard {
  Text type = u"E";
  Text text = u"";
  Text back = u"";
  std::vector<Text> choices = {};
  Text key = u"";
};

inline void PutCard(ProgramState& state, int row, const TestCard& card) {
  state.CardGrid.Set(row, kCardType, card.type);
  state.CardGrid.Set(row, kCardText, card.text);
  state.CardGrid.Set(row, kRowNumber, DecimalText(row));
  state.CardGrid.Set(row, kBackText, card.back);
  int column = kChoiceA;
  for (const Text& choice : card.choices) state.CardGrid.Set(row, column++, choice);
  state.CardGrid.Set(row, kAnswer, card.key);
  state.CardPresent.Set(row, 1);
}

/// Puts the card behind the last one.
inline void AddCard(ProgramState& state, const TestCard& card) {
  PutCard(state, ++state.CardCount, card);
}

/// Adds the card as a builder does, which leaves it on show and the deck to be saved.
inline void BuildCard(ProgramState& state, const TestCard& card) {
  AddCard(state, card);
  state.CurrentCard = state.CardCount;
  state.DeckChanged = true;
  state.SaveOffered = true;
}

}  // namespace tessara::test
