// The save. Errors on its way skip the statement that failed and are not reported.

#include "deck/ask_file_name.h"
#include "deck/deck_file.h"
#include "deck/deck_file_name.h"
#include "deck/deck_window.h"
#include "deck/frmInfo.h"
#include "platform/message_box.h"
#include "platform/safety_copies.h"
#include "platform/skip_errors.h"

namespace tessara {

void DeckWindow::SaveTessaraToFile(const Text& xFilename) {
  ProgramState& state = State();
  Machine& machine = App().machine;
  if (EmptyDeckRefused(state, machine.messages)) {
    ClearDeckInfo(state);
    ClearAllCards(state);
    return;
  }
  if (xFilename.empty()) {
    // The answer is not used: a deck without a path has nowhere to go.
    static_cast<void>(AskFileName(FileDialogMode::kSave, kDeckFilter, App()));
  }
  machine.copies.Keep(xFilename);
  if (state.DeckOnFile) SkipErrors([&] { machine.files.Delete(xFilename); });
  CollectDeckInfo(state, info_.Loaded());
  SkipErrors([&] { fileNumber_.OpenRandom(xFilename, OpenMode::kReadAndWrite, kRecordSize); });
  WriteRecords(state, fileNumber_, machine.codePage);
  fileNumber_.Close();
  machine.messages.Show(u"This file has been saved to " + state.DeckFilePath, kOkOnly, u"Save");
  ShowTitle(u"[STUDY]");
}

}  // namespace tessara
