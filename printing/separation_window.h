#pragma once

#include <array>
#include <cstdint>

#include "forms/controls/controls.h"
#include "forms/controls/image_list.h"
#include "forms/form.h"
#include "forms/window.h"

namespace tessara {

/// The picture book in six steps: how to fold and tear a printed sheet into its cards. Shown
/// modally.
class SeparationWindow : public Form {
 public:
  static constexpr std::int16_t kSteps = 6;

  explicit SeparationWindow(WindowSystem& windows);

  PictureBox page{"Picture1"};
  Image picture{"Image1"};
  Label text{"Label1"};
  Button back{"Command1(0)"};
  Button forward{"Command1(1)"};
  Button close{"Command2"};
  ImageList pictures;

  /// The step on show, 1 to 6.
  std::int16_t currentStep = 0;
  /// By step; entry 0 is not used.
  std::array<Text, kSteps + 1> stepTexts;

  /// Enables each arrow where there is a step to go to.
  void EnableArrows();
  void FillStepTexts();
  /// Shows picture and text of a step. Raises 35600 for a step that there is none of.
  void ShowStep(std::int16_t step);

 protected:
  void OnLoad() override;

 private:
  /// Goes that many steps on, or back where it is negative.
  void GoOn(int steps);
};

/// The command "Separating the cards".
void ShowSeparationSteps(const Window<SeparationWindow>& instructions);

}  // namespace tessara
