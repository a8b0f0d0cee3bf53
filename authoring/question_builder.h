#pragma once

#include "authoring/builder_window.h"

namespace tessara {

/// The layouts for the two types of question, and the marks of the second.
enum QuestionLayout : int { kMultipleChoice = 0, kTrueOrFalse = 1 };
enum TrueFalseMark : int { kTrueMark = 0, kFalseMark = 1 };

/// The builder of question cards, multiple choice and true/false.
///
/// It is told in several files: question_builder.cpp the window and its buttons, answer_lines.cpp
/// how the answer lines open and close, question_saving.cpp how a card goes into the table and
/// back.
class QuestionBuilder : public BuilderWindow {
 public:
  /// Outer size in twips.
  static constexpr int kHeight = 6000;
  static constexpr int kWidth = 5535;

  QuestionBuilder(AppContext& app, Window<DeckWindow> deck);

  /// From the last answer line to the first mark that can be set, while none is.
  [[nodiscard]] Control* TabTarget(const Control& from) override;

  Label questionHeading{"Label2(0)"};
  Label number{"Label2(1)"};
  ControlArray<OptionButton, 2> layouts{"Option3"};
  TextBox question{"Text2"};
  Frame choiceLayout{"Frame1"};
  ControlArray<OptionButton, 4> marks{"Option1"};
  ControlArray<TextBox, 4> answers{"Text1"};
  Frame trueFalseLayout{"Frame2"};
  ControlArray<OptionButton, 2> trueFalseMarks{"Option2"};
  ControlArray<Button, 4> buttons{"Command2"};

  // The two layouts.
  void TrueFalseForm();
  void ChoiceForm();
  void CardChange();
  /// A line with text opens the next one and its own mark; an empty one closes them.
  void OpenOrCloseNextLine(int line);
  /// True where an answer of the layout is marked, and a multiple choice has a text for one.
  [[nodiscard]] bool HasAnswer() const;

  // Into the table and back.
  /// The key of the marked answer, in the layout that the form shows; empty where none is marked.
  [[nodiscard]] Text MarkedKey() const;
  void SaveAsNewCard();
  void MarkAnswer(const Text& key);
  void MarkLayout(const Text& cardType);
  /// The type that the form shows: "M" or, where it is not multiple choice, "T".
  [[nodiscard]] Text ChosenType() const;
  void ChangeCurrentCard(int row, const Text& cardType);
  void SaveMultipleChoice(const Text& cardType);

  void FollowMark();
  void FollowTrueFalseMark();
  void SwitchLayout(int layout);
  void FollowAnswer(int line);
  void ClearPlaceholder(int line);
  void CountCapitals(int line, char16_t character);
  void FollowQuestion();

 protected:
  void OnLoad() override;
  void OnResize() override;
  Buttons& ButtonsOf() override { return buttons; }
  Label& NumberLabel() override { return number; }
  TextBox& FirstBox() override { return question; }
  [[nodiscard]] std::vector<std::pair<const TextBox*, int>> Boxes() const override;
  void ClearForm() override;
  void ShowBuilderCard(int row) override;
  void AskSaveChanged() override;
  void SetBuilderState(BuilderState state) override;
  void PrepareNewCard() override;
  void StartNewCard() override;
  void AddOrChange() override;
  void AddCard() override;
  void ChangeCard() override;
  void Cancel() override;
  void Close() override;

 private:
  /// What stands on a line that is to get its text yet.
  static constexpr TextView kPlaceholder = u"[TEXT MISSING HERE]";

  void PlaceControls();
  void DressControls();
  void WireControls();

  [[nodiscard]] bool CanAdd() const;
  [[nodiscard]] bool CanCancel() const;
  void ResetAnswerLines();
  void SyncAnswerLines();
  void OpenLine(int line, bool open);
  void LeaveClosedLine(int line);
  /// True where the card is refused; a box has told why.
  [[nodiscard]] bool RefusesAnswerLines();
  [[nodiscard]] bool TextOnClosedLine();
  [[nodiscard]] bool PlaceholderLeft();

  void WriteCard(int row, const Text& cardType);
};

}  // namespace tessara
