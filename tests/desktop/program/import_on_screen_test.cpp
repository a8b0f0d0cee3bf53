// Texts imported in the whole program by the frame's menu, the file dialog and the boxes.

#include <QFileDialog>
#include <QLineEdit>
#include <algorithm>
#include <doctest/doctest.h>

#include "tests/desktop/support/program_on_screen.h"

using namespace tessara;
using namespace tessara::test;

namespace {

const std::string kSamples = TESSARA_TEST_PICTURES "/../../samples/";

/// The frame's menu is there while no deck is; the dialog takes the whole path.
void ImportByKeys(ProgramOnScreen& fixture, const std::string& path) {
  fixture.WhenAsked([&path](QWidget& dialog) {
    CHECK(qobject_cast<QFileDialog*>(&dialog) != nullptr);
    auto* name = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    REQUIRE(name != nullptr);
    QTest::keyClicks(name, QString::fromStdString(path));
    QTest::keyClick(name, Qt::Key_Return);
  });
  ProgramOnScreen::ChooseByKeys("mnuFile", "mnuImportFile");
}

bool DeckIsOpen() {
  const QWidgetList widgets = QApplication::allWidgets();
  return std::any_of(widgets.begin(), widgets.end(), [](const QWidget* widget) {
    return widget->objectName() == "frmMain" && widget->isVisible();
  });
}

}  // namespace

TEST_CASE("The sample texts are imported by the menu and the file dialog") {
  struct Case {
    const char* file;
    const char* cards;
    const char* first;
    Text back;
    bool question;
  };
  const Case cases[] = {
      {"capitals.txt", "195", "What is the capital of Afghanistan?", u"Kabul", false},
      {"science.txt", "60", nullptr, u"", true}};
  for (const Case& c : cases) {
    CAPTURE(c.file);
    ProgramOnScreen fixture;
    fixture.Start();
    ProgramOnScreen::Alt(Qt::Key_C);
    CHECK_FALSE(DeckIsOpen());
    ImportByKeys(fixture, kSamples + c.file);
    CHECK(fixture.TakeAsked().size() == 1);
    REQUIRE(DeckIsOpen());
    CHECK(ProgramOnScreen::Card("CardNumber") == "1");
    CHECK(ProgramOnScreen::Card("CardTotal") == c.cards);
    CHECK(ProgramOnScreen::Of("Picture1").isVisible() == c.question);
    if (c.first != nullptr) CHECK(ProgramOnScreen::Card("CardText") == c.first);
    CHECK(fixture.state.deck.Cell(1, kBackText) == c.back);
  }
}

TEST_CASE("Texts with an error are told in a box, and the next import is a good one") {
  struct Case {
    std::string text;
    std::vector<std::string> boxes;
  };
  const std::string none = "No cards were found in this file, recheck the format of the file.";
  const Case cases[] = {
      {"EXT\n2.Yes?\n=T\n",
       {"First card is equal to 0 or is greater than \" 1 \". Import has been cancelled.", none}},
      {"Capitals\nSTD\n1.\n",
       {"EXT or STD was not indicated as a file type at the top of the import file. Import has "
        "been aborted."}},
      {"STD\n1.\n*>F\nf\nb\n\n2.\n*>F\nf\n*>B\nb\n",
       {"Error at card # 1 in import file. Import has been cancelled."}},
      {"EXT\n1.Which?\nB.Two\nA.One\n=A\n", {"Error in answer sequence."}}};

  ProgramOnScreen fixture;
  fixture.Start();
  ProgramOnScreen::Alt(Qt::Key_C);
  for (const Case& c : cases) {
    CAPTURE(c.text);
    fixture.folder.Write("deck.txt", c.text);
    ImportByKeys(fixture, (fixture.folder / "deck.txt").string());
    std::vector<std::string> asked = fixture.TakeAsked();
    REQUIRE_FALSE(asked.empty());
    asked.erase(asked.begin());
    CHECK(asked == c.boxes);
    CHECK_FALSE(DeckIsOpen());
  }
  fixture.folder.Write("deck.txt", "STD\n1.\n*>F\nfront\n*>B\nback\n");
  ImportByKeys(fixture, (fixture.folder / "deck.txt").string());
  CHECK(ProgramOnScreen::Card("CardText") == "front");
  CHECK(ProgramOnScreen::Card("CardTotal") == "1");
}
