#pragma once

#include <initializer_list>

#include "deck/deck_window.h"
#include "viewer/notelet/NoteletCtl.h"

namespace tessara {

/// The deck window: one large card, the panel under it, a column of buttons. The side on show is
/// kept in the caption of Command3(1) and nowhere else, so its four captions are exact.
///
/// What it does is told in several files: frmMain.cpp the window itself, card_faces.cpp its
/// shapes, study_mode.cpp, quiz_mode.cpp, test_mode.cpp how cards are taken, mode_menu.cpp the
/// mode menu, deck_view.cpp how a deck comes up, deck_utilities.cpp the commands on single cards.
class frmMain : public DeckWindow {
 public:
  frmMain(AppContext& app, FileNumber& fileNumber, Window<frmInfo> info);

  /// The shadow of the card, and the card.
  Shape Shape1;
  NoteletCtl NoteletCtl1;
  /// The panel of buttons.
  Frame Frame3;
  /// The answer card.
  PictureBox Picture1;
  /// The panel on which the user grades himself.
  Frame Frame1;
  /// The buttons of Command1 by the credit that they give; the first one gives none.
  enum : int { kFullCredit = 1, kPartialCredit = 2 };
  ControlArray<Button, 3> Command1;
  /// The panel of choices.
  Frame Frame2;
  ControlArray<OptionButton, 4> Option1;

  CardFace& Card() override { return NoteletCtl1; }

  // Shapes of the window.
  /// Applies the four card settings.
  void SetUpDeck();
  void HideAllFrames();
  void ConfigureStandardCard(std::int32_t xMode);
  void ConfigureExtendedCard(std::int32_t xMode);
  /// True for the back of a card: the decorations of the front go.
  void ShowCardBack(bool xState);

  // Buttons.
  void cmdMove_Click(int Index);
  void Command3_Click(int Index);

  // Study.
  void mnuStudy_Click();
  void StudyModeScroll(int Index);
  void SelectCardOp_Mode(std::int16_t ThisRecord);
  void StdCardOp_Scroll(std::int16_t xCurRec);
  void ExtCardOp_Scroll(std::int16_t xCurRec);
  void StdCardOp_Flip();
  void ExtCardOp_Flip();

  // Quiz.
  void mnuQuiz_Click();
  void QuizModeScroll();
  void QuizModeScroll_Std();
  void QuizModeScroll_Ext();

  // Test.
  void mnuTest_Click();
  void TestModeFlip();
  void Command1_Click(int Index);
  void Option1_Click(int Index);
  void FillChoices(int xRec);
  void ClrAnsOptions();
  void OpDefaultForeColor();

  // The mode menu.
  void SetModeMenu(std::int32_t Typecard);
  void ConfigModeMenu(bool zStudy, bool zQuiz, bool zTest);
  void ChkModeMenu(std::int32_t xMode);
  void AutoModeMenu() override;

  // A deck comes up.
  void CommandLineLoad(const Text& xFilename);
  void ShowNewCard(std::int32_t Typecard);
  void OpenStandardView() override;
  void OpenExtendedView() override;
  void ShowFirstCard(std::int32_t xType) override;
  void AfterEditShow(std::int32_t Typecard) override;
  void ConfigSaveMenu() override;

  // Single cards.
  void mnuDelete_Click();
  void mnuGTP_Click();
  /// Brings the menus in line with the number of cards.
  void CardDel_Std();
  void mnuCDI_Click();

 protected:
  void Form_Load() override;
  void Form_Activate() override;
  void Form_Resize() override;
  void Form_Click() override;

 private:
  void PlaceControls();
  void PlaceMenuEntries();
  void WireControls();
  void WireMenus();

  // Texts of a card, on their way to the screen.
  void ShowCardText(int row, int column);
  void ShowAnswer(int row);
  void ShowCardNumber();
  [[nodiscard]] const Text& FlipCaption() const { return Command3[kFlip].Caption(); }
  void SetFlipCaption(TextView caption) { Command3[kFlip].SetCaption(Text(caption)); }

  // Steps of the mode entries.
  /// What all entries have in common: card 1, no points, the mark, the title and the menus.
  void EnterMode(Mode mode);
  void TurnNextOrScoreOff();

  // Steps of the buttons.
  void NextQuestionOrScore();
  void NextQuestion();
  void ShowPercentage();
  void EndStandardTest();
  void NextStandardTestCard();
  void NoteEndOfQuiz(TextView banner);
  void QuizNextCard();
  void GoToCard(const Text& answer);
  void ShowCard(std::int16_t number);

  /// The focus goes to the first of these that the user can reach: what the next step needs.
  void OfferNext(std::initializer_list<Control*> controls);
  void OfferChoices();
  /// Where what had the focus has gone off, an arrow that still works gets it, else the card.
  void KeepFocusInReach();
};

}  // namespace tessara
