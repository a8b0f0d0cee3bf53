#include "shell/FrmSetUp.h"

#include "forms/place_in_frame.h"
#include "platform/conversion.h"
#include "platform/message_box.h"
#include "platform/settings_store.h"
#include "shell/settings.h"
#include "viewer/card_picture.h"

namespace tessara {

namespace {

constexpr int kApply = 1;

}  // namespace

FrmSetUp::FrmSetUp(AppContext& app)
    : Form(app.windows, "FrmSetUp", FormKind::kChild, u"Set-Up"), app_(app) {
  SetWidth(kWidth);
  SetHeight(kHeight);
  PlaceControls();
  WireControls();
}

void FrmSetUp::PlaceControls() {
  Frame* main = &Frame1[2];
  Frame* answer = &Frame1[1];
  Frame* all = &Frame1[0];
  Place({
      {all, "Frame1", 0, nullptr, u"", {120, 120, 5895, 3135}, u"Settings"},
      {main, "Frame1", 2, all, u"Main Card", {240, 360, 1590, 2190}, u""},
      {&Option1[0], "Option1", 0, main, u"White Card", {240, 360, 1125, 315}, u"Main card white"},
      {&Option1[1], "Option1", 1, main, u"Yellow Card", {240, 720, 1245, 315}, u"Main card yellow"},
      {&Picture2[0], "Picture2", 0, main, u"", {120, 1170, 1335, 855}, u"Main card relief"},
      {&Option2[0], "Option2", 0, &Picture2[0], u"Flat", {120, 120, 735, 255}, u"Main card flat"},
      {&Option2[1], "Option2", 1, &Picture2[0], u"3D", {120, 480, 735, 255}, u"Main card 3D"},
      {answer, "Frame1", 1, all, u"Answer Card", {1965, 360, 1590, 2190}, u""},
      {&Option3[0],
       "Option3",
       0,
       answer,
       u"White Card",
       {240, 360, 1125, 315},
       u"Answer card white"},
      {&Option3[1],
       "Option3",
       1,
       answer,
       u"Yellow Card",
       {240, 720, 1245, 315},
       u"Answer card yellow"},
      {&Picture2[1], "Picture2", 1, answer, u"", {120, 1185, 1335, 855}, u"Answer card relief"},
      {&Option4[0], "Option4", 0, &Picture2[1], u"Flat", {120, 120, 735, 255}, u"Answer card flat"},
      {&Option4[1], "Option4", 1, &Picture2[1], u"3D", {120, 480, 735, 255}, u"Answer card 3D"},
      {&Check1, "Check1", kNoIndex, all, u"Show start up screen", {240, 2760, 2415, 255}, u""},
      {&Label1, "Label1", kNoIndex, all, u"Background", {3960, 240, 1695, 255}, u""},
      {&Combo1, "Combo1", kNoIndex, all, u"", {3960, 465, 1770, 315}, u"Background"},
      {&Picture1, "Picture1", kNoIndex, all, u"", {3960, 1200, 1725, 1695}, u"Background preview"},
      {&Image1, "Image1", kNoIndex, &Picture1, u"", {345, 315, 975, 930}, u"Chosen background"},
      {&Command1[0], "Command1", 0, nullptr, u"&Close", {1639, 3360, 1215, 495}, u""},
      {&Command1[1], "Command1", 1, nullptr, u"&Apply", {3357, 3360, 1215, 495}, u""},
  });
  Picture1.SetBackColor({Color::Role::kWorkspace});
}

void FrmSetUp::WireControls() {
  WireSetting(Option1, app_.state.LargeCardColor);
  WireSetting(Option2, app_.state.LargeCard3D);
  WireSetting(Option3, app_.state.SmallCardColor);
  WireSetting(Option4, app_.state.SmallCard3D);
  Check1.onClick = [this] { Check1_Click(); };
  Combo1.onClick = [this] { Combo1_Click(); };
  Command1.Wire(&Button::onClick, [this](int Index) { Command1_Click(Index); });
}

void FrmSetUp::WireSetting(ControlArray<OptionButton, 2>& options, Text& setting) {
  options.Wire(&OptionButton::onClick, [this, &setting](int Index) {
    if (SetUpLoading) return;
    setting = DecimalText(Index);
    MarkChanged();
  });
}

void FrmSetUp::Form_Load() {
  const ProgramState& state = app_.state;
  SetUpLoading = true;
  FillBKGCombo();
  SelectBackDrop();
  Command1[kApply].SetEnabled(false);
  Check1.SetValue(IntegerOf(state.ShowSplash));
  Option1[IntegerOf(state.LargeCardColor)].SetSelected(true);
  Option2[IntegerOf(state.LargeCard3D)].SetSelected(true);
  Option3[IntegerOf(state.SmallCardColor)].SetSelected(true);
  Option4[IntegerOf(state.SmallCard3D)].SetSelected(true);
  SetUpLoading = false;
}

void FrmSetUp::FillBKGCombo() {
  Combo1.AddItem(u"<NONE>");
  const ImageList& tiles = app_.frame.BKG();
  for (int index = 1; index <= tiles.Count(); ++index) Combo1.AddItem(tiles.At(index).key);
}

void FrmSetUp::SelectBackDrop() {
  for (int index = 0; index < Combo1.Count(); ++index) {
    if (Trimmed(Combo1.Item(index)) != app_.state.BackDrop) continue;
    Combo1.SetListIndex(index);
    break;
  }
  if (Combo1.ListIndex() < 0) Combo1.SetListIndex(0);
}

void FrmSetUp::Form_Resize() {
  HoldWindowSize(kHeight, kWidth, *this);
}

void FrmSetUp::MarkChanged() {
  Command1[kApply].SetEnabled(true);
}

void FrmSetUp::Check1_Click() {
  if (SetUpLoading) return;
  app_.state.ShowSplash = DecimalText(Check1.Value());
  MarkChanged();
}

void FrmSetUp::Combo1_Click() {
  Image1.SetPicture(CardPicture(Text(Trimmed(Combo1.TextOf())), kBackdropList, app_.frame));
  Image1.SetLeft((Picture1.Place().width - Image1.Place().width) / 2);
  Image1.SetTop((Picture1.Place().height - Image1.Place().height) / 2);
  MarkChanged();
}

void FrmSetUp::Command1_Click(int Index) {
  if (Index == kApply) {
    SaveProgramSettings();
    return;
  }
  if (Command1[kApply].Enabled()) {
    const MessageAnswer answer =
        app_.machine.messages.Show(u"Set-Up changes have been made, do you want to save them?",
                                   kQuestionIcon + kYesNo, u"Set-Up Changes");
    if (answer == MessageAnswer::kYes) SaveProgramSettings();
  }
  Unload();
}

void FrmSetUp::SaveProgramSettings() {
  ProgramState& state = app_.state;
  SettingsStore& store = app_.machine.settings;
  state.BackDrop = Combo1.TextOf();
  Command1[kApply].SetEnabled(false);
  store.Write(Text(kShowSplashKey), state.ShowSplash);
  store.Write(Text(kLargeCardColorKey), state.LargeCardColor);
  store.Write(Text(kLargeCard3DKey), state.LargeCard3D);
  store.Write(Text(kSmallCardColorKey), state.SmallCardColor);
  store.Write(Text(kSmallCard3DKey), state.SmallCard3D);
  store.Write(Text(kBackDropKey), state.BackDrop);
  app_.machine.messages.Show(
      u"The current settings have been saved. Any background changes will take effect the next "
      u"time Tessara is executed.",
      kOkOnly, u"Save settings");
}

}  // namespace tessara
