#include "shell/MDIForm1.h"

#include "deck/ask_file_name.h"
#include "deck/deck_file_name.h"
#include "forms/place_in_frame.h"
#include "import/import_text_file.h"
#include "platform/desktop.h"
#include "platform/program_file.h"
#include "printing/frmInstruct.h"
#include "viewer/frmMain.h"

namespace tessara {

namespace {

/// What the frame asks for where no backdrop is set. The list of card pictures is shorter: the
/// look-up fails, and with it the start.
constexpr int kMissingBackDrop = 12;

}  // namespace

MDIForm1::MDIForm1(AppContext& app, FileNumber& fileNumber, FrameWindows windows)
    : Form(app.windows, "MDIForm1", FormKind::kFrame, u"TESSARA 1.0"),
      app_(app),
      fileNumber_(fileNumber),
      windows_(windows) {
  PlaceMenuEntries();
  WireMenus();
}

void MDIForm1::PlaceMenuEntries() {
  PlaceMenus({
      {&mnuFile, "mnuFile", nullptr, u"&File"},
      {&mnuNew, "mnuNew", &mnuFile, u"&New"},
      {&mnuStdTessara, "mnuStdTessara", &mnuNew, u"&Standard Tessara"},
      {&mnuExtTessara, "mnuExtTessara", &mnuNew, u"E&xtended Tessara"},
      {&mnuOPenExisting, "mnuOPenExisting", &mnuFile, u"&Open Existing Deck"},
      {&mnuSetup, "mnuSetup", &mnuFile, u"Set &Up"},
      {&mnuImportFile, "mnuImportFile", &mnuFile, u"Import Text File"},
      {&mnu1, "mnu1", &mnuFile, u"-"},
      {&mnuExit, "mnuExit", &mnuFile, u"&Exit"},
      {&mnuHelp, "mnuHelp", nullptr, u"&Help"},
      {&mnuHelpTopics, "mnuHelpTopics", &mnuHelp, u"&Tessara Help Topics"},
      {&mnuAbout, "mnuAbout", &mnuHelp, u"&About"},
      {&mnuSC, "mnuSC", &mnuHelp, u"Separating the cards"},
  });
}

void MDIForm1::WireMenus() {
  mnuStdTessara.onClick = [this] { mnuStdTessara_Click(); };
  mnuExtTessara.onClick = [this] { mnuExtTessara_Click(); };
  mnuOPenExisting.onClick = [this] { mnuOPenExisting_Click(); };
  mnuSetup.onClick = [this] { mnuSetup_Click(); };
  mnuImportFile.onClick = [this] { mnuImportFile_Click(); };
  mnuExit.onClick = [this] { Unload(); };
  mnuHelpTopics.onClick = [this] { ShowHelpTopic(); };
  mnuAbout.onClick = [this] { ShowAbout(); };
  mnuSC.onClick = [this] { ShowInstructions(); };
}

int MDIForm1::ScaleWidth() const {
  return System().Shown().FrameScaleWidth();
}

int MDIForm1::ScaleHeight() const {
  return System().Shown().FrameScaleHeight();
}

void MDIForm1::Form_Load() {
  TileMDIBkgd(*this, windows_.surface, BackDropPicture(), app_.machine.desktop);
}

const Picture& MDIForm1::BackDropPicture() const {
  const Text& key = app_.state.BackDrop;
  if (key.empty() || key == u"<NONE>")
    return app_.frame.imgWallPaper().At(kMissingBackDrop).picture;
  return app_.frame.BKG().At(key).picture;
}

void MDIForm1::Form_Unload(bool& /*cancel*/) {
  windows_.deck.Instance().ChkSave();
}

void MDIForm1::ShowHelpTopic() {
  app_.machine.desktop.ShowHelp(ProgramFile(app_.machine, u"TessaraHelp.chm"));
}

void MDIForm1::ShowAbout() {
  windows_.about->Show();
}

void MDIForm1::ShowInstructions() {
  mnuSC_Click(windows_.instructions);
}

void MDIForm1::mnuStdTessara_Click() {
  windows_.deck->OpenStandardView();
  app_.state.DeckType = kStandardDeck;
  app_.state.CardMode = kStudyMode;
  windows_.deck->Command3[DeckWindow::kFlip].SetCaption(u"&Show Back");
  windows_.deck->SetGoToMenu();
}

void MDIForm1::mnuExtTessara_Click() {
  windows_.deck->OpenExtendedView();
  app_.state.DeckType = kExtendedDeck;
  windows_.deck->Command3[DeckWindow::kFlip].SetCaption(u"&Hide Answer");
  app_.state.CardMode = kStudyMode;
  windows_.deck->SetGoToMenu();
}

void MDIForm1::mnuOPenExisting_Click() {
  ProgramState& state = app_.state;
  app_.unsaved.Leave();
  ClearAllCards(state);
  app_.unsaved.Follow(UnsavedDeck::Table::kAsInFile);
  const Text path = AskFileName(FileDialogMode::kOpen, kDeckFilter, app_);
  if (NoAnswer(path) || !IsDeckFileName(path, state, app_.machine.messages)) return;
  state.DeckFilePath = path;
  // The deck before the window: the window's load looks at the count of cards.
  windows_.deck.Instance().LoadDeck(state.DeckFilePath);
  frmMain& deck = windows_.deck.Loaded();
  deck.OpenViewOfFirstCard();
  state.CurrentCard = 1;
  deck.NoteletCtl1.SetCardTotal(DecimalText(state.CardCount));
  SetMoveButtons(deck.cmdMove, state);
  deck.ShowTitle(kStudyMode);
  state.DeckChanged = false;
  state.SaveOffered = false;
  state.CardMode = kStudyMode;
}

void MDIForm1::mnuSetup_Click() {
  PlaceInFrame(windows_.setUp.Slot(), FrmSetUp::kHeight, FrmSetUp::kWidth, app_.frame);
}

void MDIForm1::mnuImportFile_Click() {
  ImportTextFile(app_, fileNumber_, windows_.deck);
}

}  // namespace tessara
