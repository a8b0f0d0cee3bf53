#pragma once

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "deck/app_context.h"
#include "deck/card_display.h"
#include "forms/controls/controls.h"
#include "forms/form.h"
#include "forms/window.h"
#include "viewer/deck_window.h"

namespace tessara {

/// What a builder works on: a card that is not in the deck yet, or one that is. The caption of
/// the add button tells it.
enum class BuilderState { kNew, kOld };

/// The buttons of a builder, in both of them the same four.
enum BuilderButton : int { kNewButton = 0, kAddButton = 1, kCancelButton = 2, kCloseButton = 3 };

/// What the two builders share: the heading, the arrows, the four buttons with their captions by
/// state, the question about a changed card, the way back to the deck window. A builder works
/// straight on the table; the deck window is hidden while it is open.
class BuilderWindow : public Form {
 public:
  using Buttons = ControlArray<Button, 4>;

  Label heading{"Label1"};
  MoveButtons arrows{"cmdMove"};

  [[nodiscard]] bool OccupiesFrame() const override { return true; }
  [[nodiscard]] bool HoldsUnkeptText() override;

  void Page(int arrow);

 protected:
  BuilderWindow(AppContext& app, std::string name, Window<DeckWindow> deck);

  void OnUnload(bool& cancel) override;
  void OnClick() override { app_.frame.CloseAbout(); }
  bool OnKey(WindowKey key) override;

  [[nodiscard]] ProgramState& State() const { return app_.state; }
  [[nodiscard]] AppContext& App() const { return app_; }
  [[nodiscard]] Window<DeckWindow> Deck() const { return deck_; }

  // Where each builder is its own.
  virtual Buttons& ButtonsOf() = 0;
  virtual Label& NumberLabel() = 0;
  /// The box that a new card starts with.
  virtual TextBox& FirstBox() = 0;
  /// The boxes, each with the column of its text.
  [[nodiscard]] virtual std::vector<std::pair<const TextBox*, int>> Boxes() const = 0;
  virtual void ClearForm() = 0;
  virtual void ShowBuilderCard(int row) = 0;
  virtual void AskSaveChanged() = 0;
  virtual void AddCard() = 0;
  virtual void ChangeCard() = 0;
  virtual void Cancel() = 0;
  virtual void Close() = 0;

  // What is the same in both; the question builder adds to it.
  /// Captions and enabled state of the buttons and the arrows by state; the cancel button of a
  /// new card is left on or off.
  virtual void SetBuilderState(BuilderState state);
  /// An empty form with the number behind the last card's; the guard is off then.
  virtual void PrepareNewCard();
  virtual void StartNewCard();
  /// The add button: what it does to the table is told by its caption.
  virtual void AddOrChange();

  void PressButton(int button);
  /// A new card in a deck without cards: nothing to cancel yet.
  void WaitForFirstCard();

  void ShowNumber(const Text& number) { NumberLabel().SetCaption(u"Card: " + number); }
  void ShowNextNumber() { ShowNumber(DecimalText(State().deck.cardCount + 1)); }
  /// Asks with Yes and No. True for Yes.
  bool AskYesNo(const Text& question, const Text& title);
  bool AskAboutChangedCard();
  /// Runs writes to the boxes that are not to count as edits.
  template <class Writes>
  void UnderGuard(const Writes& writes) {
    State().building.fillingBoxes = true;
    writes();
    State().building.fillingBoxes = false;
  }
  /// Makes card 1 the current one where there is none yet.
  void EnsureCurrentCard();
  /// A deck with a card can be printed.
  void EnablePrinting() { deck_->printDeck.SetEnabled(State().deck.cardCount >= 1); }

 private:
  // The captions are the state.
  [[nodiscard]] bool Adding();
  [[nodiscard]] bool Cancelling();
  void CancelOrDelete();
  /// Adds or changes the card; an added one makes way for a new one.
  void Keep();
  void Delete();
  /// Runs the command of a button. Where the button goes off by it with the focus on it, the
  /// focus goes to the first of the others that is on, and not to where the desktop throws it.
  template <class Command>
  void KeepFocus(const Button& pressed, const Command& command,
                 std::initializer_list<Button*> others);

  AppContext& app_;
  Window<DeckWindow> deck_;
};

}  // namespace tessara
