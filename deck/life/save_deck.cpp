// How a deck comes from the window into a file.

#include "base/skip_errors.h"
#include "deck/deck_info_window.h"
#include "deck/file/deck_file.h"
#include "deck/file/deck_file_name.h"
#include "deck/life/ask_file_name.h"
#include "deck/life/deck_life.h"
#include "machine/message_box.h"
#include "machine/safety_copies.h"

namespace tessara {

void DeckLife::SaveDeck() {
  ProgramState& state = State();
  if (Caption().starts_with(u"New") && state.deck.saveOffered) {
    if (!ChooseFile()) return;
    state.deck.saveOffered = false;
  }
  SaveTessaraToFile(state.deck.filePath);
  state.deck.onFile = true;
  state.deck.changed = false;
}

void DeckLife::SaveDeckAs() {
  ProgramState& state = State();
  if (!ChooseFile()) return;
  SaveTessaraToFile(state.deck.filePath);
  state.deck.changed = false;
  state.deck.saveOffered = false;
}

bool DeckLife::ChooseFile() {
  const Text path = AskDeckFile(FileDialogMode::kSave);
  if (NoAnswer(path)) {
    App().machine.messages.Show(u"This file was not saved.", kInformationIcon, u"File Not Saved");
    return false;
  }
  State().deck.filePath = path;
  return true;
}

bool DeckLife::MakeWay(const Text& fileName) {
  Machine& machine = App().machine;
  if (!State().deck.onFile) {
    machine.copies.Keep(fileName, Loss::kWrittenOver);
    return true;
  }
  machine.copies.Keep(fileName, Loss::kDeleted);
  try {
    machine.files.Delete(fileName);
    return true;
  } catch (const RunTimeError& error) {
    if (error.Number() == ErrorNumber::kFileNotFound) return true;
    // The file stays, and is written over instead.
    machine.copies.Keep(fileName, Loss::kWrittenOver);
    return false;
  }
}

// Errors on its way skip the statement that failed and are not reported.
void DeckLife::SaveTessaraToFile(const Text& fileName) {
  ProgramState& state = State();
  Machine& machine = App().machine;
  if (EmptyDeckRefused(state, machine.messages)) {
    App().unsaved.Leave();
    ClearDeckInfo(state.deck);
    ClearAllCards(state.deck);
    App().unsaved.Follow(UnsavedDeck::Table::kAsInFile);
    return;
  }
  if (fileName.empty()) {
    // The answer is not used: a deck without a path has nowhere to go.
    static_cast<void>(AskDeckFile(FileDialogMode::kSave));
  }
  bool whole = MakeWay(fileName);
  CollectDeckInfo(state, info_.Loaded());
  // An import that an error has broken off leaves its text open.
  fileNumber_.Close();
  whole &=
      SkipErrors([&] { fileNumber_.OpenRandom(fileName, OpenMode::kReadAndWrite, kRecordSize); });
  whole &= WriteRecords(state, fileNumber_, machine.codePage);
  whole &= SkipErrors([&] { fileNumber_.Finish(); });
  if (whole) {
    App().unsaved.Saved();
  } else {
    App().unsaved.NotSaved(fileName);
  }
  machine.messages.Show(u"This file has been saved to " + state.deck.filePath, kOkOnly, u"Save");
  ShowTitle(kStudyMode);
}

}  // namespace tessara
