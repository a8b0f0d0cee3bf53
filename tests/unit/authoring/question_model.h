#pragma once

#include <algorithm>

#include "tests/unit/authoring/builder_model.h"

namespace tessara::test {

/// What the question builder is to have come to.
class QuestionModel : public BuilderModel {
 public:
  Text question;
  std::array<Text, 4> lines;
  std::array<bool, 4> lineOn{}, markOn{};
  int mark = -1;
  int trueFalse = -1;
  int layout = -1;
  bool typeOn = true;

  explicit QuestionModel(const BuilderFixture& fixture) : BuilderModel(fixture) { Load(); }

  void WriteQuestion(const Text& text) {
    if (question == text) return;
    question = text;
    NoteChange();
  }
  void WriteLine(int line, const Text& text) {
    if (layout != 0 || !On(lineOn, line)) return;
    EditLine(line, text.substr(0, static_cast<std::size_t>(On(limit, line))));
  }
  void TypeKey(int line, char16_t key) {
    if (layout != 0 || !On(lineOn, line)) return;
    if (key >= 65 && key <= 90) ++capitals;
    if (capitals == 5) On(limit, line) = 40;
    const Text& held = On(lines, line);
    if (static_cast<int>(held.size()) < On(limit, line)) EditLine(line, held + key);
  }
  /// The user comes to the line from the question.
  void Visit(int line) {
    const bool reachable = layout == 0 && On(lineOn, line);
    if (reachable && On(lines, line) == kMissing) EditLine(line, u"");
  }
  void PickMark(int line) {
    if (layout != 0 || !On(markOn, line)) return;
    mark = line;
    NoteChange();
    look.addOn = !lines[0].empty();
  }
  void PickTrueFalse(int option) {
    if (layout != 1) return;
    trueFalse = option;
    NoteChange();
  }
  void PickType(int option) {
    if (typeOn) layout = option;
  }

  void Move(int arrow) {
    if (!(arrow == 0 ? look.previousOn : look.nextOn)) return;
    AskForChange();
    current += arrow == 0 ? -1 : 1;
    Show(current);
  }

  void PressNew() {
    if (!look.newOn) return;
    AskForChange();
    StartNew();
    look.cancelOn = true;
    current = count + 1;
  }

  void PressAdd() {
    if (!look.addOn || Refused()) return;
    if (look.addCaption == kAdd) {
      SaveAndCount();
      Show(current);
      Become(BuilderState::kOld);
      SetGoTo();
    } else {
      WriteRow(layout == 0 ? u"M" : u"T");
      look.addOn = false;
    }
    deckChanged = saveOffered = true;
  }

  void PressCancel() {
    if (!look.cancelOn) return;
    if (look.cancelCaption == kDelete) {
      Delete();
    } else {
      current = count;
      if (current < 1) {
        StartNew();
        look.cancelOn = false;
      } else {
        Show(count);
        Become(BuilderState::kOld);
        OpenLinesAfresh();
      }
    }
    look.addOn = false;
  }

  void PressClose() {
    const bool asks = look.addOn;
    const bool saves = asks && Ask(u"Tessara");
    if (saves) {
      StandAtCardOne();
      WriteRow(layout == 0 ? u"M" : u"T");
      if (look.addCaption == kAdd) ++count;
      boxes.emplace_back(u"Tessara");
      deckChanged = saveOffered = true;
    } else {
      current = count;
    }
    Reopen();
  }
  void Reopen() {
    At(current);
    Load();
  }

 private:
  inline static const Text kMissing = u"[TEXT MISSING HERE]";

  void NoteChange() {
    const bool anyLine =
        std::any_of(lines.begin(), lines.end(), [](const Text& line) { return !line.empty(); });
    const bool marked = layout == 0 ? anyLine && mark >= 0 : trueFalse >= 0;
    look.addOn = marked && !question.empty();
    look.cancelOn = !question.empty() || !lines[0].empty() || trueFalse >= 0;
  }
  void EditLine(int line, const Text& text) {
    if (On(lines, line) == text) return;
    PutLine(line, text);
    NoteChange();
    look.addOn = mark >= 0;
  }
  void PutLine(int line, const Text& text) {
    if (On(lines, line) == text) return;
    On(lines, line) = text;
    const bool filled = !text.empty();
    if (!filled && mark == line) mark = -1;
    const bool filledBehind = line < 3 && !On(lines, line + 1).empty();
    if (filledBehind) return;
    On(markOn, line) = filled;
    On(lineOn, line == 3 ? 3 : line + 1) = filled;
  }

  void Show(int row) {
    layout = Cell(row, kCardType) == u"T" ? 1 : 0;
    question = Cell(row, kCardText);
    for (int line = 0; line < 4; ++line) PutLine(line, Cell(row, kChoiceA + line));
    const Text key = Cell(row, kAnswer);
    if (key == u"T" || key == u"F") {
      trueFalse = key == u"T" ? 0 : 1;
    } else {
      mark = key == u"D" ? 3 : key == u"C" ? 2 : key == u"B" ? 1 : 0;
    }
    number = u"Card: " + Cell(row, kRowNumber);
    SetArrows();
  }
  void Clear() {
    for (int line = 0; line < 4; ++line) PutLine(line, u"");
    mark = trueFalse = -1;
    question.clear();
  }
  void Become(BuilderState state) {
    typeOn = state == BuilderState::kNew;
    if (typeOn) {
      BecomeNew();
      look.cancelOn = true;
    } else {
      BecomeOld();
    }
  }
  void StartNew() {
    Clear();
    number = u"Card: " + DecimalText(count + 1);
    Become(BuilderState::kNew);
    lineOn = {true, false, false, false};
    markOn = {};
  }
  void OpenLinesAfresh() {
    lineOn = {true, false, false, false};
    markOn = {};
    for (int line = 0; line < 4; ++line) {
      if (!On(lines, line).empty()) On(lineOn, line) = On(markOn, line) = true;
    }
    const auto* firstEmpty =
        std::find_if(lines.begin(), lines.end(), [](const Text& line) { return line.empty(); });
    if (firstEmpty != lines.end()) On(lineOn, static_cast<int>(firstEmpty - lines.begin())) = true;
  }

  [[nodiscard]] Text Key() const {
    if (layout == 0) return mark < 0 ? Text() : Text(1, static_cast<char16_t>(u'A' + mark));
    return trueFalse < 0 ? u"" : trueFalse == 0 ? u"T" : u"F";
  }
  void WriteRow(const Text& type) {
    At(current) = {
        Cell(current, 0), type,  question, DecimalText(current), lines[0], lines[1], lines[2],
        lines[3],         Key(), u""};
    Present(current) = 1;
  }
  void SaveAndCount() {
    StandAtCardOne();
    WriteRow(layout == 0 ? u"M" : u"T");
    deckChanged = true;
    ++count;
  }
  void AskForChange() {
    if (!look.addOn || !Ask(u"Changed Card")) return;
    SaveAndCount();
    look.addOn = false;
  }
  bool Refused() {
    for (int line = 0; line < 4; ++line) {
      if (On(lines, line).empty() || On(lineOn, line)) continue;
      boxes.emplace_back(u"Error: Incomplete Question Builder Information!");
      EditLine(line - 1, kMissing);
      return true;
    }
    if (std::find(lines.begin(), lines.end(), kMissing) == lines.end()) return false;
    boxes.emplace_back(u"Error: Unable To Save Card");
    return true;
  }
  void Delete() {
    AskAndDelete();
    Clear();
    deckChanged = true;
    if (count != 0) {
      Show(current);
      Become(BuilderState::kOld);
    } else {
      Become(BuilderState::kNew);
      look.cancelOn = false;
    }
    SetGoTo();
  }
  void Load() {
    Clear();
    if (Cell(1, kCardText).empty()) {
      layout = 0;
      Become(BuilderState::kNew);
      number = u"Card: " + DecimalText(count + 1);
      look.cancelOn = false;
    } else {
      Show(current);
      Become(BuilderState::kOld);
    }
    OpenLinesAfresh();
  }
};

}  // namespace tessara::test
