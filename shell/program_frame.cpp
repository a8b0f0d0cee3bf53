#include "shell/program_frame.h"

#include "deck/file/deck_file_name.h"
#include "deck/life/ask_file_name.h"
#include "deck/life/dialog_places.h"
#include "forms/place_in_frame.h"
#include "import/import_text_file.h"
#include "machine/desktop.h"
#include "machine/machine.h"
#include "printing/separation_window.h"
#include "viewer/deck_window.h"

namespace tessara {

ProgramFrame::ProgramFrame(AppContext& app, FileNumber& fileNumber, FrameWindows windows)
    : Form(app.windows, "MDIForm1", FormKind::kFrame, u"TESSARA 1.0"),
      app_(app),
      fileNumber_(fileNumber),
      windows_(windows) {
  PlaceMenuEntries();
  WireMenus();
}

void ProgramFrame::PlaceMenuEntries() {
  AddMenus({
      {&fileMenu, nullptr, u"&File"},
      {&newMenu, &fileMenu, u"&New"},
      {&newStandardDeck, &newMenu, u"&Standard Tessara"},
      {&newExtendedDeck, &newMenu, u"E&xtended Tessara"},
      {&openExistingDeck, &fileMenu, u"&Open Existing Deck", u"Ctrl+O"},
      {&setUp, &fileMenu, u"Set &Up"},
      {&importTextFile, &fileMenu, u"Import Text File"},
      {&aboveExit, &fileMenu, u"-"},
      {&exit, &fileMenu, u"&Exit", u"Ctrl+Q"},
      {&helpMenu, nullptr, u"&Help"},
      {&helpTopics, &helpMenu, u"&Tessara Help Topics", u"F1"},
      {&about, &helpMenu, u"&About"},
      {&separatingCards, &helpMenu, u"Separating the cards"},
  });
  SetHelpEntry(helpTopics);
  // By its keys it is the frame's close box.
  exit.LetKeysWorkAlways();
}

void ProgramFrame::WireMenus() {
  newStandardDeck.onClick = [this] { NewStandardDeck(); };
  newExtendedDeck.onClick = [this] { NewExtendedDeck(); };
  openExistingDeck.onClick = [this] { OpenExistingDeck(); };
  setUp.onClick = [this] { ShowSetUp(); };
  importTextFile.onClick = [this] { ImportDeck(); };
  exit.onClick = [this] { Exit(); };
  helpTopics.onClick = [this] { ShowHelpTopic(); };
  about.onClick = [this] { ShowAbout(); };
  separatingCards.onClick = [this] { ShowInstructions(); };
}

int ProgramFrame::ScaleWidth() const {
  return System().RendererOf().FrameScaleWidth();
}

int ProgramFrame::ScaleHeight() const {
  return System().RendererOf().FrameScaleHeight();
}

void ProgramFrame::OnLoad() {
  // Without one the start ends by an error.
  const TextView key = app_.state.settings.backdrop;
  const Picture& tile = BackdropTile(key.empty() ? kNoBackdrop : key, app_.frame);
  TileBackdrop(*this, windows_.surface, tile, app_.machine.desktop);
}

void ProgramFrame::OnUnload(bool& /*cancel*/) {
  windows_.deck.Instance().OfferToSave();
}

/// The keys for it come easily, beside those that close a window: they take no text away.
void ProgramFrame::Exit() {
  if (!System().HoldsUnkeptText()) Unload();
}

void ProgramFrame::ShowHelpTopic() {
  app_.machine.desktop.ShowHelp(ProgramFile(app_.machine, u"TessaraHelp.chm"));
}

void ProgramFrame::ShowAbout() {
  windows_.about->Show();
}

void ProgramFrame::ShowInstructions() {
  ShowSeparationSteps(windows_.instructions);
}

void ProgramFrame::NewStandardDeck() {
  windows_.deck->OpenStandardView();
  app_.state.deck.kind = kStandardDeck;
  app_.state.deck.mode = kStudyMode;
  windows_.deck->OfferFlip(FlipAction::kShowBack);
  windows_.deck->SetGoToMenu();
}

void ProgramFrame::NewExtendedDeck() {
  windows_.deck->OpenExtendedView();
  app_.state.deck.kind = kExtendedDeck;
  windows_.deck->OfferFlip(FlipAction::kHideAnswer);
  app_.state.deck.mode = kStudyMode;
  windows_.deck->SetGoToMenu();
}

void ProgramFrame::OpenExistingDeck() {
  EmptyTable();
  const Text path = AskFileName(FileDialogMode::kOpen, kDeckFilter, app_);
  if (NoAnswer(path) || !IsDeckFileName(path, app_.state, app_.machine.messages)) return;
  OpenDeckOf(path);
}

void ProgramFrame::EmptyTable() {
  app_.unsaved.Leave();
  ClearAllCards(app_.state.deck);
  app_.unsaved.Follow(UnsavedDeck::Table::kAsInFile);
}

void ProgramFrame::OpenDeckOf(const Text& path) {
  ProgramState& state = app_.state;
  state.deck.filePath = path;
  // The deck before the window: the window's load looks at the count of cards.
  windows_.deck.Instance().LoadDeck(state.deck.filePath);
  DeckWindow& deck = windows_.deck.Loaded();
  deck.OpenViewOfFirstCard();
  state.deck.currentCard = 1;
  deck.card.SetCardTotal(DecimalText(state.deck.cardCount));
  SetMoveButtons(deck.arrows, state);
  deck.ShowTitle(kStudyMode);
  state.deck.changed = false;
  state.deck.saveOffered = false;
  state.deck.mode = kStudyMode;
}

MenuEntry* ProgramFrame::EntryFor(const Text& path) {
  const Text name = UpperCase(path);
  const Form* bar = System().MenuBarForm();
  MenuEntry* entry = nullptr;
  if (bar == this && name.ends_with(u".TXT")) entry = &importTextFile;
  if (bar == this && name.ends_with(u".TSR")) entry = &openExistingDeck;
  if (bar != this && windows_.deck.IsLoaded() && name.ends_with(u".TSR")) {
    entry = &windows_.deck->openDeck;
  }
  const bool on = entry != nullptr && entry->Reachable() && &entry->Owner() == bar;
  return on && bar->TakesInput() ? entry : nullptr;
}

void ProgramFrame::OnDropFile(const Text& path) {
  const MenuEntry* entry = EntryFor(path);
  NoteFolderOf(path, app_.state);
  if (entry == &importTextFile) {
    ImportTextFile(path, app_, fileNumber_, windows_.deck);
  } else if (entry != &openExistingDeck) {
    windows_.deck->OpenDroppedDeck(path);
  } else if (IsDeckFileName(path, app_.machine.messages)) {
    EmptyTable();
    OpenDeckOf(path);
  }
}

void ProgramFrame::ShowSetUp() {
  PlaceInFrame(windows_.setUp.Slot(), SetUpWindow::kHeight, SetUpWindow::kWidth);
}

void ProgramFrame::ImportDeck() {
  ImportTextFile(app_, fileNumber_, windows_.deck);
}

}  // namespace tessara
