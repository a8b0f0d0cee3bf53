// How the answer lines of a question open and close, and what enables the buttons.

#include <algorithm>
#include <limits>

#include "authoring/frmQuestion.h"

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

void frmQuestion::OpenLine(int line, bool open) {
  Text1[line].SetEnabled(open);
  Text1[line].SetBackColor(open ? kOpenColor : kClosedColor);
}

void frmQuestion::ResetAnswerLines() {
  for (int line = 0; line <= kLastLine; ++line) {
    OpenLine(line, false);
    Option1[line].SetEnabled(false);
  }
  OpenLine(0, true);
}

void frmQuestion::SyncAnswerLines() {
  for (int line = 0; line <= kLastLine; ++line) {
    if (!HasText(Text1[line])) continue;
    OpenLine(line, true);
    Option1[line].SetEnabled(true);
  }
  for (int line = 0; line <= kLastLine; ++line) {
    if (HasText(Text1[line])) continue;
    OpenLine(line, true);
    return;
  }
}

void frmQuestion::EnableResponceLine(int Index) {
  const bool enable = HasText(Text1[Index]);
  if (!enable) Option1[Index].SetSelected(false);
  if (Index < kLastLine && HasText(Text1[Index + 1])) return;
  Option1[Index].SetEnabled(enable);
  // The last line acts on itself: emptied, only a change of the line before opens it again.
  OpenLine(std::min(Index + 1, kLastLine), enable);
}

/// A line that has closed itself under the user's hands: the line before opens it again.
void frmQuestion::LeaveClosedLine(int line) {
  if (FocusedControl() != &Text1[line] || Text1[line].Enabled()) return;
  TextBox& before = Text1[line - 1];
  if (before.Reachable()) before.SetFocus();
}

void frmQuestion::CardChange() {
  bool canAdd = false;
  bool canCancel = false;
  CanAddCard(canAdd);
  CanCancelCard(canCancel);
  Command2[kAddButton].SetEnabled(canAdd);
  Command2[kCancelButton].SetEnabled(canCancel);
}

void frmQuestion::CanAddCard(bool& result) const {
  ChkOptions(result);
  result = result && HasText(Text2);
}

void frmQuestion::CanCancelCard(bool& result) const {
  result = HasText(Text2) || HasText(Text1[0]) || AnySelected(Option2);
}

void frmQuestion::ChkOptions(bool& result) const {
  if (Option3[0].Selected()) {
    result = std::any_of(Text1.begin(), Text1.end(), HasText) && AnySelected(Option1);
  } else {
    result = Option3[1].Selected() && AnySelected(Option2);
  }
}

void frmQuestion::AnsSelected(bool& result) const {
  result = AnySelected(Option1);
}

void frmQuestion::Text1_Change(int Index) {
  if (!State().CardChanged) CardChange();
  EnableResponceLine(Index);
  if (State().CardChanged) return;
  // The mark alone decides here, whatever the question holds.
  bool selected = false;
  AnsSelected(selected);
  Command2[kAddButton].SetEnabled(selected);
  LeaveClosedLine(Index);
}

void frmQuestion::Text2_Change() {
  if (!State().CardChanged) CardChange();
}

void frmQuestion::Option1_Click(int /*Index*/) {
  if (State().CardChanged) {
    State().CardChanged = false;
    return;
  }
  CardChange();
  Command2[kAddButton].SetEnabled(HasText(Text1[0]));
}

void frmQuestion::Option2_Click(int /*Index*/) {
  if (State().CardChanged) {
    State().CardChanged = false;
    return;
  }
  CardChange();
}

void frmQuestion::Text1_GotFocus(int Index) {
  if (Text1[Index].TextOf() == kPlaceholder) Text1[Index].SetText(u"");
}

void frmQuestion::Text1_KeyPress(int Index, char16_t KeyAscii) {
  std::int16_t& capitals = State().CapitalCount;
  const bool capital = KeyAscii >= u'A' && KeyAscii <= u'Z';
  if (capital && capitals < std::numeric_limits<std::int16_t>::max()) ++capitals;
  if (capitals != kShorteningCapital) return;
  Text1[Index].SetMaxLength(kShortLine);
  State().AnswerLineLimit.at(static_cast<std::size_t>(Index)) = kShortLine;
}

}  // namespace tessara
