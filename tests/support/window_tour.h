#pragma once

#include "shell/program.h"
#include "tests/support/fakes/fake_machine.h"

namespace tessara::test {

/// Opens every window of a program that has a deck of text cards on show, and closes it again as
/// the user does. `closeModal` is called before a modal window comes up and has to see to its end.
class WindowTour {
 public:
  WindowTour(Program& program, FakeMachine& fakes, std::function<void()> closeModal)
      : program_(program), fakes_(fakes), closeModal_(std::move(closeModal)) {}

  void GoRound() {
    DeckWindow& deck = Deck();
    Visit(deck.deckInfo, program_.InfoWindow());
    Visit(deck.createOrEditCard, program_.TextBuilder());
    Visit(deck.printDeck, program_.PrintWindowOf());
    Visit(deck.about, program_.AboutBoxOf());
    closeModal_();
    deck.separatingCards.Press();
    fakes_.messages.answers = {MessageAnswer::kYes};
    deck.UserClose();
    Visit(Frame().setUp, program_.SetUpWindowOf());
    Frame().newExtendedDeck.Press();
    Visit(Deck().createOrEditCard, program_.QuestionBuilderOf());
    Deck().UserClose();
    OpenDeck();
    fakes_.messages.shown.clear();
    fakes_.dialogs.fileRequests.clear();
    fakes_.desktop.pointers.clear();
  }

  void OpenDeck() {
    fakes_.dialogs.files = {u"/decks/birds.tsr"};
    Frame().openExistingDeck.Press();
  }

  int visits = 0;
  /// Runs whenever a window that is no modal one has come up.
  std::function<void()> atWindow = [] {};

 private:
  template <class F>
  void Visit(MenuEntry& command, Window<F> window) {
    command.Press();
    atWindow();
    if (!window.IsLoaded()) return;
    ++visits;
    // Whatever a window asks on its way: no.
    fakes_.messages.answers = {MessageAnswer::kNo, MessageAnswer::kNo};
    window->UserClose();
    fakes_.messages.answers.clear();
    if (window.IsLoaded()) --visits;
  }
  DeckWindow& Deck() { return program_.DeckWindowOf().Loaded(); }
  ProgramFrame& Frame() { return program_.FrameWindow().Loaded(); }

  Program& program_;
  FakeMachine& fakes_;
  std::function<void()> closeModal_;
};

/// Windows that a round visits: all but frame, deck window, splash and the modal instructions.
inline constexpr int kVisitsOfRound = 6;

/// Moves to and fro through the deck on show, and turns each card over and back.
inline void MoveThroughDeck(DeckWindow& deck, int moves) {
  int direction = 1;
  for (int move = 0; move < moves; ++move) {
    if (!deck.arrows[direction].Enabled()) direction = 1 - direction;
    deck.arrows[direction].Press();
    deck.flip.Press();
    deck.flip.Press();
  }
}

}  // namespace tessara::test
