// How a question card is checked, goes into the table, and comes back onto the form.

#include "authoring/question_builder.h"
#include "deck/card_type.h"
#include "machine/message_box.h"
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

Text QuestionBuilder::MarkedKey() const {
  if (layouts[kMultipleChoice].Selected()) {
    const OptionButton* mark = FirstSelected(marks);
    return mark == nullptr ? Text() : mark->Caption();
  }
  const OptionButton* mark =
      layouts[kTrueOrFalse].Selected() ? FirstSelected(trueFalseMarks) : nullptr;
  return mark == nullptr ? Text() : mark->Caption().substr(0, 1);
}

Text QuestionBuilder::ChosenType() const {
  return Text(LetterOf(layouts[kMultipleChoice].Selected() ? CardType::kMultipleChoice
                                                           : CardType::kTrueFalse));
}

void QuestionBuilder::SaveAsNewCard() {
  if (layouts[kMultipleChoice].Selected()) {
    SaveMultipleChoice(Text(LetterOf(CardType::kMultipleChoice)));
  } else if (layouts[kTrueOrFalse].Selected()) {
    SaveMultipleChoice(Text(LetterOf(CardType::kTrueFalse)));
  }
  // A count, also when an older card was saved: it can run ahead of the filled rows.
  ++State().deck.cardCount;
}

void QuestionBuilder::SaveMultipleChoice(const Text& cardType) {
  EnsureCurrentCard();
  WriteCard(State().deck.currentCard, cardType);
  State().deck.changed = true;
}

void QuestionBuilder::ChangeCurrentCard(int row, const Text& cardType) {
  WriteCard(row, cardType);
}

void QuestionBuilder::WriteCard(int row, const Text& cardType) {
  CardTable& grid = State().deck.cardGrid;
  grid.Set(row, kCardType, cardType);
  grid.Set(row, kCardText, question.TextOf());
  grid.Set(row, kRowNumber, DecimalText(row));
  for (const TextBox& line : answers) grid.Set(row, kChoiceA + line.Index(), line.TextOf());
  grid.Set(row, kAnswer, MarkedKey());
  grid.Set(row, kBackText, u"");
  State().deck.cardPresent.Set(row, 1);
}

void QuestionBuilder::MarkLayout(const Text& cardType) {
  layouts[IsType(cardType, CardType::kTrueFalse) ? kTrueOrFalse : kMultipleChoice].SetSelected(
      true);
}

void QuestionBuilder::MarkAnswer(const Text& key) {
  const int index = AnswerIndex(key);
  if (IsTrueFalseKey(key)) {
    trueFalseMarks[index].SetSelected(true);
  } else {
    marks[index].SetSelected(true);
  }
}

bool QuestionBuilder::RefusesAnswerLines() {
  return TextOnClosedLine() || PlaceholderLeft();
}

bool QuestionBuilder::TextOnClosedLine() {
  for (TextBox& line : answers) {
    if (line.TextOf().empty() || line.Enabled()) continue;
    // The number names the line before, which gets the placeholder.
    App().machine.messages.Show(u"Answer line # " + DecimalText(line.Index()) + u" must have text.",
                                kStopIcon, u"Error: Incomplete Question Builder Information!");
    answers[line.Index() - 1].SetText(Text(kPlaceholder));
    return true;
  }
  return false;
}

bool QuestionBuilder::PlaceholderLeft() {
  for (const TextBox& line : answers) {
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
