// How the answer lines of a question open and close, and what enables the buttons.

#include <algorithm>
#include <iterator>
#include <limits>

#include "authoring/question_builder.h"

namespace tessara {

namespace {

constexpr Color kOpenColor = {Color::Role::kWindow};
constexpr Color kClosedColor = {Color::Role::kButtonFace};
constexpr int kLastLine = 3;
/// The fifth capital letter of the run shortens the line that it is typed on.
constexpr int kShorteningCapital = 5;
constexpr int kShortLine = 40;

bool HasText(const TextBox& box) {
  return !box.TextOf().empty();
}

template <class Options>
bool AnySelected(const Options& options) {
  return std::any_of(options.begin(), options.end(),
                     [](const OptionButton& option) { return option.Selected(); });
}

}  // namespace

void QuestionBuilder::OpenLine(int line, bool open) {
  answers[line].SetEnabled(open);
  answers[line].SetBackColor(open ? kOpenColor : kClosedColor);
}

void QuestionBuilder::ResetAnswerLines() {
  for (int line = 0; line <= kLastLine; ++line) {
    OpenLine(line, false);
    marks[line].SetEnabled(false);
  }
  OpenLine(0, true);
}

void QuestionBuilder::SyncAnswerLines() {
  for (int line = 0; line <= kLastLine; ++line) {
    if (!HasText(answers[line])) continue;
    OpenLine(line, true);
    marks[line].SetEnabled(true);
  }
  for (int line = 0; line <= kLastLine; ++line) {
    if (HasText(answers[line])) continue;
    OpenLine(line, true);
    return;
  }
}

void QuestionBuilder::OpenOrCloseNextLine(int line) {
  const bool enable = HasText(answers[line]);
  if (!enable) marks[line].SetSelected(false);
  if (line < kLastLine && HasText(answers[line + 1])) return;
  marks[line].SetEnabled(enable);
  // The last line acts on itself: emptied, only a change of the line before opens it again.
  OpenLine(std::min(line + 1, kLastLine), enable);
}

/// A line that has closed itself under the user's hands: the line before opens it again.
void QuestionBuilder::LeaveClosedLine(int line) {
  if (FocusedControl() != &answers[line] || answers[line].Enabled()) return;
  TextBox& before = answers[line - 1];
  if (before.Reachable()) before.SetFocus();
}

Control* QuestionBuilder::TabTarget(const Control& from) {
  const auto inReach = [](const Control& control) { return control.Reachable(); };
  const auto last = std::find_if(std::make_reverse_iterator(answers.end()),
                                 std::make_reverse_iterator(answers.begin()), inReach);
  const auto mark = std::find_if(marks.begin(), marks.end(), inReach);
  const bool atLast = last.base() != answers.begin() && &*last == &from;
  return atLast && mark != marks.end() && !AnySelected(marks) ? &*mark : nullptr;
}

void QuestionBuilder::CardChange() {
  buttons[kAddButton].SetEnabled(CanAdd());
  buttons[kCancelButton].SetEnabled(CanCancel());
}

bool QuestionBuilder::CanAdd() const {
  return HasAnswer() && HasText(question);
}

bool QuestionBuilder::CanCancel() const {
  return HasText(question) || HasText(answers[0]) || AnySelected(trueFalseMarks);
}

bool QuestionBuilder::HasAnswer() const {
  if (layouts[kMultipleChoice].Selected())
    return std::any_of(answers.begin(), answers.end(), HasText) && AnySelected(marks);
  return layouts[kTrueOrFalse].Selected() && AnySelected(trueFalseMarks);
}

void QuestionBuilder::FollowAnswer(int line) {
  if (!State().building.fillingBoxes) CardChange();
  OpenOrCloseNextLine(line);
  if (State().building.fillingBoxes) return;
  // The mark alone decides here, whatever the question holds.
  buttons[kAddButton].SetEnabled(AnySelected(marks));
  LeaveClosedLine(line);
}

void QuestionBuilder::FollowQuestion() {
  if (!State().building.fillingBoxes) CardChange();
}

void QuestionBuilder::FollowMark() {
  if (State().building.fillingBoxes) {
    State().building.fillingBoxes = false;
    return;
  }
  CardChange();
  buttons[kAddButton].SetEnabled(HasText(answers[0]));
}

void QuestionBuilder::FollowTrueFalseMark() {
  if (State().building.fillingBoxes) {
    State().building.fillingBoxes = false;
    return;
  }
  CardChange();
}

void QuestionBuilder::ClearPlaceholder(int line) {
  if (answers[line].TextOf() == kPlaceholder) answers[line].SetText(u"");
}

void QuestionBuilder::CountCapitals(int line, char16_t character) {
  std::int16_t& capitals = State().building.capitalCount;
  const bool capital = character >= u'A' && character <= u'Z';
  if (capital && capitals < std::numeric_limits<std::int16_t>::max()) ++capitals;
  if (capitals != kShorteningCapital) return;
  answers[line].SetMaxLength(kShortLine);
  State().building.answerLineLimit.at(static_cast<std::size_t>(line)) = kShortLine;
}

}  // namespace tessara
