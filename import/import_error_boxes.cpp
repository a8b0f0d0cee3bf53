#include "import/import_error_boxes.h"

namespace tessara {

namespace {

void ShowErrorInFile(const Text& text, MessageBoxes& messages) {
  messages.Show(text, kStopIcon, u"Error In Import File");
}

}  // namespace

void ImportErrorBoxes::MeetCard(std::int16_t card, std::size_t) {
  context_.setCardTotal(card);
}

void ImportErrorBoxes::Meet(const ImportFinding& finding) {
  MessageBoxes& messages = context_.messages;
  const Text card = DecimalText(finding.card);
  switch (finding.event) {
    case ImportEvent::kBadFirstCard:
      return ShowErrorInFile(
          u"First card is equal to 0 or is greater than \" 1 \". Import has been cancelled.",
          messages);
    case ImportEvent::kBadSequence:
      return ShowErrorInFile(u"A sequence error has occured after \"card # " + card +
                                 u"\". Import has been cancelled.",
                             messages);
    case ImportEvent::kLineOutsideCard:
      return ShowErrorInFile(u"Error occurred after card # " + card + u". Import aborted.",
                             messages);
    case ImportEvent::kSideMissing:
      return ShowErrorInFile(
          u"Error at card # " + card + u" in import file. Import has been cancelled.", messages);
    case ImportEvent::kBadChoiceOrder:
      messages.Show(u"Error in answer sequence.", kOkOnly, Text(kProgramName));
      return;
    default:
      // All else happens in silence.
      return;
  }
}

void ShowFormatMissing(MessageBoxes& messages) {
  ShowErrorInFile(
      u"EXT or STD was not indicated as a file type at the top of the import file. Import has "
      u"been aborted.",
      messages);
}

void ShowNoCards(MessageBoxes& messages) {
  messages.Show(u"No cards were found in this file, recheck the format of the file.", kStopIcon,
                u"Import Canceled");
}

void ShowImportError(const RunTimeError& error, MessageBoxes& messages) {
  messages.Show(u"An unspecified error has occurred while importing this file [" +
                    error.Description() + u"], import has been cancelled.",
                kStopIcon, u"Import Error");
}

void ShowLineWithError(const Text& line, MessageBoxes& messages) {
  messages.Show(line, kOkOnly, u"Line Containing Error:");
}

}  // namespace tessara
