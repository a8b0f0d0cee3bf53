// Decks written in the whole program by the keyboard alone, saved, and read back byte for byte.

#include <QLineEdit>
#include <doctest/doctest.h>

#include "deck/deck_file.h"
#include "tests/desktop/program_on_screen.h"
#include "tests/support/deck_bytes.h"

using namespace tessara;
using namespace tessara::test;

namespace {

constexpr Qt::Key kA = Qt::Key_A, kC = Qt::Key_C, kN = Qt::Key_N;

/// Tab by Tab.
void GoTo(const char* control) {
  constexpr int kMostTabs = 16;
  for (int tabs = 0; ProgramOnScreen::Focus() != control && tabs < kMostTabs; ++tabs) {
    ProgramOnScreen::Key(Qt::Key_Tab);
  }
  REQUIRE(ProgramOnScreen::Focus() == control);
}

void Write(const char* control, TextView text) {
  GoTo(control);
  ProgramOnScreen::Type(text);
}

void Pick(const char* option) {
  GoTo(option);
  ProgramOnScreen::Key(Qt::Key_Space);
}

void OpenBuilder() {
  ProgramOnScreen::ChooseByKeys("mnuFile", "mnuACTTD");
}

/// Saves under the name, and takes the box that says so away.
std::string SaveByKeys(ProgramOnScreen& desk, const char* command) {
  desk.WhenAsked([&desk](QWidget&) {
    auto* name = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    REQUIRE(name != nullptr);
    QTest::keyClicks(name, QString::fromStdString((desk.folder / "new.tsr").string()));
    QTest::keyClick(name, Qt::Key_Return);
  });
  desk.AnswerByKey(Qt::Key_Return);
  ProgramOnScreen::ChooseByKeys("mnuFile", command);
  CHECK(desk.TakeAsked().back() ==
        "This file has been saved to " + (desk.folder / "new.tsr").string());
  return desk.folder.Read("new.tsr");
}

/// Texts of the expected bytes are ASCII; this letter stands for é.
constexpr char kAccented = '#';

std::string WithAccents(std::string bytes) {
  std::replace(bytes.begin(), bytes.end(), kAccented, '\xE9');
  return bytes;
}

std::string QuestionBytes(char type, const Text& question, int number,
                          const std::array<Text, 4>& choices, char answer) {
  std::string bytes = RecordText(type, question, number, choices, u"");
  constexpr std::size_t kAnswerPlace = 1 + 444 + 2 + 4 * 75;
  bytes[kAnswerPlace] = answer;
  return bytes;
}

/// The first file of a new deck has the information that the information window begins with.
InfoTexts NewDeckOfType(const Text& type) {
  InfoTexts info;
  info.type = type;
  return info;
}

/// All bytes but NUL in an order of their own, a NUL among them, none of the blanks at an end.
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
    ProgramOnScreen desk;
    desk.Start();
    OpenBuilder();
    CHECK(ProgramOnScreen::Focus() == "Text1(0)");
    ProgramOnScreen::Type(u"What is the capital\nof Norway?");
    ProgramOnScreen::Key(Qt::Key_Tab);
    ProgramOnScreen::Type(u"Oslo");
    ProgramOnScreen::Alt(kA);
    ProgramOnScreen::Alt(kN);
    CHECK(ProgramOnScreen::Focus() == "Text1(0)");
    ProgramOnScreen::Type(u"caf\u00E9 \u2192 tea & milk");
    ProgramOnScreen::Key(Qt::Key_Tab);
    ProgramOnScreen::Type(u" 100% ");
    ProgramOnScreen::Alt(kA);
    // The first card once more: a word is put before its back.
    ProgramOnScreen::Key(Qt::Key_PageUp, Qt::ControlModifier);
    GoTo("Text1(1)");
    ProgramOnScreen::Key(Qt::Key_Home, Qt::ControlModifier);
    ProgramOnScreen::Type(u"It is ");
    // First the change, then the close: a button that is off gives its letter to the next one.
    ProgramOnScreen::Alt(kC);
    CHECK_FALSE(ProgramOnScreen::Of("Command1(1)", "frmEssay").isEnabled());
    ProgramOnScreen::Alt(kC);
    saved = SaveByKeys(desk, "mnuSave");
    CHECK(desk.TakeAsked().empty());
  }
  CHECK(saved == WithAccents(InfoBytes(NewDeckOfType(u" Standard")) +
                             CardBytes(1, u"What is the capital\r\nof Norway?", u"It is Oslo") +
                             CardBytes(2, u"caf# ? tea & milk", u" 100% ") + EndBytes()));
  ProgramOnScreen again;
  again.folder.Write("new.tsr", saved);
  again.Start(u"new.tsr");
  CHECK(ProgramOnScreen::Card("CardText") == "What is the capital\r\nof Norway?");
  CHECK(ProgramOnScreen::Card("CardTotal") == "2");
}

TEST_CASE("A deck of questions typed by keys alone is in its file byte for byte") {
  ProgramOnScreen desk;
  desk.Start();
  // The empty deck window goes; the frame's own menu makes an extended deck.
  ProgramOnScreen::Alt(kC);
  ProgramOnScreen::Alt(Qt::Key_F);
  ProgramOnScreen::Keys({kN, Qt::Key_X});
  OpenBuilder();
  Write("Text2", u"Which particle carries\na negative charge?");
  Write("Text1(0)", u"proton");
  Write("Text1(1)", u"neutron");
  Write("Text1(2)", u"\u00E9lectron");
  Write("Text1(3)", u"photon");
  Pick("Option1(2)");
  ProgramOnScreen::Alt(kA);
  ProgramOnScreen::Alt(kN);
  CHECK(ProgramOnScreen::Focus() == "Text2");
  // The other type of card.
  GoTo("Option3(0)");
  ProgramOnScreen::Key(Qt::Key_Right);
  CHECK(ProgramOnScreen::Focus() == "Text2");
  ProgramOnScreen::Type(u"Spiders are insects.");
  Pick("Option2(1)");
  ProgramOnScreen::Alt(kA);
  ProgramOnScreen::Alt(kC);
  const std::string saved = SaveByKeys(desk, "mnuSave");
  CHECK(saved == WithAccents(InfoBytes(NewDeckOfType(u" Extended")) +
                             QuestionBytes('M', u"Which particle carries\r\na negative charge?", 1,
                                           {u"proton", u"neutron", u"#lectron", u"photon"}, 'C') +
                             QuestionBytes('T', u"Spiders are insects.", 2, {}, 'F') + EndBytes()));
  CHECK(desk.TakeAsked().empty());
}

TEST_CASE("Cards of every byte, looked at in a builder, moved over and saved, stay as they are") {
  const std::string text = Field(EveryByte(), 444);
  const std::string shortText = Field(EveryByte().substr(0, 74) + ">", 75);
  const std::string ascii(444, ' ');
  for (const char type : {'E', 'M'}) {
    CAPTURE(type);
    std::string card = std::string(1, type) + text + std::string("\1\0", 2);
    const bool textCard = type == 'E';
    for (int choice = 0; choice < 4; ++choice) card += textCard ? std::string(75, ' ') : shortText;
    card += textCard ? " " + text : "B" + std::string(444, ' ');
    std::string next = textCard ? CardBytes(2, u"front", u"back")
                                : QuestionBytes('M', u"question", 2, {u"a", u"b"}, 'A');
    const std::string cards = card + next + EndBytes();
    ProgramOnScreen desk;
    desk.folder.Write("all.tsr", InfoBytes({}) + cards);
    desk.Start(u"all.tsr");
    OpenBuilder();
    ProgramOnScreen::Key(Qt::Key_PageDown, Qt::ControlModifier);
    ProgramOnScreen::Key(Qt::Key_PageUp, Qt::ControlModifier);
    ProgramOnScreen::Alt(kC);
    CHECK(SaveByKeys(desk, "mnuSaveAs").substr(kRecordSize) == cards);
  }
}
