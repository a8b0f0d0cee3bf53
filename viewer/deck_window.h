#pragma once

#include <initializer_list>

#include "deck/life/deck_life.h"
#include "viewer/card/card_control.h"

namespace tessara {

/// The buttons on which the user grades himself, by the credit that they give.
enum Credit : int { kNoCredit = 0, kFullCredit = 1, kPartialCredit = 2 };

/// The deck window: one large card, the panel under it, a column of buttons. The side on show is
/// kept in the caption of the flip button and nowhere else, so its four captions are exact.
///
/// What it does is told in several files: deck_window.cpp the window itself, deck_window_shapes.cpp
/// its shapes, study_mode.cpp, quiz_mode.cpp, test_mode.cpp how cards are taken, mode_menu.cpp the
/// mode menu, deck_view.cpp how a deck comes up, deck_utilities.cpp the commands on single cards.
class DeckWindow : public DeckLife {
 public:
  DeckWindow(AppContext& app, FileNumber& fileNumber, Window<DeckInfoWindow> info);

  /// The shadow of the card, and the card.
  Shape cardShadow{"Shape1"};
  CardControl card{"NoteletCtl1"};
  /// The panel of buttons.
  Frame buttonPanel{"Frame3"};
  /// The answer card.
  PictureBox answerCard{"Picture1"};
  /// The panel on which the user grades himself.
  Frame creditPanel{"Frame1"};
  ControlArray<Button, 3> credits{"Command1"};
  /// The panel of choices.
  Frame choicePanel{"Frame2"};
  ControlArray<OptionButton, 4> choices{"Option1"};

  CardDisplay& Card() override { return card; }

  // Shapes of the window.
  /// Applies the four card settings.
  void SetUpDeck();
  void HideAllFrames();
  void ConfigureStandardCard(CardMode mode);
  void ConfigureExtendedCard(CardMode mode);
  /// True for the back of a card: the decorations of the front go.
  void ShowCardBack(bool back);

  // Buttons.
  /// What an arrow does in the mode.
  void Page(int arrow);
  /// Turns the card over, or brings the answer up and down.
  void FlipCard();

  // Study.
  void EnterStudyMode();
  void TurnStudyCard(int arrow);
  void ShowCardOfKind(std::int16_t row);
  void ShowTextCard(std::int16_t row);
  void ShowQuestionCard(std::int16_t row);
  void FlipTextCard();
  void FlipQuestionCard();

  // Quiz.
  void EnterQuizMode();
  void TurnQuizCard();
  void TurnQuizTextCard();
  void TurnQuizQuestion();

  // Test.
  void EnterTestMode();
  void OfferCredit();
  /// Adds the credit to the points and goes on to the next card.
  void GiveCredit(int credit);
  void JudgeChoice(int choice);
  void FillChoices(int row);
  void ClearChoices();
  void ResetChoiceColors();

  // The mode menu.
  void SetModeMenu(DeckKind kind);
  void ConfigModeMenu(bool offersStudy, bool offersQuiz, bool offersTest);
  void MarkModeInMenu(CardMode mode);
  void AutoModeMenu() override;

  // A deck comes up.
  void CommandLineLoad(const Text& fileName);
  void ShowNewCard(DeckKind kind);
  void OpenStandardView() override;
  void OpenExtendedView() override;
  void ShowFirstCard(DeckKind kind) override;
  void AfterEditShow(DeckKind kind) override;
  void ConfigSaveMenu() override;

  // Single cards.
  void DeleteCard();
  void AskForCard();
  /// Brings the menus in line with the number of cards.
  void FollowCardCount();
  void ShowDeckInfo();

 protected:
  void OnLoad() override;
  void OnActivate() override;
  void OnResize() override;
  void OnClick() override;
  bool OnKey(WindowKey key) override;

 private:
  void PlaceControls();
  void PlaceMenuEntries();
  void WireControls();
  void WireMenus();

  // Texts of a card, on their way to the screen.
  void ShowCardText(int row, int column);
  void ShowAnswer(int row);
  void ShowCardNumber();

  // Steps of the mode entries.
  /// What all entries have in common: card 1, no points, the mark, the title and the menus.
  void EnterMode(CardMode mode);
  void TurnNextOrScoreOff();

  // Steps of the buttons.
  void NextQuestionOrScore();
  void NextQuestion();
  void ShowPercentage();
  void EndStandardTest();
  void NextStandardTestCard();
  void NoteEndOfQuiz(TextView banner);
  void QuizNextCard();
  void GoToCard(const Text& entered);
  void ShowCard(std::int16_t number);

  /// The focus goes to the first of these that the user can reach: what the next step needs.
  void OfferNext(std::initializer_list<Control*> controls);
  void OfferChoices();
  /// True where the keys that turn and page are not those of what has the focus.
  [[nodiscard]] bool KeysAreFree() const;
  /// Where what had the focus has gone off, an arrow that still works gets it, else the card.
  void KeepFocusInReach();
};

}  // namespace tessara
