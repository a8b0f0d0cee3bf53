#pragma once

#include <array>
#include <cstdint>

#include "forms/controls.h"
#include "forms/form.h"
#include "forms/image_list.h"
#include "forms/window.h"

namespace tessara {

/// The picture book in six steps: how to fold and tear a printed sheet into its cards. Shown
/// modally.
class frmInstruct : public Form {
 public:
  static constexpr std::int16_t kSteps = 6;

  explicit frmInstruct(WindowSystem& windows);

  PictureBox Picture1;
  Image Image1;
  Label Label1;
  ControlArray<Button, 2> Command1;
  Button Command2;
  ImageList ImageList1;

  /// The step on show, 1 to 6.
  std::int16_t CurrentStep = 0;
  /// By step; entry 0 is not used.
  std::array<Text, kSteps + 1> StepText;

  /// Enables each arrow where there is a step to go to.
  void ConfigButs();
  void BuildStr();
  /// Shows picture and text of a step. Raises 35600 for a step that there is none of.
  void GetImage(std::int16_t Index);

 protected:
  void Form_Load() override;

 private:
  void Command1_Click(int Index);
  void Command2_Click();
};

/// The command "Separating the cards".
void mnuSC_Click(const Window<frmInstruct>& instructions);

}  // namespace tessara
