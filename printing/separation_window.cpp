#include "printing/separation_window.h"

#include <string>
#include <utility>
#include <vector>

namespace tessara {

namespace {

constexpr int kClientWidth = 4815;
constexpr int kClientHeight = 4935;

constexpr int kStepPictureSize = 360;  ///< pixels

ImageList StepPictures() {
  std::vector<ImageList::Image> images;
  for (int step = 1; step <= SeparationWindow::kSteps; ++step) {
    const std::string file = "steps/" + std::to_string(step) + ".png";
    images.push_back({Text(), {file, kStepPictureSize, kStepPictureSize}});
  }
  return ImageList(std::move(images));
}

}  // namespace

SeparationWindow::SeparationWindow(WindowSystem& windows)
    : Form(windows, "frmInstruct", FormKind::kDialog, u"Separating The Cards"),
      pictures(StepPictures()) {
  SetWidth(kClientWidth + kBorderAcross);
  SetHeight(kClientHeight + kBorderDown);
  AddControls({
      {&page, nullptr, u"", {120, 120, 4575, 4095}, u"Step"},
      {&picture, &page, u"", {720, 600, 5400, 5400}, u"How it is done"},
      {&text, &page, u"Label1", {120, 3240, 4335, 735}, u""},
      {&back, nullptr, u"<<", {120, 4320, 1455, 495}, u"Previous step"},
      {&forward, nullptr, u">>", {1680, 4320, 1455, 495}, u"Next step"},
      {&close, nullptr, u"&Close", {3240, 4320, 1455, 495}, u""},
  });
  page.SetBackColor({.role = Color::Role::kWindow});
  text.SetBackColor({.role = Color::Role::kWindow});
  back.onClick = [this] { GoOn(-1); };
  forward.onClick = [this] { GoOn(1); };
  SetPageButtons(back, forward);
  close.onClick = [this] { Unload(); };
}

void SeparationWindow::OnLoad() {
  currentStep = 1;
  EnableArrows();
  FillStepTexts();
  ShowStep(currentStep);
}

void SeparationWindow::EnableArrows() {
  back.SetEnabled(currentStep >= 2);
  forward.SetEnabled(currentStep < kSteps);
}

void SeparationWindow::FillStepTexts() {
  stepTexts[1] =
      u"1. This is a completed card sheet printed from Tessara 1.0. You will now begin folding and "
      u"separating this sheet into individual cards.";
  stepTexts[2] = u"2. Fold the sheet in half, ensuring that the ends are aligned.";
  stepTexts[3] =
      u"3. Begin folding the sheet into quarter sections. Fold one side of the sheet back toward "
      u"the center fold, ensuring good alignment.";
  stepTexts[4] =
      u"4. Flip the sheet over and fold the other side back to the center. Align it to the "
      u"previous center fold.";
  stepTexts[5] = u"5. Tear the sheet into 4 strips containing 2 cards each. ";
  stepTexts[6] =
      u"6. Fold each of these strips in half. Ensure to align the edges carefully. Tear each of "
      u"these strips in half to complete your card set.";
}

void SeparationWindow::ShowStep(std::int16_t step) {
  picture.SetPicture(pictures.At(step).picture);
  text.SetCaption(stepTexts[static_cast<std::size_t>(step)]);
}

void SeparationWindow::GoOn(int steps) {
  currentStep = static_cast<std::int16_t>(currentStep + steps);
  ShowStep(currentStep);
  EnableArrows();
}

void ShowSeparationSteps(const Window<SeparationWindow>& instructions) {
  instructions->Show(Modality::kModal);
}

}  // namespace tessara
