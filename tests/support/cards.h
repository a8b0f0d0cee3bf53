#pragma once

#include <vector>

#include "deck/program_state.h"

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
  state.deck.cardGrid.Set(row, kCardType, card.type);
  state.deck.cardGrid.Set(row, kCardText, card.text);
  state.deck.cardGrid.Set(row, kRowNumber, DecimalText(row));
  state.deck.cardGrid.Set(row, kBackText, card.back);
  int column = kChoiceA;
  for (const Text& choice : card.choices) state.deck.cardGrid.Set(row, column++, choice);
  state.deck.cardGrid.Set(row, kAnswer, card.key);
  state.deck.cardPresent.Set(row, 1);
}

/// Puts the card behind the last one.
inline void AddCard(ProgramState& state, const TestCard& card) {
  PutCard(state, ++state.deck.cardCount, card);
}

/// Adds the card as a builder does, which leaves it on show and the deck to be saved.
inline void BuildCard(ProgramState& state, const TestCard& card) {
  AddCard(state, card);
  state.deck.currentCard = state.deck.cardCount;
  state.deck.changed = true;
  state.deck.saveOffered = true;
}

}  // namespace tessara::test
