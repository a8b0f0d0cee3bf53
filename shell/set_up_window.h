#pragma once

#include "deck/app_context.h"
#include "forms/controls/controls.h"
#include "forms/form.h"

namespace tessara {

/// The set-up window: changes the settings, and stores them on Apply or at the close.
class SetUpWindow : public Form {
 public:
  /// Outer size in twips.
  static constexpr int kHeight = 4350;
  static constexpr int kWidth = 6330;

  explicit SetUpWindow(AppContext& app);

  Frame settingsGroup{"Frame1(0)"};
  Frame mainCardGroup{"Frame1(2)"};
  Frame answerCardGroup{"Frame1(1)"};
  ControlArray<OptionButton, 2> mainCardColors{"Option1"};
  ControlArray<OptionButton, 2> mainCardReliefs{"Option2"};
  ControlArray<OptionButton, 2> answerCardColors{"Option3"};
  ControlArray<OptionButton, 2> answerCardReliefs{"Option4"};
  PictureBox mainReliefBox{"Picture2(0)"};
  PictureBox answerReliefBox{"Picture2(1)"};
  CheckBox showSplash{"Check1"};
  Label backdropHeading{"Label1"};
  ComboBox backdrops{"Combo1"};
  PictureBox previewArea{"Picture1"};
  Image preview{"Image1"};
  Button close{"Command1(0)"};
  Button apply{"Command1(1)"};

  /// Fills the list of backdrops: "<NONE>", then the keys of the tiles in their order.
  void FillBackdropList();
  /// Writes the six settings that this window changes, and says so.
  void SaveProgramSettings();

  void TakeShowSplash();
  void PreviewBackdrop();
  /// Asks where settings have been changed, and unloads the window.
  void Close();

 protected:
  void OnLoad() override;
  void OnResize() override;
  void OnClick() override { app_.frame.CloseAbout(); }

 private:
  void PlaceControls();
  void WireControls();
  /// The click of an option: its index becomes the setting's text.
  void WireSetting(ControlArray<OptionButton, 2>& options, Text& setting);
  void SelectBackDrop();
  void MarkChanged();

  AppContext& app_;
  bool loading_ = false;
};

}  // namespace tessara
