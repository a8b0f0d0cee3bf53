#include <algorithm>
#include <doctest/doctest.h>
#include <random>

#include "base/utf8.h"
#include "tests/support/life_program.h"
#include "tests/unit/deck/life/deck_life_model.h"

// Long random lives of decks, each step compared with a model of its own.

namespace tessara::test {

namespace {

const Text kNames[] = {u"/decks/a.tsr",
                       u"/decks/b.tsr",
                       u"/decks/New.tsr",
                       u"/decks/c.d.tsr",
                       u"/nowhere/x.tsr",
                       u"/decks/plain",
                       u"",
                       u"*.tsr"};

/// Texts to import, and the cards that they make.
struct ImportedText {
  Text path;
  const char* bytes;
  std::vector<DeckLifeModel::Card> cards;
};
const ImportedText kTexts[] = {
    {u"/texts/standard.txt",
     "STD\r\n1.\r\n*>F\r\none\r\n*>B\r\n1\r\n\r\n2.\r\n*>F\r\ntwo\r\n*>B\r\n2\r\n",
     {{u"one", u"1"}, {u"two", u"2"}}},
    {u"/texts/extended.txt",
     "EXT\r\n1.one\r\n=T\r\n\r\n2.two\r\n=T\r\n",
     {{u"one", u"", true}, {u"two", u"", true}}},
};

/// One life: the program and the model, led by the same dice.
class Walk {
 public:
  explicit Walk(unsigned seed) : dice_(seed) {
    fixture_.fakes.dialogs.takesEveryPlace = true;
    PutFile(u"/decks/a.tsr", DeckBytes(2, {.title = u"a title"}));
    PutFile(u"/decks/b.tsr", DeckBytes(5, {.date = u" 2/3/1999", .author = u"Me"}));
    PutFile(u"/decks/none.tsr", DeckBytes(0));
    PutFile(u"/decks/blank.tsr",
            InfoBytes({}) + CardBytes(1, u"", u"back") + CardBytes(2, u"front", u"") + EndBytes());
    PutFile(u"/decks/true.tsr", InfoBytes({.type = u" Extended"}) + TrueCardBytes(1, u"yes") +
                                    TrueCardBytes(2, u"true") + EndBytes());
    for (const ImportedText& text : kTexts) PutFile(text.path, text.bytes);
  }

  [[nodiscard]] bool Ended() const { return model_.ended; }

  /// What the step did, for the message of a failure.
  std::string Step() {
    PrepareAnswers();
    std::string done = Command();
    fixture_.fakes.dialogs.files.clear();
    fixture_.fakes.messages.answers.clear();
    return done;
  }

  /// What of the program is not as the model has it; empty where all is.
  std::string Differences() {
    const ProgramState& state = fixture_.state;
    differences_.clear();
    Expect(fixture_.TakeBoxes() == std::exchange(model_.boxes, {}), "boxes");
    Expect(fixture_.program.Windows().ExitStatus().has_value() == model_.ended, "end");
    Expect(state.deck.filePath == model_.path, "path");
    Expect(state.deck.changed == model_.changed, "changed");
    Expect(state.deck.saveOffered == model_.offered, "save offered");
    Expect(state.deck.onFile == model_.onFile, "on file");
    Expect(state.deck.cardCount == model_.count, "count");
    Expect(state.deck.currentCard == model_.current, "card on show");
    // A frame that ends leaves windows that were loaded meanwhile: by a save, by its own question.
    if (!model_.ended) {
      Expect(fixture_.deck.IsLoaded() == model_.window, "deck window");
      Expect(fixture_.info.IsLoaded() == model_.info.has_value(), "information window");
    }
    Expect(!model_.window || fixture_.deck->Caption() == model_.title, "caption");
    CompareStrings();
    CompareCards();
    CompareDisk();
    return differences_;
  }

 private:
  void PutFile(const Text& path, const std::string& bytes) {
    fixture_.fakes.files.Put(path, bytes);
    model_.disk[path] = bytes;
  }

  unsigned Roll(std::size_t sides) { return static_cast<unsigned>(dice_() % sides); }

  Text AnyName() { return kNames[Roll(std::size(kNames))]; }

  Text NameToOpen() {
    if (Roll(4) == 0) return Roll(2) == 0 ? u"*.tsr" : u"/decks/a.TSR";
    if (Roll(6) == 0) return u"";
    auto file = model_.disk.begin();
    std::advance(file, Roll(model_.disk.size()));
    return file->first;
  }

  Text AnyText() {
    const Text texts[] = {u"front",        u"salt & pepper",       u"  blanks around  ",
                          u"two\r\nlines", u"ends in a break\r\n", Text(450, u'x')};
    return texts[Roll(std::size(texts))];
  }

  void PrepareAnswers() {
    model_.answers.clear();
    model_.dialogs.clear();
    for (int i = 0; i < 3; ++i) {
      model_.answers.push_back(Roll(2) == 0 ? MessageAnswer::kYes : MessageAnswer::kNo);
      model_.dialogs.push_back(AnyName());
    }
  }

  /// The user has made up his mind: the program is told the same as the model.
  void Tell() {
    fixture_.fakes.messages.answers = model_.answers;
    fixture_.fakes.dialogs.files = model_.dialogs;
  }

  std::string Command() {
    if (!model_.window) return Reopen();
    if (model_.quiz) return InQuiz();
    switch (Roll(12)) {
      case 0:
      case 1:
      case 2:
        return Build();
      case 3:
        return Delete();
      case 4:
        return Clear();
      case 5:
        return Open();
      case 6:
        return Save();
      case 7:
        return SaveAs();
      case 8:
        return Leave();
      case 9:
        return Quiz();
      case 10:
        return EditTitle();
      default:
        return CloseInfo();
    }
  }

  /// The frame's own commands.
  std::string Reopen() {
    constexpr unsigned kCommands = 20;
    const unsigned command = Roll(kCommands);
    if (command == 0) return CloseFrame();
    if (command % 4 == 0) return Import();
    if (command % 4 == 1) return OpenFromFrame();
    const bool extended = command % 4 == 2;
    model_.Reopen(extended);
    (extended ? fixture_.Frame().newExtendedDeck : fixture_.Frame().newStandardDeck).Press();
    return extended ? "new extended" : "new standard";
  }

  std::string OpenFromFrame() {
    model_.dialogs.push_front(NameToOpen());
    Tell();
    model_.OpenFromFrame();
    fixture_.Frame().openExistingDeck.Press();
    return "open from the frame";
  }

  std::string Import() {
    const ImportedText& text = kTexts[Roll(std::size(kTexts))];
    model_.dialogs.push_front(text.path);
    Tell();
    model_.Import(text.cards);
    fixture_.Frame().importTextFile.Press();
    return "import";
  }

  std::string CloseFrame() {
    Tell();
    model_.CloseFrame();
    fixture_.Frame().UserClose();
    return "close the frame";
  }

  std::string InQuiz() {
    if (Roll(2) == 0) return Leave();
    model_.Study();
    fixture_.Run([this] { fixture_.deck->EnterStudyMode(); });
    return "study";
  }

  std::string Build() {
    constexpr int kEnough = 6;
    if (!model_.Consistent() || model_.count == kEnough) return "nothing";
    const DeckLifeModel::Card card = {AnyText(), model_.extended ? Text() : AnyText(),
                                      model_.extended};
    model_.Build(card);
    BuildCard(fixture_.state, {.type = card.question ? u"T" : u"E",
                               .text = card.front,
                               .back = card.back,
                               .key = card.question ? u"T" : u""});
    return "build";
  }

  std::string Delete() {
    const bool onCard = model_.current >= 1 && model_.current <= model_.count;
    if (!model_.Consistent() || !onCard) return "nothing";
    Tell();
    model_.Delete();
    fixture_.Run([this] { fixture_.deck->DeleteCard(); });
    return "delete";
  }

  std::string Clear() {
    Tell();
    model_.Clear();
    fixture_.Run([this] { fixture_.deck->ClearDeck(); });
    return "clear";
  }

  std::string Open() {
    model_.dialogs.push_front(NameToOpen());
    Tell();
    model_.Open();
    fixture_.Run([this] { fixture_.deck->OpenDeck(); });
    return "open";
  }

  std::string Save() {
    Tell();
    model_.Save();
    fixture_.Run([this] { fixture_.deck->SaveDeck(); });
    return "save";
  }

  std::string SaveAs() {
    Tell();
    model_.SaveAs();
    fixture_.Run([this] { fixture_.deck->SaveDeckAs(); });
    return "save as";
  }

  std::string Leave() {
    constexpr unsigned kWaysToLeave = 8;
    const unsigned way = Roll(kWaysToLeave);
    if (way == 0) return CloseFrame();
    Tell();
    if (way % 2 == 0) {
      model_.Exit();
      fixture_.Run([this] { fixture_.deck->CloseTessara(); });
      return "exit";
    }
    model_.Close();
    fixture_.Run([this] { fixture_.deck->Unload(); });
    return "close";
  }

  std::string Quiz() {
    if (!model_.HasCards()) return "nothing";
    model_.Quiz();
    fixture_.Run([this] { fixture_.deck->EnterQuizMode(); });
    return "quiz";
  }

  std::string EditTitle() {
    const Text typed = Roll(3) == 0 ? u"" : u"title " + DecimalText(Roll(100));
    if (model_.info && model_.info->title == typed) return "nothing";
    model_.EditTitle(typed);
    fixture_.Run([this] { fixture_.deck->ShowDeckInfo(); });
    TextBox& box = fixture_.info->fields[kTitleField];
    box.UserEdit({0, box.TextOf().size(), typed});
    fixture_.info->save.Press();
    fixture_.info->close.Press();
    return "edit title";
  }

  std::string CloseInfo() {
    if (!model_.info) return "nothing";
    model_.CloseInfo();
    fixture_.info->close.Press();
    return "close information";
  }

  void Expect(bool holds, const std::string& what) {
    if (!holds) differences_ += what + "; ";
  }

  void CompareStrings() {
    const ProgramState& state = fixture_.state;
    Expect(state.deck.date == model_.strings.date, "date");
    Expect(state.deck.title == model_.strings.title, "title");
    Expect(state.deck.author == model_.strings.author, "author");
    Expect(state.deck.description == model_.strings.description, "description");
  }

  void CompareCards() {
    for (int row = 1; row <= kMostCards; ++row) {
      const auto at = static_cast<std::size_t>(row) - 1;
      const bool there = at < model_.cards.size();
      const auto card = there ? model_.cards[at] : DeckLifeModel::Card{};
      Expect(fixture_.state.deck.Cell(row, kCardText) == card.front &&
                 fixture_.state.deck.Cell(row, kBackText) == card.back &&
                 (fixture_.state.deck.Cell(row, kAnswer) == u"T") == card.question &&
                 (fixture_.state.deck.cardPresent.At(row) != 0) == there,
             "row " + std::to_string(row));
    }
  }

  void CompareDisk() {
    Expect(fixture_.fakes.files.files.size() == model_.disk.size(), "number of files");
    for (const auto& [path, bytes] : model_.disk) {
      Expect(fixture_.File(path) == bytes, ToUtf8(path));
    }
  }

  std::string differences_;
  std::mt19937 dice_;
  LifeProgram fixture_;
  DeckLifeModel model_;
};

}  // namespace

TEST_CASE("a deck lives as its model says, whatever the user does in whatever order") {
  constexpr unsigned kLives = 120;
  constexpr int kSteps = 150;
  for (unsigned seed = 1; seed <= kLives; ++seed) {
    Walk walk(seed);
    std::string steps;
    for (int step = 0; step < kSteps && !walk.Ended(); ++step) {
      steps += walk.Step() + ", ";
      CAPTURE(seed);
      CAPTURE(steps);
      REQUIRE(walk.Differences() == "");
    }
  }
}

}  // namespace tessara::test
