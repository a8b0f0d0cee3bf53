#pragma once

#include <algorithm>
#include <utility>

#include "tests/unit/authoring/builder_model.h"

namespace tessara::test {

/// What the text builder is to have come to.
class EssayModel : public BuilderModel {
 public:
  Text front, back;

  /// Texts that the walk writes, with the lines that they take in a box of 57 characters.
  static const std::vector<std::pair<Text, int>>& Texts() {
    static const std::vector<std::pair<Text, int>> texts = {
        {u"", 1},      {u"a", 1},       {u"  b & c  ", 1},    {u"two\r\nlines", 2},
        {Lines(9), 9}, {Lines(10), 10}, {Text(513, u'x'), 9}, {Text(514, u'x'), 10},
    };
    return texts;
  }

  explicit EssayModel(const BuilderFixture& fixture) : BuilderModel(fixture) { Load(); }

  void Write(int box, const Text& text) {
    Text& held = box == 0 ? front : back;
    if (held == text) return;
    if (box == 0) {
      front = text;
    } else {
      PutBack(text);
    }
    look.addOn = !front.empty() && !back.empty();
    look.cancelOn = !front.empty() || !back.empty();
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
    Clear();
    BecomeNew();
    look.cancelOn = true;
    current = count + 1;
    number = u"Card: " + DecimalText(current);
  }

  void PressAdd() {
    if (!look.addOn) return;
    if (look.addCaption == kAdd) {
      Save();
      Show(current);
      BecomeOld();
      SetGoTo();
    } else {
      Cell(current, kCardType) = u"E";
      Cell(current, kCardText) = front;
      Cell(current, kBackText) = back;
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
      if (count < 1) {
        Clear();
        number = u"Card: " + DecimalText(count + 1);
        BecomeNew();
        look.cancelOn = false;
        goTo = false;
      } else {
        Show(count);
        BecomeOld();
        SetGoTo();
      }
    }
    look.addOn = false;
  }

  /// Closes with the button, or with the window's box, and opens again.
  void PressClose() {
    if (look.addOn) {
      if (Ask(u"Unsaved Card")) {
        Save();
        saveOffered = true;
        boxes.emplace_back(u"Save");
      } else {
        current = count;
      }
    }
    current = std::min(current, count);
    Reopen();
  }
  void Reopen() {
    At(current);
    Load();
  }

 private:
  void PutBack(const Text& text) {
    if (std::exchange(back, text) == text) return;
    const auto known = std::find_if(Texts().begin(), Texts().end(),
                                    [&](const auto& entry) { return entry.first == text; });
    if (known != Texts().end() && known->second >= 10)
      boxes.emplace_back(u"Maximum Lines Reached!");
  }
  void Show(int row) {
    front = Cell(row, kCardText);
    PutBack(Cell(row, kBackText));
    number = u"Card: " + DecimalText(row);
    SetArrows();
  }
  void Clear() {
    front.clear();
    back.clear();
  }
  void AskForChange() {
    if (look.addOn && Ask(u"Changed Card")) Save();
    look.addOn = false;
  }
  void Save() {
    StandAtCardOne();
    const Text stray = Cell(current, 0);
    At(current) = {stray, u"E", front, DecimalText(current), u"", u"", u"", u"", u"", back};
    Present(current) = 1;
    deckChanged = true;
    count = current;
  }
  void Delete() {
    AskAndDelete();
    Clear();
    deckChanged = true;
    if (count != 0) {
      Show(current);
      BecomeOld();
    } else {
      BecomeNew();
      look.cancelOn = false;
    }
    SetGoTo();
  }
  void Load() {
    Clear();
    look.cancelOn = true;
    if (Cell(1, kCardText).empty()) {
      BecomeNew();
      number = u"Card: " + DecimalText(count + 1);
    } else {
      Show(current);
      BecomeOld();
    }
  }
};

}  // namespace tessara::test
