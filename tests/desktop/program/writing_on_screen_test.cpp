// Decks written in the whole program by the keyboard alone, saved, and read back byte for byte.

#include <QInputMethodEvent>
#include <QRadioButton>
#include <algorithm>
#include <doctest/doctest.h>

#include "deck/file/deck_file.h"
#include "tests/desktop/support/writing_by_keys.h"
#include "tests/support/deck_bytes.h"

using namespace tessara;
using namespace tessara::test;

namespace {

constexpr Qt::Key kLetterA = Qt::Key_A, kLetterC = Qt::Key_C, kLetterN = Qt::Key_N;

/// Texts of the expected bytes are ASCII; this letter stands for é.
constexpr char kAccented = '#';

std::string WithAccents(std::string bytes) {
  std::replace(bytes.begin(), bytes.end(), kAccented, '\xE9');
  return bytes;
}

/// The empty deck window goes; the frame's own menu makes an extended deck.
void StartQuestionDeck(ProgramOnScreen& fixture) {
  fixture.Start();
  ProgramOnScreen::Alt(kLetterC);
  ProgramOnScreen::Alt(Qt::Key_F);
  ProgramOnScreen::Keys({kLetterN, Qt::Key_X});
  OpenBuilder();
}

/// From the one option of the two types to the other.
void PickTrueFalse() {
  GoTo("Option3(0)");
  ProgramOnScreen::Key(Qt::Key_Right);
}

/// A question with four answers, of which the last is the right one and has the focus.
void GoToRightLineD(ProgramOnScreen& fixture) {
  StartQuestionDeck(fixture);
  Write("Text2", u"Which?");
  for (const char* line : {"Text1(0)", "Text1(1)", "Text1(2)", "Text1(3)"}) Write(line, u"x");
  Pick("Option1(3)");
  GoTo("Text1(3)");
}

std::string AnswerInBuilder() {
  return ProgramOnScreen::Of("Label2").property("text").toString().toStdString();
}

/// The first file of a new deck has the information that the information window begins with.
InfoTexts NewDeckOfType(const Text& type) {
  InfoTexts info;
  info.type = type;
  return info;
}

/// Every byte there is, between marks: a blank at an end would be trimmed.
std::string EveryByte() {
  std::string bytes = "<";
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  return bytes + ">";
}

std::string Field(std::string bytes, std::size_t width) {
  bytes.resize(width, ' ');
  return bytes;
}

}  // namespace

TEST_CASE(
    "A text deck typed by keys alone is in its file byte for byte, and back after a restart") {
  std::string saved;
  {
    ProgramOnScreen fixture;
    fixture.Start();
    OpenBuilder();
    CHECK(ProgramOnScreen::Focus() == "Text1(0)");
    ProgramOnScreen::Type(u"What is the capital\nof Norway?");
    ProgramOnScreen::Key(Qt::Key_Tab);
    ProgramOnScreen::Type(u"Oslo");
    ProgramOnScreen::Alt(kLetterA);
    ProgramOnScreen::Alt(kLetterN);
    CHECK(ProgramOnScreen::Focus() == "Text1(0)");
    ProgramOnScreen::Type(u"caf\u00E9 \u2192 tea & milk");
    ProgramOnScreen::Key(Qt::Key_Tab);
    ProgramOnScreen::Type(u" 100% ");
    ProgramOnScreen::Alt(kLetterA);
    // The first card once more: a word is put before its back.
    ProgramOnScreen::Key(Qt::Key_PageUp, Qt::ControlModifier);
    GoTo("Text1(1)");
    ProgramOnScreen::Key(Qt::Key_Home, Qt::ControlModifier);
    ProgramOnScreen::Type(u"It is ");
    // First the change, then the close: a button that is off leaves the letter to the other one.
    PressChange();
    CHECK_FALSE(ProgramOnScreen::Of("Command1(1)", "frmEssay").isEnabled());
    ProgramOnScreen::Alt(kLetterC);
    saved = SaveByKeys(fixture, "mnuSave");
    CHECK(fixture.TakeAsked().empty());
  }
  CHECK(saved ==
        WithAccents(InfoBytes(NewDeckOfType(u" Standard")) +
                    CardBytes(1, u"What is the capital\r\nof Norway?", u"It is Oslo") +
                    CardBytes(2, u"\uFEFFcaf\u00E9 \u2192 tea & milk", u" 100% ") + EndBytes()));
  ProgramOnScreen again;
  again.folder.Write("new.tsr", saved);
  again.Start(u"new.tsr");
  CHECK(ProgramOnScreen::Card("CardText") == "What is the capital\r\nof Norway?");
  CHECK(ProgramOnScreen::Card("CardTotal") == "2");
}

TEST_CASE(
    "A question deck typed by keys alone is in its file byte for byte, and back after a restart") {
  std::string saved;
  {
    ProgramOnScreen fixture;
    StartQuestionDeck(fixture);
    Write("Text2", u"Which particle carries\na negative charge?");
    Write("Text1(0)", u"proton");
    Write("Text1(1)", u"neutron");
    Write("Text1(2)", u"\u00E9lectron");
    Write("Text1(3)", u"photon");
    Pick("Option1(2)");
    ProgramOnScreen::Alt(kLetterA);
    ProgramOnScreen::Alt(kLetterN);
    CHECK(ProgramOnScreen::Focus() == "Text2");
    // The other type of card.
    PickTrueFalse();
    CHECK(ProgramOnScreen::Focus() == "Text2");
    ProgramOnScreen::Type(u"Spiders are insects.");
    Pick("Option2(1)");
    ProgramOnScreen::Alt(kLetterA);
    ProgramOnScreen::Alt(kLetterC);
    saved = SaveByKeys(fixture, "mnuSave");
    CHECK(fixture.TakeAsked().empty());
  }
  CHECK(saved == WithAccents(InfoBytes(NewDeckOfType(u" Extended")) +
                             QuestionBytes('M', u"Which particle carries\r\na negative charge?", 1,
                                           {u"proton", u"neutron", u"#lectron", u"photon"}, 'C') +
                             QuestionBytes('T', u"Spiders are insects.", 2, {}, 'F') + EndBytes()));
  ProgramOnScreen again;
  again.folder.Write("new.tsr", saved);
  again.Start(u"new.tsr");
  CHECK(ProgramOnScreen::Card("CardText") == "Which particle carries\r\na negative charge?");
  CHECK(AnswerInBuilder() == "\u00E9lectron");
  CHECK(ProgramOnScreen::Card("CardTotal") == "2");
  ProgramOnScreen::Key(Qt::Key_PageDown);
  CHECK(ProgramOnScreen::Card("CardText") == "Spiders are insects.");
  CHECK(AnswerInBuilder() == "FALSE");
}

TEST_CASE("Typing goes on harmlessly where line D has closed itself, and drops no card") {
  ProgramOnScreen fixture;
  GoToRightLineD(fixture);
  ProgramOnScreen::Key(Qt::Key_Backspace);
  CHECK(ProgramOnScreen::Focus() == "Text1(2)");
  ProgramOnScreen::Type(u" y");
  CHECK(ProgramOnScreen::Of("Text1(2)", "frmQuestion").property("text") == "x y");
  CHECK(ProgramOnScreen::Of("Text1(3)", "frmQuestion").isEnabled());
}

TEST_CASE("An answer that is composed anew keeps its line open and its mark") {
  ProgramOnScreen fixture;
  GoToRightLineD(fixture);
  auto& line = ProgramOnScreen::Of<QLineEdit>("Text1(3)", "frmQuestion");
  line.selectAll();
  QInputMethodEvent begun("z", {});
  QApplication::sendEvent(&line, &begun);
  QInputMethodEvent committed;
  committed.setCommitString(QStringLiteral("\u4E2D"));
  QApplication::sendEvent(&line, &committed);
  CHECK(ProgramOnScreen::Focus() == "Text1(3)");
  CHECK(line.text() == QStringLiteral("\u4E2D"));
  CHECK(ProgramOnScreen::Of<QRadioButton>("Option1(3)", "frmQuestion").isChecked());
}

TEST_CASE("Ten cards of each kind are typed one after the other, and each is in the file") {
  constexpr int kCards = 10;
  const auto text = [](TextView what, int card) { return Text(what) + u' ' + DecimalText(card); };
  std::string expected;
  ProgramOnScreen fixture;
  SUBCASE("texts") {
    fixture.Start();
    OpenBuilder();
    expected = InfoBytes(NewDeckOfType(u" Standard"));
    for (int card = 1; card <= kCards; ++card) {
      if (card > 1) ProgramOnScreen::Alt(kLetterN);
      Write("Text1(0)", text(u"front", card));
      Write("Text1(1)", text(u"back", card));
      ProgramOnScreen::Alt(kLetterA);
      expected += CardBytes(card, text(u"front", card), text(u"back", card));
    }
  }
  SUBCASE("choices") {
    StartQuestionDeck(fixture);
    expected = InfoBytes(NewDeckOfType(u" Extended"));
    for (int card = 1; card <= kCards; ++card) {
      if (card > 1) ProgramOnScreen::Alt(kLetterN);
      Write("Text2", text(u"question", card));
      Write("Text1(0)", text(u"this", card));
      Write("Text1(1)", text(u"that", card));
      const bool first = card % 2 == 0;
      Pick(first ? "Option1(0)" : "Option1(1)");
      ProgramOnScreen::Alt(kLetterA);
      expected += QuestionBytes('M', text(u"question", card), card,
                                {text(u"this", card), text(u"that", card)}, first ? 'A' : 'B');
    }
  }
  SUBCASE("true or false") {
    StartQuestionDeck(fixture);
    expected = InfoBytes(NewDeckOfType(u" Extended"));
    PickTrueFalse();
    for (int card = 1; card <= kCards; ++card) {
      if (card > 1) ProgramOnScreen::Alt(kLetterN);
      Write("Text2", text(u"question", card));
      const bool isTrue = card % 3 == 0;
      Pick(isTrue ? "Option2(0)" : "Option2(1)");
      ProgramOnScreen::Alt(kLetterA);
      expected += QuestionBytes('T', text(u"question", card), card, {}, isTrue ? 'T' : 'F');
    }
  }
  ProgramOnScreen::Alt(kLetterC);
  CHECK(SaveByKeys(fixture, "mnuSave") == expected + EndBytes());
  CHECK(ProgramOnScreen::Card("CardTotal") == "10");
  CHECK(fixture.TakeAsked().empty());
}

TEST_CASE(
    "Tab goes round a builder from text to buttons and arrows, once to each group of options") {
  ProgramOnScreen fixture;
  const auto names = [] {
    std::string met;
    const std::string first = ProgramOnScreen::Focus();
    constexpr int kMostTabs = 30;
    for (int tabs = 0; tabs < kMostTabs; ++tabs) {
      met += ProgramOnScreen::Focus() + " ";
      ProgramOnScreen::Key(Qt::Key_Tab);
      if (ProgramOnScreen::Focus() == first) break;
    }
    return met;
  };
  SUBCASE("texts") {
    fixture.folder.Write("deck.tsr", DeckBytes(3));
    fixture.Start(u"deck.tsr");
    OpenBuilder();
    ProgramOnScreen::Key(Qt::Key_PageDown, Qt::ControlModifier);
    GoTo("Text1(0)");
    ProgramOnScreen::Type(u"x");
    CHECK(names() ==
          "Text1(0) Text1(1) Command1(0) Command1(1) Command1(2) Command1(3) cmdMove(0) "
          "cmdMove(1) ");
  }
  SUBCASE("questions") {
    const std::array<Text, 4> choices = {u"one", u"two", u"three", u"four"};
    std::string bytes = InfoBytes({});
    for (int card = 1; card <= 3; ++card) bytes += QuestionBytes('M', u"?", card, choices, 'A');
    fixture.folder.Write("deck.tsr", bytes + EndBytes());
    fixture.Start(u"deck.tsr");
    OpenBuilder();
    ProgramOnScreen::Key(Qt::Key_PageDown, Qt::ControlModifier);
    GoTo("Text2");
    ProgramOnScreen::Type(u"x");
    CHECK(
        names() ==
        "Text2 Option1(0) Text1(0) Text1(1) Text1(2) Text1(3) Command2(0) Command2(1) Command2(2) "
        "Command2(3) cmdMove(0) cmdMove(1) ");
  }
}

TEST_CASE("Nine lines on a back, wrapped ones counted, bring no notice, and the tenth does") {
  ProgramOnScreen fixture;
  fixture.Start();
  OpenBuilder();
  GoTo("Text1(1)");
  // Two lines, for the box is narrower.
  ProgramOnScreen::Type(Text(30, u'w') + u' ' + Text(30, u'w') + u"\n3\n4\n5\n6\n7\n8\n9");
  CHECK(fixture.TakeAsked().empty());
  fixture.AnswerByKey(Qt::Key_Return);
  ProgramOnScreen::Type(u"\n");
  CHECK(fixture.TakeAsked() ==
        std::vector<std::string>{
            "You have reached the maximum number of lines that a card will show. Any further lines "
            "which are added will not be seen."});
  GoTo("Text1(0)");
  ProgramOnScreen::Type(u"1\n2\n3\n4\n5\n6\n7\n8\n9\n10");
  CHECK(fixture.TakeAsked().empty());
}

TEST_CASE("Cards of every byte, looked at in a builder, moved over and saved, stay as they are") {
  const std::string text = Field(EveryByte(), 444);
  const std::string shortText = Field(EveryByte().substr(0, 74) + ">", 75);
  for (const char type : {'E', 'M'}) {
    CAPTURE(type);
    std::string card = std::string(1, type) + text + std::string("\1\0", 2);
    const bool textCard = type == 'E';
    for (int choice = 0; choice < 4; ++choice) card += textCard ? std::string(75, ' ') : shortText;
    card += textCard ? " " + text : "B" + std::string(444, ' ');
    const std::string next = textCard ? CardBytes(2, u"front", u"back")
                                      : QuestionBytes('M', u"question", 2, {u"a", u"b"}, 'A');
    const std::string cards = card + next + EndBytes();
    ProgramOnScreen fixture;
    fixture.folder.Write("all.tsr", InfoBytes({}) + cards);
    fixture.Start(u"all.tsr");
    OpenBuilder();
    ProgramOnScreen::Key(Qt::Key_PageDown, Qt::ControlModifier);
    ProgramOnScreen::Key(Qt::Key_PageUp, Qt::ControlModifier);
    ProgramOnScreen::Alt(kLetterC);
    CHECK(SaveByKeys(fixture, "mnuSaveAs").substr(kRecordSize) == cards);
  }
}
