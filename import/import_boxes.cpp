#include "import/import_boxes.h"

namespace tessara {

void ImportBoxes::MeetCard(std::int16_t card, std::size_t) {
  context_.setCardTotal(card);
}

void ImportBoxes::Meet(const ImportFinding& finding) {
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

}  // namespace tessara
