#pragma once

#include "deck/app_context.h"
#include "forms/controls.h"
#include "forms/form.h"

namespace tessara {

/// The set-up window: changes the settings, and stores them on Apply or at the close.
class FrmSetUp : public Form {
 public:
  /// Outer size in twips.
  static constexpr int kHeight = 4350;
  static constexpr int kWidth = 6330;

  explicit FrmSetUp(AppContext& app);

  ControlArray<Frame, 3> Frame1;
  ControlArray<OptionButton, 2> Option1;
  ControlArray<OptionButton, 2> Option2;
  ControlArray<OptionButton, 2> Option3;
  ControlArray<OptionButton, 2> Option4;
  ControlArray<PictureBox, 2> Picture2;
  CheckBox Check1;
  Label Label1;
  ComboBox Combo1;
  PictureBox Picture1;
  Image Image1;
  ControlArray<Button, 2> Command1;

  /// Fills the list of backdrops: "<NONE>", then the keys of the tiles in their order.
  void FillBKGCombo();
  /// Writes the six settings that this window changes, and says so.
  void SaveProgramSettings();

  void Check1_Click();
  void Combo1_Click();
  void Command1_Click(int Index);

 protected:
  void Form_Load() override;
  void Form_Resize() override;
  void Form_Click() override { app_.frame.CloseAbout(); }

 private:
  void PlaceControls();
  void WireControls();
  /// The click of an option: its index becomes the setting's text.
  void WireSetting(ControlArray<OptionButton, 2>& options, Text& setting);
  void SelectBackDrop();
  void MarkChanged();

  AppContext& app_;
  bool SetUpLoading = false;
};

}  // namespace tessara
