#include "shell/set_up_window.h"

#include "base/conversion.h"
#include "forms/place_in_frame.h"
#include "machine/message_box.h"
#include "machine/settings_store.h"
#include "shell/backdrop.h"
#include "shell/settings.h"

namespace tessara {

SetUpWindow::SetUpWindow(AppContext& app)
    : Form(app.windows, "FrmSetUp", FormKind::kChild, u"Set-Up"), app_(app) {
  SetWidth(kWidth);
  SetHeight(kHeight);
  PlaceControls();
  WireControls();
}

void SetUpWindow::PlaceControls() {
  AddControls({
      {&settingsGroup, nullptr, u"", {120, 120, 5895, 3135}, u"Settings"},
      {&mainCardGroup, &settingsGroup, u"Main Card", {240, 360, 1590, 2190}, u""},
      {&mainCardColors[0],
       &mainCardGroup,
       u"White Card",
       {240, 360, 1125, 315},
       u"Main card white"},
      {&mainCardColors[1],
       &mainCardGroup,
       u"Yellow Card",
       {240, 720, 1245, 315},
       u"Main card yellow"},
      {&mainReliefBox, &mainCardGroup, u"", {120, 1170, 1335, 855}, u"Main card relief"},
      {&mainCardReliefs[0], &mainReliefBox, u"Flat", {120, 120, 735, 255}, u"Main card flat"},
      {&mainCardReliefs[1], &mainReliefBox, u"3D", {120, 480, 735, 255}, u"Main card 3D"},
      {&answerCardGroup, &settingsGroup, u"Answer Card", {1965, 360, 1590, 2190}, u""},
      {&answerCardColors[0],
       &answerCardGroup,
       u"White Card",
       {240, 360, 1125, 315},
       u"Answer card white"},
      {&answerCardColors[1],
       &answerCardGroup,
       u"Yellow Card",
       {240, 720, 1245, 315},
       u"Answer card yellow"},
      {&answerReliefBox, &answerCardGroup, u"", {120, 1185, 1335, 855}, u"Answer card relief"},
      {&answerCardReliefs[0], &answerReliefBox, u"Flat", {120, 120, 735, 255}, u"Answer card flat"},
      {&answerCardReliefs[1], &answerReliefBox, u"3D", {120, 480, 735, 255}, u"Answer card 3D"},
      {&showSplash, &settingsGroup, u"Show start up screen", {240, 2760, 2415, 255}, u""},
      {&backdropHeading, &settingsGroup, u"Background", {3960, 240, 1695, 255}, u""},
      {&backdrops, &settingsGroup, u"", {3960, 465, 1770, 315}, u"Background"},
      {&previewArea, &settingsGroup, u"", {3960, 1200, 1725, 1695}, u"Background preview"},
      {&preview, &previewArea, u"", {345, 315, 975, 930}, u"Chosen background"},
      {&close, nullptr, u"&Close", {1639, 3360, 1215, 495}, u""},
      {&apply, nullptr, u"&Apply", {3357, 3360, 1215, 495}, u""},
  });
  previewArea.SetBackColor({Color::Role::kWorkspace});
}

void SetUpWindow::WireControls() {
  WireSetting(mainCardColors, app_.state.settings.largeCardColor);
  WireSetting(mainCardReliefs, app_.state.settings.largeCard3D);
  WireSetting(answerCardColors, app_.state.settings.smallCardColor);
  WireSetting(answerCardReliefs, app_.state.settings.smallCard3D);
  showSplash.onClick = [this] { TakeShowSplash(); };
  backdrops.onClick = [this] { PreviewBackdrop(); };
  close.onClick = [this] { Close(); };
  apply.onClick = [this] { SaveProgramSettings(); };
}

void SetUpWindow::WireSetting(ControlArray<OptionButton, 2>& options, Text& setting) {
  options.Wire(&OptionButton::onClick, [this, &setting](int index) {
    if (loading_) return;
    setting = DecimalText(index);
    MarkChanged();
  });
}

void SetUpWindow::OnLoad() {
  const ProgramState& state = app_.state;
  loading_ = true;
  FillBackdropList();
  SelectBackDrop();
  apply.SetEnabled(false);
  showSplash.SetValue(IntegerOf(state.settings.showSplash));
  mainCardColors[IntegerOf(state.settings.largeCardColor)].SetSelected(true);
  mainCardReliefs[IntegerOf(state.settings.largeCard3D)].SetSelected(true);
  answerCardColors[IntegerOf(state.settings.smallCardColor)].SetSelected(true);
  answerCardReliefs[IntegerOf(state.settings.smallCard3D)].SetSelected(true);
  loading_ = false;
}

void SetUpWindow::FillBackdropList() {
  backdrops.AddItem(Text(kNoBackdrop));
  const ImageList& tiles = app_.frame.BackdropTiles();
  for (int index = 1; index <= tiles.Count(); ++index) backdrops.AddItem(tiles.At(index).key);
}

void SetUpWindow::SelectBackDrop() {
  for (int index = 0; index < backdrops.Count(); ++index) {
    if (Trimmed(backdrops.Item(index)) != app_.state.settings.backdrop) continue;
    backdrops.SetListIndex(index);
    break;
  }
  if (backdrops.ListIndex() < 0) backdrops.SetListIndex(0);
}

void SetUpWindow::OnResize() {
  HoldWindowSize(kHeight, kWidth, *this);
}

void SetUpWindow::MarkChanged() {
  apply.SetEnabled(true);
}

void SetUpWindow::TakeShowSplash() {
  if (loading_) return;
  app_.state.settings.showSplash = DecimalText(showSplash.Value());
  MarkChanged();
}

void SetUpWindow::PreviewBackdrop() {
  preview.SetPicture(BackdropTile(Trimmed(backdrops.TextOf()), app_.frame));
  preview.SetLeft((previewArea.BoundsOf().width - preview.BoundsOf().width) / 2);
  preview.SetTop((previewArea.BoundsOf().height - preview.BoundsOf().height) / 2);
  MarkChanged();
}

void SetUpWindow::Close() {
  if (apply.Enabled()) {
    const MessageAnswer answer =
        app_.machine.messages.Show(u"Set-Up changes have been made, do you want to save them?",
                                   kQuestionIcon + kYesNo, u"Set-Up Changes");
    if (answer == MessageAnswer::kYes) SaveProgramSettings();
  }
  Unload();
}

void SetUpWindow::SaveProgramSettings() {
  ProgramState& state = app_.state;
  SettingsStore& store = app_.machine.settings;
  state.settings.backdrop = backdrops.TextOf();
  apply.SetEnabled(false);
  store.Write(Text(kShowSplashKey), state.settings.showSplash);
  store.Write(Text(kLargeCardColorKey), state.settings.largeCardColor);
  store.Write(Text(kLargeCard3DKey), state.settings.largeCard3D);
  store.Write(Text(kSmallCardColorKey), state.settings.smallCardColor);
  store.Write(Text(kSmallCard3DKey), state.settings.smallCard3D);
  store.Write(Text(kBackDropKey), state.settings.backdrop);
  app_.machine.messages.Show(
      u"The current settings have been saved. Any background changes will take effect the next "
      u"time Tessara is executed.",
      kOkOnly, u"Save settings");
}

}  // namespace tessara
