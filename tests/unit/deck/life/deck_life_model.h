#pragma once

#include <deque>
#include <map>
#include <optional>
#include <vector>

#include "base/utf8.h"
#include "tests/support/life_fixture.h"

namespace tessara::test {

/// The life of a deck told once more, in few words and by other means: a deck is a list, a file
/// is a string. What the program does is held against it, step by step.
class DeckLifeModel {
 public:
  struct Card {
    Text front;
    Text back;
    bool question = false;  ///< a true/false one, whose key is "T"
  };
  struct Strings {
    Text date, title, author, description;
  };

  std::map<Text, std::string> disk;
  std::vector<Card> cards;
  int count = 0;
  int current = 0;
  Text path;
  bool changed = false;
  bool offered = false;
  bool onFile = false;
  Text title = u"New Deck";
  bool window = true;
  bool quiz = false;
  bool extended = false;  ///< the view that the deck window is in
  bool ended = false;
  Strings strings;
  std::optional<InfoTexts> info;  ///< what the information window shows while it is loaded

  // What the user will do, and what was shown.
  std::deque<Text> dialogs;
  std::deque<MessageAnswer> answers;
  Boxes boxes;

  [[nodiscard]] bool HasCards() const { return !cards.empty() && !cards.front().front.empty(); }
  /// False once a refused save has emptied the table under its count.
  [[nodiscard]] bool Consistent() const { return count == static_cast<int>(cards.size()); }

  void Build(const Card& card) {
    cards.push_back(card);
    current = ++count;
    changed = offered = true;
  }

  void Delete() {
    const Text number = DecimalText(current);
    if (Ask({u"Deletion is permanent, are you sure?", 4, u"Delete Card # " + number})) {
      cards.erase(cards.begin() + current - 1);
      if (current == count) --current;
      --count;
    }
    changed = true;
  }

  void Clear() {
    CheckSave();
    Empty();
    changed = onFile = false;
    current = 0;
  }

  void Open() {
    path = Dialog();
    if (NoName(path)) return;
    if (!path.ends_with(u"tsr")) {
      boxes.push_back(kNotADeckBox);
      path.clear();
      return;
    }
    if (AlreadyOpen()) return;
    CheckSave();
    Load();
    title = Name(path) + u"  [STUDY]";
    changed = offered = false;
    onFile = true;
  }

  void Save() {
    if (title.starts_with(u"New") && offered) {
      if (!ChooseName()) return;
      offered = false;
    }
    Write();
    onFile = true;
    changed = false;
  }

  void SaveAs() {
    if (!ChooseName()) return;
    Write();
    changed = offered = false;
  }

  void Exit() {
    if (HasCards()) CheckSave();
    changed = offered = false;
    Close();
  }

  void Close() {
    if (quiz) {
      boxes.push_back(kQuitBox);
      return;
    }
    CheckSave();
    if (HasCards() && !Ask(kSureBox)) return;
    Empty();
    current = 0;
    onFile = false;
    window = false;
  }

  /// The frame's commands for a new deck.
  void Reopen(bool asExtended) {
    window = true;
    title = u"New Deck";
    extended = asExtended;
  }

  void OpenFromFrame() {
    const Text chosen = Dialog();
    if (NoName(chosen)) return;
    if (!chosen.ends_with(u"tsr")) {
      boxes.push_back(kNotADeckBox);
      path.clear();
      return;
    }
    path = chosen;
    Load();
    window = true;
    title = Name(path) + u"  [STUDY]";
    changed = offered = false;
  }

  void Import(const std::vector<Card>& imported) {
    (void)Dialog();
    Reopen(imported.front().question);
    cards = imported;
    count = static_cast<int>(cards.size());
    current = 1;
    const InfoTexts none;
    strings.title = none.title;
    strings.author = none.author;
    strings.description = none.description;
    changed = offered = true;
  }

  void CloseFrame() {
    if (window) Close();
    if (window) return;
    info.reset();
    ended = true;
  }

  void Quiz() {
    quiz = true;
    current = 1;
    title = Name(path) + u"  [QUIZ]";
  }

  void Study() {
    quiz = false;
    current = 1;
    title = Name(path) + u"  [STUDY]";
  }

  void EditTitle(const Text& typed) {
    LoadInfo();
    info->title = typed;
    changed = true;
    Collect();
    info.reset();
  }

  void CloseInfo() { info.reset(); }

 private:
  static bool NoName(const Text& name) { return name.empty() || name == u"*.tsr"; }

  static Text Name(const Text& file) {
    const auto slash = file.rfind(u'/');
    if (slash == Text::npos) return {};
    const auto point = file.find(u'.', slash);
    return point == Text::npos ? Text() : file.substr(slash + 1, point - slash - 1);
  }

  bool Ask(const FakeMessages::Shown& box) {
    boxes.push_back(box);
    const MessageAnswer answer = answers.front();
    answers.pop_front();
    return answer == MessageAnswer::kYes;
  }

  Text Dialog() {
    Text answer = dialogs.front();
    dialogs.pop_front();
    return answer;
  }

  bool ChooseName() {
    const Text chosen = Dialog();
    if (NoName(chosen)) {
      boxes.push_back(kNotSavedBox);
      return false;
    }
    path = chosen;
    return true;
  }

  bool AlreadyOpen() {
    const auto bracket = title.find(u"  [");
    const Text shown = title.substr(0, bracket);
    if (shown != Name(path)) return false;
    boxes.push_back({shown + u" Tessara is already open", 64, u"Open Existing Tessara"});
    return true;
  }

  void CheckSave() {
    if (!changed || !HasCards() || !Ask(kChangesBox)) return;
    const bool asks = path.empty();
    if (asks) path = Dialog();
    if (asks && NoName(path)) {
      boxes.push_back({u"This file was not saved", 64, u"File Not Saved"});
    } else {
      Write();
    }
    changed = false;
  }

  void Empty() {
    cards.clear();
    count = 0;
    path.clear();
    offered = false;
    strings = {};
    title = u"New Deck";
  }

  static Text Shown(const Text& value, const Text& otherwise) {
    return value.empty() ? otherwise : u" " + value;
  }

  void LoadInfo() {
    if (info) return;
    const InfoTexts none;
    info = InfoTexts{Shown(strings.date, none.date), extended ? u" Extended" : u" Standard",
                     Shown(strings.title, none.title), Shown(strings.author, none.author),
                     Shown(strings.description, none.description)};
  }

  void Collect() {
    strings.title = info->title;
    strings.author = info->author;
    strings.description = info->description;
  }

  void Write() {
    if (!HasCards()) {
      boxes.push_back(kEmptyDeckBox);
      cards.clear();
      strings = {};
      return;
    }
    if (path.empty()) (void)Dialog();
    if (onFile) disk.erase(path);
    LoadInfo();
    Collect();
    if (path.starts_with(u"/decks/")) {
      const std::string bytes = FileBytes();
      std::string& file = disk[path];
      file.replace(0, std::min(file.size(), bytes.size()), bytes);
    }
    boxes.push_back(SavedBox(path));
    title = Name(path) + u"  [STUDY]";
  }

  [[nodiscard]] std::string FileBytes() const {
    std::string bytes = InfoBytes(*info);
    int row = 0;
    for (const Card& card : cards) {
      bytes += card.question ? TrueCardBytes(++row, card.front)
                             : CardBytes(++row, card.front, card.back);
    }
    return bytes + EndBytes();
  }

  static Text Field(const std::string& record, std::size_t offset, std::size_t width) {
    return Text(Trimmed(FromUtf8(record.substr(offset, width))));
  }

  void Load() {
    cards.clear();
    strings = {};
    const std::string& file = disk.at(path);
    for (std::size_t at = 0; at < file.size() && file[at] != 'X'; at += 1192) {
      const std::string record = file.substr(at, 1192);
      if (record[0] == 'I') {
        strings = {Field(record, 447, 75), Field(record, 597, 75), Field(record, 672, 75),
                   Field(record, 748, 444)};
      } else {
        cards.push_back({Field(record, 1, 444), Field(record, 748, 444), record[0] == 'T'});
      }
    }
    if (!cards.empty()) extended = cards.front().question;
    count = static_cast<int>(cards.size());
    current = 1;
  }
};

}  // namespace tessara::test
