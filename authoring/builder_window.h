#pragma once

#include "deck/app_context.h"
#include "deck/move_buttons.h"
#include "forms/controls.h"
#include "forms/form.h"
#include "forms/window.h"
#include "viewer/frmMain.h"

namespace tessara {

/// What a builder works on: a card that is not in the deck yet, or one that is. The caption of
/// the add button tells it.
enum class BuilderState { kNew, kOld };

/// The buttons of a builder, in both of them the same four.
enum BuilderButton : int { kNewButton = 0, kAddButton = 1, kCancelButton = 2, kCloseButton = 3 };

/// What the two builders share: the arrows, the four buttons with their captions by state, the
/// question about a changed card, the way back to the deck window. A builder works straight on
/// the table; the deck window is hidden while it is open.
class BuilderWindow : public Form {
 public:
  using Buttons = ControlArray<Button, 4>;

  MoveButtons cmdMove;

  void cmdMove_Click(int Index);

 protected:
  BuilderWindow(AppContext& app, std::string name, Window<frmMain> deck);

  void Form_Unload(bool& cancel) override;
  void Form_Click() override { app_.frame.CloseAbout(); }

  [[nodiscard]] ProgramState& State() const { return app_.state; }
  [[nodiscard]] AppContext& App() const { return app_; }
  [[nodiscard]] Window<frmMain> Deck() const { return deck_; }

  /// The four buttons and the label of the card's number, as each builder names them.
  virtual Buttons& ButtonsOf() = 0;
  virtual Label& NumberLabel() = 0;
  virtual void ShowBuilderCard(int xRec) = 0;
  virtual void AskSaveChanged() = 0;

  /// Captions and enabled state of the buttons and the arrows by state; the cancel button of a
  /// new card is left as it is.
  void ShowState(BuilderState xState);
  void ShowNumber(const Text& number) { NumberLabel().SetCaption(u"Card: " + number); }
  void ShowNextNumber() { ShowNumber(DecimalText(State().CardCount + 1)); }
  [[nodiscard]] bool Adding() { return ButtonsOf()[kAddButton].Caption() == u"&Add to deck"; }
  [[nodiscard]] bool Cancelling() { return ButtonsOf()[kCancelButton].Caption() == u"&Cancel"; }
  /// Asks about a changed card. True for Yes.
  bool AskYesNo(const Text& question, int flags, const Text& title);
  bool AskAboutChangedCard();
  /// Runs writes to the boxes that are not to count as edits.
  template <class Writes>
  void UnderGuard(const Writes& writes) {
    State().CardChanged = true;
    writes();
    State().CardChanged = false;
  }
  /// Makes card 1 the current one where there is none yet.
  void EnsureCurrentCard();
  /// Deletes the card on show, if the user says so.
  void DeleteCurrentCard();
  /// Where the deck's printing stands by the number of cards.
  void EnablePrinting() { deck_->mnuPrint.SetEnabled(State().CardCount >= 1); }

 private:
  AppContext& app_;
  Window<frmMain> deck_;
};

}  // namespace tessara
