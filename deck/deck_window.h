#pragma once

#include "deck/app_context.h"
#include "deck/card_face.h"
#include "deck/file_number.h"
#include "deck/move_buttons.h"
#include "forms/controls.h"
#include "forms/form.h"
#include "forms/window.h"
#include "platform/dialogs.h"

namespace tessara {

class frmInfo;

/// The deck window as the life of a deck knows it: its menus, the buttons and labels that hang
/// on the deck's state, and the commands from new to close. What it looks like and how cards are
/// taken is told by the window that derives from it.
///
/// The commands are told in open_deck.cpp, save_deck.cpp and close_deck.cpp.
class DeckWindow : public Form {
 public:
  DeckWindow(AppContext& app, FileNumber& fileNumber, Window<frmInfo> info);

  MoveButtons cmdMove;
  /// The buttons of Command3 by what they do.
  enum : int { kNextOrScore = 0, kFlip = 1, kCloseDeck = 2 };
  ControlArray<Button, 3> Command3;
  /// The answer to a question, on the answer card.
  Label Label2;

  MenuEntry mnuFile, mnuNCD, mnuOCD, mnuDelete, mnu4, mnuSave, mnuSaveAs, mnuACTTD, mnuPrint, mnu1,
      mnuExit;
  MenuEntry mnuMode, mnuStudy, mnuQuiz, mnuTest;
  MenuEntry mnuUtility, mnuGTP, mnu2, mnuCDI;
  MenuEntry mnuHelp, mnuHelpTopic, mnuAbout, mnuSC;

  [[nodiscard]] bool ClosesFirst() const override { return true; }
  [[nodiscard]] bool OccupiesFrame() const override { return true; }

  /// The large card.
  virtual CardFace& Card() = 0;

  // Commands of the life of a deck.
  void mnuNCD_Click();
  void mnuOCD_Click();
  void mnuSave_Click();
  void mnuSaveAs_Click();
  void mnuExit_Click();

  /// Offers to save unsaved changes; the caller goes on whatever the answer.
  void ChkSave();
  /// Empties the deck and the window. Asks nothing.
  void NewTessara();
  /// Enables or disables the delete command.
  void MenuOp(bool xState);
  /// The first text unless it is empty, else the second.
  [[nodiscard]] static Text SaveThisorThat(const Text& xStr1, const Text& xStr2);
  /// Writes the table to the file, tells the user, sets the caption. Errors on the way skip what
  /// failed and are not reported.
  void SaveTessaraToFile(const Text& xFilename);
  /// Reads the deck file into the table, which the caller has emptied.
  void LoadDeck(const Text& xFilename);
  /// Brings the two arrows in line with the place in the deck.
  void UpdateMoveButtons();
  /// The go-to command needs more than one card.
  void SetGoToMenu();
  /// Brings up the window for the type of card 1 of the deck just loaded. Without a card, or with
  /// an unknown letter, a window on screen and the deck's type stay as they were.
  void OpenViewOfFirstCard();
  /// The deck's name, two blanks and the mode in brackets.
  void ShowTitle(Mode mode);

  /// The question builder, which mnuExit unloads too.
  void SetQuestionBuilder(WindowSlot& slot) { questionBuilder_ = &slot; }

  /// Brings the window up in the shape for text cards, or for questions, and sets the deck's type.
  virtual void OpenStandardView() = 0;
  virtual void OpenExtendedView() = 0;
  /// Writes the texts of card 1 to the window; `xType` is a DeckKind.
  virtual void ShowFirstCard(std::int32_t xType) = 0;
  /// The save command follows DeckChanged.
  virtual void ConfigSaveMenu() = 0;
  /// Sets the mode menu by the type of card 1; an unknown type leaves it.
  virtual void AutoModeMenu() = 0;
  /// Paints the card on show anew from the table, and sets the commands that hang on it;
  /// `Typecard` is a DeckKind.
  virtual void AfterEditShow(std::int32_t Typecard) = 0;

 protected:
  void Form_Unload(bool& cancel) override;

  /// Loads the deck and brings it up in study mode on its first card.
  void LoadAndShowDeck(const Text& xFilename);

  [[nodiscard]] AppContext& App() const { return app_; }
  [[nodiscard]] ProgramState& State() const { return app_.state; }
  [[nodiscard]] Window<frmInfo> Info() const { return info_; }

 private:
  [[nodiscard]] Text AskDeckFile(FileDialogMode mode);
  /// Keeps the file that is there, and deletes it where the save does that first. False where it
  /// could not be deleted.
  bool MakeWay(const Text& xFilename);
  /// Asks for the file that the deck is to be saved to. False where there is no answer; says so.
  bool ChooseFile();

  AppContext& app_;
  FileNumber& fileNumber_;
  Window<frmInfo> info_;
  WindowSlot* questionBuilder_ = nullptr;
};

}  // namespace tessara
