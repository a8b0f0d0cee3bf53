#include "printing/frmInstruct.h"

#include <string>
#include <utility>
#include <vector>

namespace tessara {

namespace {

constexpr int kClientWidth = 4815;
constexpr int kClientHeight = 4935;

constexpr int kStepPictureSize = 360;  ///< pixels

constexpr int kBackButton = 0;
constexpr int kForwardButton = 1;

ImageList StepPictures() {
  std::vector<ImageList::Image> images;
  for (int step = 1; step <= frmInstruct::kSteps; ++step) {
    const std::string file = "steps/" + std::to_string(step) + ".png";
    images.push_back({Text(), {file, kStepPictureSize, kStepPictureSize}});
  }
  return ImageList(std::move(images));
}

}  // namespace

frmInstruct::frmInstruct(WindowSystem& windows)
    : Form(windows, "frmInstruct", FormKind::kDialog, u"Separating The Cards"),
      ImageList1(StepPictures()) {
  SetWidth(kClientWidth + kBorderAcross);
  SetHeight(kClientHeight + kBorderDown);
  Place({
      {&Picture1, "Picture1", kNoIndex, nullptr, u"", {120, 120, 4575, 4095}, u"Step"},
      {&Image1, "Image1", kNoIndex, &Picture1, u"", {720, 600, 5400, 5400}, u"How it is done"},
      {&Label1, "Label1", kNoIndex, &Picture1, u"Label1", {120, 3240, 4335, 735}, u""},
      {&Command1[0], "Command1", 0, nullptr, u"<<", {120, 4320, 1455, 495}, u"Previous step"},
      {&Command1[1], "Command1", 1, nullptr, u">>", {1680, 4320, 1455, 495}, u"Next step"},
      {&Command2, "Command2", kNoIndex, nullptr, u"&Close", {3240, 4320, 1455, 495}, u""},
  });
  Picture1.SetBackColor({.role = Color::Role::kWindow});
  Label1.SetBackColor({.role = Color::Role::kWindow});
  Command1.Wire(&Button::onClick, [this](int Index) { Command1_Click(Index); });
  Command2.onClick = [this] { Command2_Click(); };
}

void frmInstruct::Form_Load() {
  CurrentStep = 1;
  ConfigButs();
  BuildStr();
  GetImage(CurrentStep);
}

void frmInstruct::ConfigButs() {
  Command1[kBackButton].SetEnabled(CurrentStep >= 2);
  Command1[kForwardButton].SetEnabled(CurrentStep < kSteps);
}

void frmInstruct::BuildStr() {
  StepText[1] =
      u"1. This is a completed card sheet printed from Tessara 1.0. You will now begin folding and "
      u"separating this sheet into individual cards.";
  StepText[2] = u"2. Fold the sheet in half, ensuring that the ends are aligned.";
  StepText[3] =
      u"3. Begin folding the sheet into quarter sections. Fold one side of the sheet back toward "
      u"the center fold, ensuring good alignment.";
  StepText[4] =
      u"4. Flip the sheet over and fold the other side back to the center. Align it to the "
      u"previous center fold.";
  StepText[5] = u"5. Tear the sheet into 4 strips containing 2 cards each. ";
  StepText[6] =
      u"6. Fold each of these strips in half. Ensure to align the edges carefully. Tear each of "
      u"these strips in half to complete your card set.";
}

void frmInstruct::GetImage(std::int16_t Index) {
  Image1.SetPicture(ImageList1.At(Index).picture);
  Label1.SetCaption(StepText[static_cast<std::size_t>(Index)]);
}

void frmInstruct::Command1_Click(int Index) {
  CurrentStep = static_cast<std::int16_t>(Index == kBackButton ? CurrentStep - 1 : CurrentStep + 1);
  GetImage(CurrentStep);
  ConfigButs();
}

void frmInstruct::Command2_Click() {
  Unload();
}

void mnuSC_Click(const Window<frmInstruct>& instructions) {
  instructions->Show(Modality::kModal);
}

}  // namespace tessara
