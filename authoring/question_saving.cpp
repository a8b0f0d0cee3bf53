// How a question card is checked, goes into the table, and comes back onto the form.

#include "authoring/frmQuestion.h"
#include "platform/message_box.h"
#include "viewer/answer_text.h"

namespace tessara {

namespace {

template <class Options>
const OptionButton* FirstSelected(const Options& options) {
  for (const OptionButton& option : options) {
    if (option.Selected()) return &option;
  }
  return nullptr;
}

}  // namespace

void frmQuestion::SaveTrueFalse() {}

void frmQuestion::SelChoice(Text& result) const {
  result.clear();
  if (Option3[0].Selected()) {
    const OptionButton* mark = FirstSelected(Option1);
    if (mark != nullptr) result = mark->Caption();
  } else if (Option3[1].Selected()) {
    const OptionButton* mark = FirstSelected(Option2);
    if (mark != nullptr) result = mark->Caption().substr(0, 1);
  }
}

void frmQuestion::SelTF(Text& result) const {
  result = Option2[0].Selected() ? u"T" : Option2[1].Selected() ? u"F" : u"";
}

Text frmQuestion::ChosenType() const {
  return Option3[0].Selected() ? u"M" : u"T";
}

void frmQuestion::SaveCard_Gen() {
  if (Option3[0].Selected()) {
    SaveMultipleChoice(u"M");
  } else if (Option3[1].Selected()) {
    SaveMultipleChoice(u"T");
  }
  // A count, also when an older card was saved: it can run ahead of the filled rows.
  ++State().CardCount;
}

void frmQuestion::SaveMultipleChoice(const Text& xQuestType) {
  EnsureCurrentCard();
  WriteCard(State().CurrentCard, xQuestType);
  State().DeckChanged = true;
}

void frmQuestion::ChangeCurrentCard(int xRecNbr, const Text& QuestType) {
  WriteCard(xRecNbr, QuestType);
}

void frmQuestion::WriteCard(int row, const Text& QuestType) {
  CardTable& grid = State().CardGrid;
  Text mark;
  SelChoice(mark);
  grid.Set(row, kCardType, QuestType);
  grid.Set(row, kCardText, Text2.TextOf());
  grid.Set(row, kRowNumber, DecimalText(row));
  for (const TextBox& line : Text1) grid.Set(row, kChoiceA + line.Index(), line.TextOf());
  grid.Set(row, kAnswer, mark);
  grid.Set(row, kBackText, u"");
  State().CardPresent.Set(row, 1);
}

void frmQuestion::MarkQuestType(const Text& QuestType) {
  Option3[QuestType == u"T" ? 1 : 0].SetSelected(true);
}

void frmQuestion::MarkCorrAns(const Text& xAns) {
  const int index = AnswerIndex(xAns);
  if (xAns == u"T" || xAns == u"F") {
    Option2[index].SetSelected(true);
  } else {
    Option1[index].SetSelected(true);
  }
}

void frmQuestion::CheckAnswerLines(bool& result) {
  result = TextOnClosedLine() || PlaceholderLeft();
}

bool frmQuestion::TextOnClosedLine() {
  for (TextBox& line : Text1) {
    if (line.TextOf().empty() || line.Enabled()) continue;
    // The number names the line before, which gets the placeholder.
    App().machine.messages.Show(u"Answer line # " + DecimalText(line.Index()) + u" must have text.",
                                kStopIcon, u"Error: Incomplete Question Builder Information!");
    Text1[line.Index() - 1].SetText(Text(kPlaceholder));
    return true;
  }
  return false;
}

bool frmQuestion::PlaceholderLeft() {
  for (const TextBox& line : Text1) {
    if (line.TextOf() != kPlaceholder) continue;
    App().machine.messages.Show(
        u"Unable to save card, PROGRAM text must be replaced on answer line # " +
            DecimalText(line.Index() + 1) + u".",
        kStopIcon, u"Error: Unable To Save Card");
    return true;
  }
  return false;
}

}  // namespace tessara
