#include "deck/frmInfo.h"

#include "deck/date_text.h"
#include "platform/clock.h"
#include "platform/message_box.h"

namespace tessara {

namespace {

constexpr int kWindowWidth = 6270;
constexpr int kWindowHeight = 4650;
constexpr int kTitleLength = 75;
constexpr int kDescriptionLength = 400;
constexpr int kDate = 0;
constexpr int kType = 1;
constexpr int kTitle = 0;
constexpr int kAuthor = 1;
constexpr int kDescription = 2;
constexpr int kSave = 1;

}  // namespace

frmInfo::frmInfo(AppContext& app, Window<DeckWindow> deck)
    : Form(app.windows, "frmInfo", FormKind::kChild, u"Tessara Information"),
      app_(app),
      deck_(deck) {
  SetWidth(kWindowWidth);
  SetHeight(kWindowHeight);
  PlaceControls();
  Text1.Wire(&TextBox::onChange, [this](int) { Text1_Change(); });
  Command1.Wire(&Button::onClick, [this](int Index) { Command1_Click(Index); });
}

void frmInfo::PlaceControls() {
  Place({
      {&Label1[0], "Label1", 0, nullptr, u"Title", {240, 180, 1200, 255}, u""},
      {&Text1[0], "Text1", 0, nullptr, u"", {240, 435, 4620, 330}, u"Title"},
      {&Label1[1], "Label1", 1, nullptr, u"Created By", {240, 855, 1200, 255}, u""},
      {&Text1[1], "Text1", 1, nullptr, u"", {240, 1110, 4620, 330}, u"Created By"},
      {&Label1[2], "Label1", 2, nullptr, u"Description", {240, 1530, 1200, 255}, u""},
      {&Text1[2], "Text1", 2, nullptr, u"", {240, 1785, 5670, 1050}, u"Description"},
      {&Label1[3], "Label1", 3, nullptr, u"Date Created:", {240, 2970, 1290, 255}, u""},
      {&Label2[0], "Label2", 0, nullptr, u"", {1530, 2970, 1500, 255}, u""},
      {&Label1[4], "Label1", 4, nullptr, u"Deck Type:", {240, 3285, 1290, 255}, u""},
      {&Label2[1], "Label2", 1, nullptr, u"", {1530, 3285, 1500, 255}, u""},
      {&Label3, "Label3", kNoIndex, nullptr, u"", {3300, 2970, 2610, 255}, u""},
      {&Command1[1], "Command1", 1, nullptr, u"&Save", {3300, 3570, 1215, 495}, u""},
      {&Command1[0], "Command1", 0, nullptr, u"&Close", {4695, 3570, 1215, 495}, u""},
      {&Image1, "Image1", kNoIndex, nullptr, u"", {4950, 405, 960, 960}, u"Cards"},
  });
  Text1[kTitle].SetMaxLength(kTitleLength);
  Text1[kAuthor].SetMaxLength(kTitleLength);
  Text1[kDescription].SetMaxLength(kDescriptionLength);
  Text1[kDescription].SetMultiLine(true);
  Text1[kDescription].SetVerticalScrollBar(true);
  Command1[kSave].SetEnabled(false);
  Image1.SetPicture({"info.png", 64, 64});
}

void frmInfo::Form_Load() {
  const ProgramState& state = app_.state;
  InfoLoading = true;
  const Text today = DateText(app_.machine.clock.Today());
  Label2[kDate].SetCaption(InfoValueOrDefault(state.DeckDate, today));
  if (state.DeckType == kExtendedDeck) Label2[kType].SetCaption(u" Extended");
  if (state.DeckType == kStandardDeck) Label2[kType].SetCaption(u" Standard");
  Label3.SetCaption(u"Number of cards: " + InfoValueOrDefault(DecimalText(state.CardCount), u"0"));
  Text1[kTitle].SetText(InfoValueOrDefault(state.DeckTitle, u"Enter Title Here"));
  Text1[kAuthor].SetText(InfoValueOrDefault(state.DeckAuthor, u"Your Name Here"));
  Text1[kDescription].SetText(InfoValueOrDefault(state.DeckDescription, u"Deck Description Here"));
}

void frmInfo::Form_Unload(bool& /*cancel*/) {
  // It may have outlived its deck: a window that is not there is not made for this.
  if (deck_.IsLoaded()) deck_->SetEnabled(true);
}

void frmInfo::Text1_Change() {
  if (InfoLoading) return;
  app_.state.DeckChanged = true;
  Command1[kSave].SetEnabled(true);
}

void frmInfo::Command1_Click(int Index) {
  if (Index == kSave) {
    CollectDeckInfo(app_.state, *this);
    Command1[kSave].SetEnabled(false);
    return;
  }
  if (Command1[kSave].Enabled()) {
    const MessageAnswer answer = app_.machine.messages.Show(
        u"The information in this form has changed, do you want to return to the form and save it",
        kYesNo, u"Deck Information");
    if (answer == MessageAnswer::kYes) return;
  }
  Unload();
}

Text InfoValueOrDefault(const Text& xValue, const Text& xDefault) {
  return xValue.empty() ? xDefault : u" " + xValue;
}

void CollectDeckInfo(ProgramState& state, const frmInfo& window) {
  const auto set = [&state](int column, const Text& text) {
    state.CardGrid.Set(kInfoRow, column, text);
  };
  set(kCardType, u"I");
  set(kCardText, u"");
  set(kRowNumber, u"0");
  set(kInfoDate, window.Label2[kDate].Caption());
  set(kInfoType, window.Label2[kType].Caption());
  set(kInfoTitle, window.Text1[kTitle].TextOf());
  set(kInfoAuthor, window.Text1[kAuthor].TextOf());
  set(kAnswer, u"");
  set(kInfoDescription, window.Text1[kDescription].TextOf());
  state.CardPresent.Set(kInfoRow, 1);
  state.DeckTitle = window.Text1[kTitle].TextOf();
  state.DeckAuthor = window.Text1[kAuthor].TextOf();
  state.DeckDescription = window.Text1[kDescription].TextOf();
}

}  // namespace tessara
