// The frame with real windows in it: how it closes, and whose menus it shows.

#include <doctest/doctest.h>

#include "tests/desktop/support/writing_by_keys.h"
#include "tests/support/deck_bytes.h"

using namespace tessara;
using namespace tessara::test;

namespace {

/// The menus of the bar in their order; those that are off in brackets.
std::string Bar() {
  std::string texts;
  const auto& frame = *qobject_cast<QMainWindow*>(&ProgramOnScreen::Top("MDIForm1"));
  for (const QAction* action : frame.menuBar()->actions()) {
    const std::string text = action->text().toStdString();
    texts += (action->isEnabled() ? text : "[" + text + "]") + " ";
  }
  return texts;
}

/// The first card of the deck on show, by its builder, which stays open.
void ChangeCard() {
  OpenBuilder();
  GoTo("Text1(0)");
  ProgramOnScreen::Type(u"changed ");
  ProgramOnScreen::Click("Command1(1)", "frmEssay");
}

constexpr const char* kBarOfEmptyDeck = "&File [Mode] &Utility &Help ";
constexpr const char* kBarBehindWindow = "[&File] &Help ";

}  // namespace

TEST_CASE("A frame that saves a changed deck on its way closes with all its windows") {
  ProgramOnScreen fixture;
  fixture.folder.Write("birds.tsr", DeckBytes(1));
  fixture.Start(u"birds.tsr");
  ChangeCard();
  SUBCASE("behind the builder") {}
  SUBCASE("behind the deck window") {
    ProgramOnScreen::Click("Command1(3)", "frmEssay");
  }
  for (int answers = 0; answers < 3; ++answers) fixture.AnswerByKey(Qt::Key_Return);
  ProgramOnScreen::Top("MDIForm1").close();
  CHECK(fixture.TakeAsked() ==
        std::vector<std::string>{
            "There have been changes to this Tessara.Do you want to save them?",
            "This file has been saved to " + (fixture.folder / "birds.tsr").string(),
            "ARE YOU SURE?"});
  CHECK(fixture.program.Windows().ExitStatus() == 0);
  // As the event loop does on its way out: the frame goes, and all that is in it.
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  for (const QWidget* left : QApplication::topLevelWidgets()) CHECK_FALSE(left->isVisible());
}

TEST_CASE("The information window over an empty deck leaves the menus as they were") {
  ProgramOnScreen fixture;
  fixture.Start();
  CHECK(Bar() == kBarOfEmptyDeck);
  ProgramOnScreen::ChooseByKeys("mnuUtility", "mnuCDI");
  CHECK(Bar() == kBarBehindWindow);
  ProgramOnScreen::Alt(Qt::Key_C);
  CHECK(Bar() == kBarOfEmptyDeck);
}

TEST_CASE("A deck window that comes to the front while it is disabled does not take the bar") {
  ProgramOnScreen fixture;
  fixture.Start();
  ProgramOnScreen::ChooseByKeys("mnuUtility", "mnuCDI");
  fixture.program.Windows().Run([&] { fixture.program.DeckWindowOf()->Show(); });
  CHECK(Bar() == kBarBehindWindow);
  fixture.program.InfoWindow().Unload();
  CHECK(Bar() == kBarOfEmptyDeck);
}
