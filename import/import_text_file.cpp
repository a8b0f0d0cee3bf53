#include "import/import_text_file.h"

#include "deck/life/ask_file_name.h"
#include "import/extended_import.h"
#include "import/import_common.h"
#include "import/import_error_boxes.h"
#include "import/line_kinds.h"
#include "import/line_reader.h"
#include "import/standard_import.h"

namespace tessara {

namespace {

Text FirstLine(const Text& path, FileNumber& fileNumber, const CodePage& codePage) {
  fileNumber.OpenInput(path);
  Text line = LineReader(fileNumber, codePage).ReadLine();
  fileNumber.Close();
  return line;
}

void ShowDeck(DeckKind kind, DeckLife& deck) {
  if (kind == kExtendedDeck) {
    deck.OpenExtendedView();
  } else {
    deck.OpenStandardView();
  }
  deck.ShowFirstCard(kind);
}

ImportContext ContextOf(AppContext& app, FileNumber& fileNumber, Window<DeckLife> deck) {
  Machine& machine = app.machine;
  return {app.state,
          fileNumber,
          machine.messages,
          machine.codePage,
          machine.clock.Today(),
          [deck](std::int16_t cards) { deck->Card().SetCardTotal(DecimalText(cards)); },
          [deck](DeckKind kind) { ShowDeck(kind, deck.Loaded()); }};
}

}  // namespace

void ImportTextFile(AppContext& app, FileNumber& fileNumber, Window<DeckLife> deck) {
  const Text path = AskFileName(FileDialogMode::kOpen, u"Text File|*.txt", app);
  if (!path.empty()) ImportTextFile(path, app, fileNumber, deck);
}

void ImportTextFile(const Text& path, AppContext& app, FileNumber& fileNumber,
                    Window<DeckLife> deck) {
  const Text format = FirstLine(path, fileNumber, app.machine.codePage);
  const bool extended = IsWord(format, kExtendedWord);
  if (!extended && !IsWord(format, kStandardWord)) {
    ShowFormatMissing(app.machine.messages);
    return;
  }
  const auto importDeck = extended ? ImportExtended : ImportStandard;
  app.unsaved.Leave();
  importDeck(path, ContextOf(app, fileNumber, deck));
  app.unsaved.Follow(UnsavedDeck::Table::kChanged);
  // Whether or not it has worked.
  app.state.deck.saveOffered = true;
  // The window has come up before its deck was a changed one.
  if (deck.IsLoaded()) deck->ConfigSaveMenu();
}

}  // namespace tessara
