#pragma once

#include "deck/app_context.h"
#include "deck/card_display.h"
#include "deck/file/file_number.h"
#include "deck/flip_action.h"
#include "forms/controls/controls.h"
#include "forms/form.h"
#include "forms/window.h"
#include "machine/dialogs.h"

namespace tessara {

class DeckInfoWindow;

/// The deck window as the life of a deck knows it: its menus, the buttons and labels that hang
/// on the deck's state, and the commands from new to close. What it looks like and how cards are
/// taken is told by the window that derives from it.
///
/// The commands are told in open_deck.cpp, save_deck.cpp, save_question.cpp and close_deck.cpp.
class DeckLife : public Form {
 public:
  DeckLife(AppContext& app, FileNumber& fileNumber, Window<DeckInfoWindow> info);

  MoveButtons arrows{"cmdMove"};
  Button nextOrScore{"Command3(0)"};
  Button flip{"Command3(1)"};
  Button closeDeck{"Command3(2)"};
  /// The answer to a question, on the answer card.
  Label answer{"Label2"};

  MenuEntry fileMenu{"mnuFile"};
  MenuEntry clearDeck{"mnuNCD"};
  MenuEntry openDeck{"mnuOCD"};
  MenuEntry deleteCard{"mnuDelete"};
  MenuEntry belowDelete{"mnu4"};
  MenuEntry saveDeck{"mnuSave"};
  MenuEntry saveDeckAs{"mnuSaveAs"};
  MenuEntry createOrEditCard{"mnuACTTD"};
  MenuEntry printDeck{"mnuPrint"};
  MenuEntry aboveClose{"mnu1"};
  MenuEntry closeTessara{"mnuExit"};
  MenuEntry modeMenu{"mnuMode"};
  MenuEntry study{"mnuStudy"};
  MenuEntry quiz{"mnuQuiz"};
  MenuEntry test{"mnuTest"};
  MenuEntry utilityMenu{"mnuUtility"};
  MenuEntry goToCard{"mnuGTP"};
  MenuEntry belowGoTo{"mnu2"};
  MenuEntry deckInfo{"mnuCDI"};
  MenuEntry helpMenu{"mnuHelp"};
  MenuEntry helpTopics{"mnuHelpTopic"};
  MenuEntry about{"mnuAbout"};
  MenuEntry separatingCards{"mnuSC"};

  [[nodiscard]] bool ClosesFirst() const override { return true; }
  [[nodiscard]] bool OccupiesFrame() const override { return true; }

  /// The large card.
  virtual CardDisplay& Card() = 0;

  // Commands of the life of a deck.
  void ClearDeck();
  void OpenDeck();
  /// Opens a deck that was dropped on the program: refusals first, then the question about changes.
  void OpenDroppedDeck(const Text& path);
  void SaveDeck();
  void SaveDeckAs();
  void CloseTessara();

  /// Offers to save unsaved changes; the caller goes on whatever the answer.
  void OfferToSave();
  /// Empties the deck and the window. Asks nothing.
  void NewTessara();
  /// Enables or disables the delete command.
  void EnableDelete(bool enabled);
  /// The first text unless it is empty, else the second.
  [[nodiscard]] static Text SaveThisorThat(const Text& first, const Text& second);
  /// Writes the table to the file, tells the user, sets the caption. Errors on the way skip what
  /// failed and are not reported.
  void SaveTessaraToFile(const Text& fileName);
  /// Reads the deck file into the table, which the caller has emptied.
  void LoadDeck(const Text& fileName);
  void OfferFlip(FlipAction next) { flip.SetCaption(Text(CaptionOf(next))); }
  [[nodiscard]] bool OffersFlip(FlipAction next) const { return flip.Caption() == CaptionOf(next); }
  /// Brings the two arrows in line with the place in the deck.
  void UpdateMoveButtons();
  /// The go-to command needs more than one card.
  void SetGoToMenu();
  /// Brings up the window for the type of card 1 of the deck just loaded. Without a card, or with
  /// an unknown letter, a window on screen and the deck's type stay as they were.
  void OpenViewOfFirstCard();
  /// The deck's name, two blanks and the mode in brackets.
  void ShowTitle(CardMode mode);

  /// The question builder, which the close command unloads too.
  void SetQuestionBuilder(FormSlot& slot) { questionBuilder_ = &slot; }

  /// Brings the window up in the shape for text cards, or for questions, and sets the deck's type.
  virtual void OpenStandardView() = 0;
  virtual void OpenExtendedView() = 0;
  /// Writes the texts of card 1 to the window.
  virtual void ShowFirstCard(DeckKind kind) = 0;
  /// The save command follows whether the deck has been changed.
  virtual void ConfigSaveMenu() = 0;
  /// Sets the mode menu by the type of card 1; an unknown type leaves it.
  virtual void AutoModeMenu() = 0;
  /// Paints the card on show anew from the table, and sets the commands that hang on it.
  virtual void AfterEditShow(DeckKind kind) = 0;

 protected:
  void OnUnload(bool& cancel) override;

  /// Empties the table and opens the deck of the path that the state holds.
  void OpenChosenDeck();
  /// Loads the deck and brings it up in study mode on its first card.
  void LoadAndShowDeck(const Text& fileName);

  [[nodiscard]] AppContext& App() const { return app_; }
  [[nodiscard]] ProgramState& State() const { return app_.state; }
  [[nodiscard]] Window<DeckInfoWindow> Info() const { return info_; }

 private:
  [[nodiscard]] Text AskDeckFile(FileDialogMode mode);
  /// Keeps the file that is there, and deletes it where the save does that first. False where it
  /// could not be deleted.
  bool MakeWay(const Text& fileName);
  /// Asks for the file that the deck is to be saved to. False where there is no answer; says so.
  bool ChooseFile();

  AppContext& app_;
  FileNumber& fileNumber_;
  Window<DeckInfoWindow> info_;
  FormSlot* questionBuilder_ = nullptr;
};

}  // namespace tessara
