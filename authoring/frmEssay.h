#pragma once

#include "authoring/builder_window.h"

namespace tessara {

/// The builder of text cards: a front and a back. A card is in the table as soon as it is added
/// or changed.
class frmEssay : public BuilderWindow {
 public:
  /// Outer size in twips.
  static constexpr int kHeight = 5730;
  static constexpr int kWidth = 5565;

  frmEssay(AppContext& app, Window<frmMain> deck);

  Label Label1;
  ControlArray<Label, 3> Label2;
  ControlArray<TextBox, 2> Text1;
  ControlArray<Button, 4> Command1;

  void ClrFrm();
  /// Writes the boxes to the row; the count and the other columns stay.
  void ChangeCurrentCard(int xRecNbr, const Text& QuestType);
  /// Writes the boxes to the current card's row and makes it the last card of the deck.
  void SaveCard(const Text& xQuestType);

  void Text1_Change(int Index);
  void Command1_Click(int Index) { Button_Click(Index); }

 protected:
  void Form_Load() override;
  Buttons& ButtonsOf() override { return Command1; }
  Label& NumberLabel() override { return Label2[2]; }
  TextBox& FirstBox() override { return Text1[0]; }
  void ClearForm() override { ClrFrm(); }
  void ShowBuilderCard(int xRec) override;
  void AskSaveChanged() override;
  void AddCard() override;
  void ChangeCard() override;
  void Cancel() override;
  void Close() override;

 private:
  void PlaceControls();
  void EnableCardButtons();
  void WarnAboutLines();
  void SaveBeforeClose();
};

}  // namespace tessara
