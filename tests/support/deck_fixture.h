#pragma once

#include <memory>
#include <vector>

#include "deck/deck_info_window.h"
#include "forms/window.h"
#include "tests/support/cards.h"
#include "tests/support/test_fixture.h"
#include "viewer/deck_window.h"

namespace tessara::test {

/// A fixture with the deck window and the information window.
struct DeckFixture : TestFixture {
  WindowSlot<DeckWindow> deckSlot{windows, [this] {
                                    return std::make_unique<DeckWindow>(
                                        app, fileNumber, Window<DeckInfoWindow>(infoSlot));
                                  }};
  WindowSlot<DeckInfoWindow> infoSlot{
      windows,
      [this] { return std::make_unique<DeckInfoWindow>(app, Window<DeckWindow>(deckSlot)); }};
  Window<DeckWindow> deck{deckSlot};
  Window<DeckInfoWindow> info{infoSlot};

  DeckFixture() {
    state.settings.largeCardColor = u"0";
    state.settings.largeCard3D = u"1";
    state.settings.smallCardColor = u"0";
    state.settings.smallCard3D = u"1";
  }

  /// Cards behind the last one.
  void AddTextCard(const Text& front, const Text& back) {
    AddCard(state, {.text = front, .back = back});
  }
  void AddTrueFalse(const Text& question, const Text& key) {
    AddCard(state, {.type = u"T", .text = question, .key = key});
  }
  void AddChoice(const Text& question, const std::vector<Text>& choices, const Text& key) {
    AddCard(state, {.type = u"M", .text = question, .choices = choices, .key = key});
  }

  /// Cards "front 1", "back 1" and on, on show in study mode.
  void OpenStandardDeck(int cards) {
    for (int card = 1; card <= cards; ++card) {
      AddTextCard(u"front " + DecimalText(card), u"back " + DecimalText(card));
    }
    Open(kStandardDeck);
  }
  /// Cards "question 1" and on, true/false and multiple choice in turn; every key is "T" or "B".
  void OpenExtendedDeck(int cards) {
    for (int card = 1; card <= cards; ++card) {
      const Text question = u"question " + DecimalText(card);
      if (card % 2 == 1) {
        AddTrueFalse(question, u"T");
      } else {
        AddChoice(question, {u"one", u"two", u"three", u"four"}, u"B");
      }
    }
    Open(kExtendedDeck);
  }
  /// Brings the table's deck up as the commands that load one do.
  void Open(DeckKind kind) {
    state.deck.currentCard = 1;
    if (kind == kExtendedDeck) {
      deck->OpenExtendedView();
      deck->ShowFirstCard(kExtendedDeck);
      deck->flip.SetCaption(u"&Hide Answer");
    } else {
      deck->OpenStandardView();
      deck->ShowFirstCard(kStandardDeck);
    }
    deck->UpdateMoveButtons();
    deck->AutoModeMenu();
    deck->AfterEditShow(kind);
  }
};

}  // namespace tessara::test
