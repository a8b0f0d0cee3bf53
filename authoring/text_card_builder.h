#pragma once

#include "authoring/builder_window.h"

namespace tessara {

/// The two sides of a text card.
enum CardSide : int { kFrontSide = 0, kBackSide = 1 };

/// The builder of text cards: a front and a back. A card is in the table as soon as it is added
/// or changed.
class TextCardBuilder : public BuilderWindow {
 public:
  /// Outer size in twips.
  static constexpr int kHeight = 5730;
  static constexpr int kWidth = 5565;

  TextCardBuilder(AppContext& app, Window<DeckWindow> deck);

  Label frontHeading{"Label2(0)"};
  Label backHeading{"Label2(1)"};
  Label number{"Label2(2)"};
  ControlArray<TextBox, 2> sides{"Text1"};
  ControlArray<Button, 4> buttons{"Command1"};

  /// Writes the boxes to the row; the count and the other columns stay.
  void ChangeCurrentCard(int row, const Text& cardType);
  /// Writes the boxes to the current card's row and makes it the last card of the deck.
  void SaveCard(const Text& cardType);

  /// The text of a side is another one: warns where it is too long, and the buttons follow.
  void FollowText(int side);

 protected:
  void OnLoad() override;
  Buttons& ButtonsOf() override { return buttons; }
  Label& NumberLabel() override { return number; }
  TextBox& FirstBox() override { return sides[kFrontSide]; }
  [[nodiscard]] std::vector<std::pair<const TextBox*, int>> Boxes() const override;
  void ClearForm() override;
  void ShowBuilderCard(int row) override;
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
