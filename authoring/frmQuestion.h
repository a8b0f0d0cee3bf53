#pragma once

#include "authoring/builder_window.h"

namespace tessara {

/// The builder of question cards, multiple choice and true/false.
///
/// It is told in several files: frmQuestion.cpp the window and its buttons, answer_lines.cpp how
/// the answer lines open and close, question_saving.cpp how a card goes into the table and back.
class frmQuestion : public BuilderWindow {
 public:
  /// Outer size in twips.
  static constexpr int kHeight = 6000;
  static constexpr int kWidth = 5535;

  frmQuestion(AppContext& app, Window<frmMain> deck);

  Label Label1;
  ControlArray<Label, 2> Label2;
  ControlArray<OptionButton, 2> Option3;
  TextBox Text2;
  Frame Frame1;
  ControlArray<OptionButton, 4> Option1;
  ControlArray<TextBox, 4> Text1;
  Frame Frame2;
  ControlArray<OptionButton, 2> Option2;
  ControlArray<Button, 4> Command2;

  // The two layouts.
  void TrueFalseForm();
  void ChoiceForm();
  void ClrForm();
  void CardChange();
  /// A line with text opens the next one and its own mark; an empty one closes them.
  void EnableResponceLine(int Index);
  void ChkOptions(bool& result) const;
  void AnsSelected(bool& result) const;

  // Into the table and back.
  /// Does nothing: true/false cards are saved as multiple choice ones are.
  void SaveTrueFalse();
  void SelChoice(Text& result) const;
  void SelTF(Text& result) const;
  void SaveCard_Gen();
  void MarkCorrAns(const Text& xAns);
  void MarkQuestType(const Text& QuestType);
  /// The type that the form shows: "M" or, where it is not multiple choice, "T".
  [[nodiscard]] Text ChosenType() const;
  void ChangeCurrentCard(int xRecNbr, const Text& QuestType);
  void SaveMultipleChoice(const Text& xQuestType);

  void Option1_Click(int Index);
  void Option2_Click(int Index);
  void Option3_Click(int Index);
  void Text1_Change(int Index);
  void Text1_GotFocus(int Index);
  void Text1_KeyPress(int Index, char16_t KeyAscii);
  void Text2_Change();
  void Command2_Click(int Index) { Button_Click(Index); }

 protected:
  void Form_Load() override;
  void Form_Resize() override;
  Buttons& ButtonsOf() override { return Command2; }
  Label& NumberLabel() override { return Label2[1]; }
  TextBox& FirstBox() override { return Text2; }
  void ClearForm() override { ClrForm(); }
  void ShowBuilderCard(int xRec) override;
  void AskSaveChanged() override;
  void SetBuilderState(BuilderState xState) override;
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

  void CanAddCard(bool& result) const;
  void CanCancelCard(bool& result) const;
  void ResetAnswerLines();
  void SyncAnswerLines();
  void OpenLine(int line, bool open);
  void LeaveClosedLine(int line);
  void CheckAnswerLines(bool& result);
  [[nodiscard]] bool TextOnClosedLine();
  [[nodiscard]] bool PlaceholderLeft();

  void WriteCard(int row, const Text& QuestType);
};

}  // namespace tessara
