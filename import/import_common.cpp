#include "import/import_common.h"

#include "deck/date_text.h"

namespace tessara {

namespace {

bool ReadCards(const Text& xFilename, const ImportContext& context, CardsReader readCards) {
  context.fileNumber.OpenInput(xFilename);
  LineReader lines(context.fileNumber, context.codePage);
  const bool good = readCards(lines, context);
  // An error that the reader does not foresee leaves the file open.
  context.fileNumber.Close();
  return good;
}

}  // namespace

bool ReadImportFile(const Text& xFilename, const ImportContext& context, CardsReader readCards) {
  const bool good = ReadCards(xFilename, context, readCards);
  if (context.state.CardCount == 0) {
    context.messages.Show(u"No cards were found in this file, recheck the format of the file.",
                          kStopIcon, u"Import Canceled");
    AbandonImport(context.state);
  }
  if (!good) AbandonImport(context.state);
  return good;
}

Text BoundedText(TextView text) {
  return Text(text.substr(0, kLongestImportedText));
}

void AddBounded(Text& text, TextView line) {
  text += line.substr(0, kLongestImportedText - text.size());
}

void ShowImportedDeck(DeckKind kind, const ImportContext& context) {
  context.state.CurrentCard = 1;
  context.showDeck(kind);
}

void MarkAsImported(const Text& xType, const ImportContext& context) {
  SetImportedDeckInfo(xType, context.today, context.state);
  context.state.DeckChanged = true;
}

void SetImportedDeckInfo(const Text& xType, const Date& today, ProgramState& state) {
  const Text title = u"Enter Title Here";
  const Text author = u"Your Name Here";
  const Text description = u"Deck Description Here";
  CardTable& grid = state.CardGrid;
  grid.Set(kInfoRow, kCardType, u"I");
  grid.Set(kInfoRow, kCardText, u"");
  grid.Set(kInfoRow, kRowNumber, u"0");
  grid.Set(kInfoRow, kInfoDate, DateText(today));
  grid.Set(kInfoRow, kInfoType, xType);
  grid.Set(kInfoRow, kInfoTitle, title);
  grid.Set(kInfoRow, kInfoAuthor, author);
  grid.Set(kInfoRow, kAnswer, u"");
  grid.Set(kInfoRow, kInfoDescription, description);
  state.CardPresent.Set(kInfoRow, 1);
  state.DeckTitle = title;
  state.DeckAuthor = author;
  state.DeckDescription = description;
}

void AbandonImport(ProgramState& state) {
  ClearAllCards(state);
  state.ImportCardNumber = 0;
  state.ImportPrevCard = 0;
}

void ImportErrorBox(const RunTimeError& error, const ImportContext& context) {
  context.messages.Show(u"An unspecified error has occurred while importing this file [" +
                            error.Description() + u"], import has been cancelled.",
                        kStopIcon, u"Import Error");
  AbandonImport(context.state);
}

void ShowErrorInFile(const Text& text, MessageBoxes& messages) {
  messages.Show(text, kStopIcon, u"Error In Import File");
}

bool CheckCardSequence(std::int16_t xCard, std::int16_t xPrev, MessageBoxes& messages) {
  if (xCard == 0 || (xCard > 1 && xPrev == 0)) {
    ShowErrorInFile(
        u"First card is equal to 0 or is greater than \" 1 \". Import has been cancelled.",
        messages);
    return false;
  }
  if (xPrev >= xCard || xCard >= xPrev + 2) {
    ShowErrorInFile(u"A sequence error has occured after \"card # " + DecimalText(xPrev) +
                        u"\". Import has been cancelled.",
                    messages);
    return false;
  }
  return true;
}

}  // namespace tessara
