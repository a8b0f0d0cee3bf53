#include "import/import_common.h"

#include "deck/date_text.h"
#include "deck/deck_information.h"
#include "import/import_error_boxes.h"

namespace tessara {

namespace {

bool ReadCards(const Text& fileName, const ImportContext& context, CardsReader readCards) {
  context.fileNumber.OpenInput(fileName);
  LineReader lines(context.fileNumber, context.codePage);
  ImportErrorBoxes boxes(context);
  CardsReading reading(lines, context.state, boxes);
  const bool good = readCards(reading);
  // An error that the reader does not foresee leaves the file open.
  context.fileNumber.Close();
  return good;
}

}  // namespace

bool ReadImportFile(const Text& fileName, const ImportContext& context, CardsReader readCards) {
  const bool good = ReadCards(fileName, context, readCards);
  if (context.state.deck.cardCount == 0) {
    ShowNoCards(context.messages);
    AbandonImport(context.state);
  }
  if (!good) AbandonImport(context.state);
  return good;
}

Text BoundedText(TextView text) {
  return Text(text.substr(0, kLongestImportedText));
}

bool AddBounded(Text& text, TextView line) {
  const std::size_t room = kLongestImportedText - text.size();
  text += line.substr(0, room);
  return line.size() <= room;
}

void ShowImportedDeck(DeckKind kind, const ImportContext& context) {
  context.state.deck.currentCard = 1;
  context.showDeck(kind);
}

void MarkAsImported(const Text& kind, const ImportContext& context) {
  SetImportedDeckInfo(kind, context.today, context.state);
  context.state.deck.changed = true;
}

void SetImportedDeckInfo(const Text& kind, const Date& today, ProgramState& state) {
  DeckInformation information;
  information.date = DateText(today);
  information.typeName = kind;
  StoreDeckInformation(information, state.deck);
}

void AbandonImport(ProgramState& state) {
  ClearAllCards(state.deck);
  state.import.cardNumber = 0;
  state.import.previousCard = 0;
}

void AbandonImport(const RunTimeError& error, const ImportContext& context) {
  ShowImportError(error, context.messages);
  AbandonImport(context.state);
}

}  // namespace tessara
