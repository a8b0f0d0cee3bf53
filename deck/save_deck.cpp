// How a deck comes from the window into a file.

#include "deck/ask_file_name.h"
#include "deck/deck_file.h"
#include "deck/deck_file_name.h"
#include "deck/deck_window.h"
#include "deck/frmInfo.h"
#include "platform/message_box.h"
#include "platform/safety_copies.h"
#include "platform/skip_errors.h"

namespace tessara {

namespace {

constexpr TextView kNotSaved = u"File Not Saved";

}  // namespace

void DeckWindow::mnuSave_Click() {
  ProgramState& state = State();
  if (Caption().starts_with(u"New") && state.SaveOffered) {
    if (!ChooseFile()) return;
    state.SaveOffered = false;
  }
  SaveTessaraToFile(state.DeckFilePath);
  state.DeckOnFile = true;
  state.DeckChanged = false;
}

void DeckWindow::mnuSaveAs_Click() {
  ProgramState& state = State();
  if (!ChooseFile()) return;
  SaveTessaraToFile(state.DeckFilePath);
  state.DeckChanged = false;
  state.SaveOffered = false;
}

bool DeckWindow::ChooseFile() {
  const Text path = AskDeckFile(FileDialogMode::kSave);
  if (NoAnswer(path)) {
    App().machine.messages.Show(u"This file was not saved.", kInformationIcon, Text(kNotSaved));
    return false;
  }
  State().DeckFilePath = path;
  return true;
}

void DeckWindow::ChkSave() {
  ProgramState& state = State();
  MessageBoxes& messages = App().machine.messages;
  if (!state.DeckChanged || !state.HasCards()) return;
  const MessageAnswer answer =
      messages.Show(u"There have been changes to this Tessara.Do you want to save them?",
                    kQuestionIcon + kYesNo, u"Unsaved Changes: ");
  if (answer != MessageAnswer::kYes) return App().unsaved.GivenUp();
  const bool asks = state.DeckFilePath.empty();
  if (asks) state.DeckFilePath = AskDeckFile(FileDialogMode::kSave);
  if (asks && NoAnswer(state.DeckFilePath)) {
    messages.Show(u"This file was not saved", kInformationIcon, Text(kNotSaved));
  } else {
    SaveTessaraToFile(state.DeckFilePath);
  }
  state.DeckChanged = false;
}

bool DeckWindow::MakeWay(const Text& xFilename) {
  Machine& machine = App().machine;
  if (!State().DeckOnFile) {
    machine.copies.Keep(xFilename, Loss::kWrittenOver);
    return true;
  }
  machine.copies.Keep(xFilename, Loss::kDeleted);
  try {
    machine.files.Delete(xFilename);
    return true;
  } catch (const RunTimeError& error) {
    if (error.Number() == ErrorNumber::kFileNotFound) return true;
    // The file stays, and is written over instead.
    machine.copies.Keep(xFilename, Loss::kWrittenOver);
    return false;
  }
}

// Errors on its way skip the statement that failed and are not reported.
void DeckWindow::SaveTessaraToFile(const Text& xFilename) {
  ProgramState& state = State();
  Machine& machine = App().machine;
  if (EmptyDeckRefused(state, machine.messages)) {
    App().unsaved.Leave();
    ClearDeckInfo(state);
    ClearAllCards(state);
    App().unsaved.Follow(UnsavedDeck::Table::kAsInFile);
    return;
  }
  if (xFilename.empty()) {
    // The answer is not used: a deck without a path has nowhere to go.
    static_cast<void>(AskDeckFile(FileDialogMode::kSave));
  }
  bool whole = MakeWay(xFilename);
  CollectDeckInfo(state, info_.Loaded());
  // An import that an error has broken off leaves its text open.
  fileNumber_.Close();
  whole &=
      SkipErrors([&] { fileNumber_.OpenRandom(xFilename, OpenMode::kReadAndWrite, kRecordSize); });
  whole &= WriteRecords(state, fileNumber_, machine.codePage);
  whole &= SkipErrors([&] { fileNumber_.Finish(); });
  if (whole) {
    App().unsaved.Saved();
  } else {
    App().unsaved.NotSaved(xFilename);
  }
  machine.messages.Show(u"This file has been saved to " + state.DeckFilePath, kOkOnly, u"Save");
  ShowTitle(kStudyMode);
}

}  // namespace tessara
