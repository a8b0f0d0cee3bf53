#pragma once

#include "shell/program.h"
#include "tests/support/fake_machine.h"

namespace tessara::test {

/// Opens every window of a program that has a deck of text cards on show, and closes it again as
/// the user does. `closeModal` is called before a modal window comes up and has to see to its end.
class WindowTour {
 public:
  WindowTour(Program& program, FakeMachine& fakes, std::function<void()> closeModal)
      : program_(program), fakes_(fakes), closeModal_(std::move(closeModal)) {}

  void GoRound() {
    frmMain& deck = Deck();
    Visit(deck.mnuCDI, program_.InfoWindow());
    Visit(deck.mnuACTTD, program_.TextBuilder());
    Visit(deck.mnuPrint, program_.PrintWindow());
    Visit(deck.mnuAbout, program_.AboutBox());
    closeModal_();
    deck.mnuSC.Press();
    fakes_.messages.answers = {MessageAnswer::kYes};
    deck.UserClose();
    Visit(Frame().mnuSetup, program_.SetUpWindow());
    Frame().mnuExtTessara.Press();
    Visit(Deck().mnuACTTD, program_.QuestionBuilder());
    Deck().UserClose();
    OpenDeck();
    fakes_.messages.shown.clear();
    fakes_.dialogs.fileRequests.clear();
    fakes_.desktop.pointers.clear();
  }

  void OpenDeck() {
    fakes_.dialogs.files = {u"/decks/birds.tsr"};
    Frame().mnuOPenExisting.Press();
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
  frmMain& Deck() { return program_.DeckWindowOf().Loaded(); }
  MDIForm1& Frame() { return program_.FrameWindow().Loaded(); }

  Program& program_;
  FakeMachine& fakes_;
  std::function<void()> closeModal_;
};

/// Windows that a round visits: all but frame, deck window, splash and the modal instructions.
inline constexpr int kVisitsOfRound = 6;

/// Moves to and fro through the deck on show, and turns each card over and back.
inline void MoveThroughDeck(frmMain& deck, int moves) {
  int direction = 1;
  for (int move = 0; move < moves; ++move) {
    if (!deck.cmdMove[direction].Enabled()) direction = 1 - direction;
    deck.cmdMove[direction].Press();
    deck.Command3[1].Press();
    deck.Command3[1].Press();
  }
}

}  // namespace tessara::test
