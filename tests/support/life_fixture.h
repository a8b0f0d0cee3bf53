#pragma once

#include <vector>

#include "tests/support/deck_bytes.h"
#include "tests/support/deck_fixture.h"

namespace tessara::test {

using Boxes = std::vector<FakeMessages::Shown>;

/// What tells the states of the deck window apart.
struct DeckFlags {
  Text path;
  bool changed = false;
  bool offered = false;
  bool onFile = false;
  friend bool operator==(const DeckFlags&, const DeckFlags&) = default;
};

/// A fixture for the life of a deck: a folder /decks, dialogs answered in short, boxes compared.
struct LifeFixture : DeckFixture {
  LifeFixture() { fakes.files.folders.insert(u"/decks"); }

  void PutDeck(const Text& path, int cards, const InfoTexts& texts = {}) {
    fakes.files.Put(path, DeckBytes(cards, texts));
  }
  /// The deck window with an empty new deck, as the frame brings it up.
  void NewDeck() { deck->OpenStandardView(); }
  /// Adds a text card as a builder does.
  void BuildCard(const Text& front, const Text& back) {
    test::BuildCard(state, {.text = front, .back = back});
  }
  /// A new deck of text cards that has no file.
  void BuildDeck(int cards) {
    NewDeck();
    for (int card = 1; card <= cards; ++card) {
      BuildCard(u"front " + DecimalText(card), u"back " + DecimalText(card));
    }
  }
  void OpenFile(const Text& path) {
    Choose(path);
    Run([this] { deck->OpenDeck(); });
  }
  void OpenFromCommandLine(const Text& path) {
    state.start.commandLineFile = path;
    deck.Loaded();
    state.start.deckFromCommandLine = false;
  }

  [[nodiscard]] DeckFlags FlagsNow() const {
    return {state.deck.filePath, state.deck.changed, state.deck.saveOffered, state.deck.onFile};
  }

  // The commands of the deck window.
  void Clear() {
    Run([this] { deck->ClearDeck(); });
  }
  void Save() {
    Run([this] { deck->SaveDeck(); });
  }
  void SaveAs(const Text& path) {
    Choose(path);
    Run([this] { deck->SaveDeckAs(); });
  }
  void CheckSave() {
    Run([this] { deck->OfferToSave(); });
  }
  void Exit() {
    Run([this] { deck->CloseTessara(); });
  }
  void Close() { deck->closeDeck.Press(); }
  /// Deletes the card on show.
  void DeleteCard() {
    Answer(MessageAnswer::kYes);
    Run([this] { deck->DeleteCard(); });
  }

  /// What the user does in the next file dialogs and questions.
  void Choose(const Text& path) { fakes.dialogs.files.push_back(path); }
  void Cancel() { Choose(u""); }
  void Answer(MessageAnswer answer) { fakes.messages.answers.push_back(answer); }

  /// Runs a command as an event of the window system.
  void Run(const std::function<void()>& command) { windows.Run(command); }

  /// The boxes shown since the last time.
  Boxes TakeBoxes() { return fakes.messages.Take(); }
  [[nodiscard]] std::string File(const Text& path) const { return fakes.files.Bytes(path); }
};

inline FakeMessages::Shown SavedBox(const Text& path) {
  return {u"This file has been saved to " + path, 0, u"Save"};
}

inline const FakeMessages::Shown kChangesBox = {
    u"There have been changes to this Tessara.Do you want to save them?", 36, u"Unsaved Changes: "};
inline const FakeMessages::Shown kNotSavedBox = {u"This file was not saved.", 64,
                                                 u"File Not Saved"};
inline const FakeMessages::Shown kSureBox = {u"ARE YOU SURE?", 36, u"Close Tessara"};
inline const FakeMessages::Shown kQuitBox = {u"Tessara must be in study mode before quiting.", 0,
                                             u"Quit"};
inline const FakeMessages::Shown kEmptyDeckBox = {
    u"You can not save an empty deck to file. You must add at least one card.", 48,
    u"Error Saving"};
inline const FakeMessages::Shown kNotADeckBox = {u"This is not a valid Tessara file", 16,
                                                 u"Error Opening File"};

}  // namespace tessara::test
