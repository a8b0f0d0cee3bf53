#include "viewer/frmMain.h"

#include <algorithm>

#include "deck/double_amps.h"
#include "deck/frmInfo.h"
#include "deck/long_path_of.h"
#include "forms/place_in_frame.h"
#include "viewer/answer_text.h"

namespace tessara {

namespace {

constexpr int kWindowHeight = 6315;
constexpr int kWindowWidth = 7230;
constexpr int kInfoHeight = 4650;
constexpr int kInfoWidth = 6270;
/// Both captions that the button takes in a test; it starts without one.
constexpr TextView kNextOrScoreName = u"Next Question, Show Score";
constexpr Bounds kUnderTheCard = {120, 3855, 4860, 1635};

/// True where the focus can stay: on something in reach, and not where a blank closes the deck.
bool FocusMayStay(const frmMain& window) {
  const Control* focused = window.FocusedControl();
  return focused != nullptr && focused->Reachable() &&
         focused != &window.Command3[frmMain::kCloseDeck];
}

}  // namespace

frmMain::frmMain(AppContext& app, FileNumber& fileNumber, Window<frmInfo> info)
    : DeckWindow(app, fileNumber, info) {
  SetHeight(kWindowHeight);
  SetWidth(kWindowWidth);
  PlaceControls();
  PlaceMenuEntries();
  WireControls();
  WireMenus();
}

void frmMain::PlaceControls() {
  Place({
      {&Shape1, "Shape1", kNoIndex, nullptr, u"", {210, 240, 6840, 3570}, u"Shadow of the card"},
      {&NoteletCtl1, "NoteletCtl1", kNoIndex, nullptr, u"", {120, 120, 6855, 3615}, u"Card"},
      {&Picture1, "Picture1", kNoIndex, nullptr, u"", {120, 3855, 4950, 1740}, u"Answer card"},
      {&Label2, "Label2", kNoIndex, &Picture1, u"LABEL2", {120, 360, 4575, 255}, u""},
      {&Frame1, "Frame1", kNoIndex, nullptr, u"CREDIT", kUnderTheCard, u""},
      {&Command1[1], "Command1", 1, &Frame1, u"Full Credit", {300, 420, 4335, 465}, u""},
      {&Command1[2], "Command1", 2, &Frame1, u"Partial Credit", {300, 870, 2730, 465}, u""},
      {&Command1[0], "Command1", 0, &Frame1, u"No Credit", {3015, 870, 1620, 465}, u""},
      {&Frame2, "Frame2", kNoIndex, nullptr, u"ANSWER", kUnderTheCard, u""},
      {&Option1[0], "Option1", 0, &Frame2, u"Option1", {150, 360, 4545, 255}, u""},
      {&Option1[1], "Option1", 1, &Frame2, u"Option1", {150, 600, 4545, 255}, u""},
      {&Option1[2], "Option1", 2, &Frame2, u"Option1", {150, 870, 4545, 255}, u""},
      {&Option1[3], "Option1", 3, &Frame2, u"Option1", {150, 1140, 4545, 255}, u""},
      {&Frame3, "Frame3", kNoIndex, nullptr, u"", {5085, 3840, 1905, 1965}, u"Buttons"},
      {&cmdMove[0], "cmdMove", 0, &Frame3, u"<<", {135, 240, 780, 390}, u"Previous card"},
      {&cmdMove[1], "cmdMove", 1, &Frame3, u">>", {975, 240, 780, 390}, u"Next card"},
      {&Command3[0], "Command3", 0, &Frame3, u"", {135, 720, 1620, 375}, kNextOrScoreName},
      {&Command3[1], "Command3", 1, &Frame3, u"&Show Answer", {135, 1080, 1620, 375}, u""},
      {&Command3[2], "Command3", 2, &Frame3, u"&Close Deck", {135, 1440, 1620, 375}, u""},
  });
  Shape1.SetBackColor({Color::Role::kInactiveTitle});
  Command3[kNextOrScore].SetEnabled(false);
  Label2.SetFont({u"MS Sans Serif", 9.75});
  Label2.SetForeColor(FixedColor(29, 49, 82));
  Picture1.SetPicture(App().frame.imgWallPaper().At(u"White 3D").picture);
}

void frmMain::PlaceMenuEntries() {
  PlaceMenus({
      {&mnuFile, "mnuFile", nullptr, u"&File"},
      {&mnuNCD, "mnuNCD", &mnuFile, u"&Clear Tessara"},
      {&mnuOCD, "mnuOCD", &mnuFile, u"&Open Tessara"},
      {&mnuDelete, "mnuDelete", &mnuFile, u"&Delete Card"},
      {&mnu4, "mnu4", &mnuFile, u"-"},
      {&mnuSave, "mnuSave", &mnuFile, u"&Save"},
      {&mnuSaveAs, "mnuSaveAs", &mnuFile, u"Save &As"},
      {&mnuACTTD, "mnuACTTD", &mnuFile, u"&Create/Edit Card"},
      {&mnuPrint, "mnuPrint", &mnuFile, u"Print Deck"},
      {&mnu1, "mnu1", &mnuFile, u"-"},
      {&mnuExit, "mnuExit", &mnuFile, u"&Close Tessara"},
      {&mnuMode, "mnuMode", nullptr, u"Mode"},
      {&mnuStudy, "mnuStudy", &mnuMode, u"&Study"},
      {&mnuQuiz, "mnuQuiz", &mnuMode, u"&Quiz"},
      {&mnuTest, "mnuTest", &mnuMode, u"&Test"},
      {&mnuUtility, "mnuUtility", nullptr, u"&Utility"},
      {&mnuGTP, "mnuGTP", &mnuUtility, u"<Go To Card >"},
      {&mnu2, "mnu2", &mnuUtility, u"-"},
      {&mnuCDI, "mnuCDI", &mnuUtility, u"Tessara Information"},
      {&mnuHelp, "mnuHelp", nullptr, u"&Help"},
      {&mnuHelpTopic, "mnuHelpTopic", &mnuHelp, u"&Tessara Help Topics"},
      {&mnuAbout, "mnuAbout", &mnuHelp, u"&About"},
      {&mnuSC, "mnuSC", &mnuHelp, u"Separating the cards"},
  });
  mnuSave.SetEnabled(false);
}

void frmMain::WireControls() {
  cmdMove.Wire(&Button::onClick, [this](int Index) { cmdMove_Click(Index); });
  Command3.Wire(&Button::onClick, [this](int Index) { Command3_Click(Index); });
  Command1.Wire(&Button::onClick, [this](int Index) { Command1_Click(Index); });
  Option1.Wire(&OptionButton::onClick, [this](int Index) { Option1_Click(Index); });
}

void frmMain::WireMenus() {
  mnuNCD.onClick = [this] {
    mnuNCD_Click();
    KeepFocusInReach();
  };
  mnuOCD.onClick = [this] { mnuOCD_Click(); };
  mnuDelete.onClick = [this] { mnuDelete_Click(); };
  mnuSave.onClick = [this] { mnuSave_Click(); };
  mnuSaveAs.onClick = [this] { mnuSaveAs_Click(); };
  mnuExit.onClick = [this] { mnuExit_Click(); };
  mnuStudy.onClick = [this] { mnuStudy_Click(); };
  mnuQuiz.onClick = [this] { mnuQuiz_Click(); };
  mnuTest.onClick = [this] { mnuTest_Click(); };
  mnuGTP.onClick = [this] { mnuGTP_Click(); };
  mnuCDI.onClick = [this] { mnuCDI_Click(); };
}

void frmMain::Form_Load() {
  ProgramState& state = State();
  if (!state.CommandLineFile.empty()) {
    state.DeckFilePath = LongPathOf(state.CommandLineFile, App().machine.files);
    CommandLineLoad(state.DeckFilePath);
    state.DeckFromCommandLine = true;
  } else {
    SetUpDeck();
    NoteletCtl1.SetCardText(u"");
    Label2.SetCaption(u"");
    Frame1.SetTop(Frame2.Place().top);
    Frame1.SetLeft(Frame2.Place().left);
    Frame1.SetVisible(false);
    MenuOp(false);
  }
  App().frame.CloseSplash();
  mnuSaveAs.SetEnabled(state.CardCount >= 1);
  state.CommandLineFile.clear();
}

void frmMain::Form_Activate() {
  ProgramState& state = State();
  AfterEditShow(state.DeckType);
  ConfigSaveMenu();
  UpdateMoveButtons();
  mnuMode.SetEnabled(state.HasCards());
  mnuNCD.SetEnabled(state.HasCards());
  mnuPrint.SetEnabled(state.CardCount >= 1);
  if (!FocusMayStay(*this)) OfferNext({&cmdMove[kNextCard], &NoteletCtl1});
}

void frmMain::Form_Resize() {
  HoldWindowSize(kWindowHeight, kWindowWidth, *this);
}

void frmMain::Form_Click() {
  App().frame.CloseAbout();
}

void frmMain::mnuCDI_Click() {
  PlaceInFrame(Info().Slot(), kInfoHeight, kInfoWidth, App().frame);
  SetEnabled(false);
}

void frmMain::ShowCardText(int row, int column) {
  NoteletCtl1.SetCardText(DoubleAmps(State().Cell(row, column)));
}

void frmMain::ShowAnswer(int row) {
  Label2.SetCaption(DoubleAmps(AnswerText(State().Cell(row, kAnswer), row, State())));
}

void frmMain::ShowCardNumber() {
  NoteletCtl1.SetCardNumber(DecimalText(State().CurrentCard));
}

void frmMain::OfferNext(std::initializer_list<Control*> controls) {
  const auto* const found =
      std::find_if(controls.begin(), controls.end(), [](Control* c) { return c->Reachable(); });
  if (found != controls.end()) (*found)->SetFocus();
}

void frmMain::KeepFocusInReach() {
  if (!FocusMayStay(*this)) OfferNext({&cmdMove[kNextCard], &cmdMove[kPreviousCard], &NoteletCtl1});
}

}  // namespace tessara
