#include <QAction>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <doctest/doctest.h>

#include "tests/desktop/support/fixture.h"

using namespace tessara;
using namespace tessara::test;

namespace {

std::string BarTexts() {
  std::string texts;
  for (const QAction* action :
       qobject_cast<QMainWindow*>(Fixture::Top("MDIForm1"))->menuBar()->actions()) {
    texts += action->text().toStdString() + " ";
  }
  return texts;
}

QAction& Entry(const char* name, const char* window) {
  return *Fixture::Top(window)->findChild<QAction*>(QLatin1String(name),
                                                    Qt::FindDirectChildrenOnly);
}

const QAction& Menu(const char* name) {
  return *Fixture::Top("frmChild")->findChild<QMenu*>(QLatin1String(name))->menuAction();
}

/// Alt and the letter of the file menu; the first entry is the active one then.
QMenu& OpenFileMenu() {
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F, Qt::AltModifier);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  REQUIRE(menu != nullptr);
  return *menu;
}

std::string ActiveIn(const QMenu& menu) {
  return menu.activeAction() == nullptr ? "" : menu.activeAction()->objectName().toStdString();
}

}  // namespace

TEST_CASE("The bar shows the menus of the window in front, else the frame's own") {
  Fixture fixture;
  CHECK(BarTexts() == "&File ");
  fixture.ShowChild();
  CHECK(BarTexts() == "&File &Mode ");
  fixture.child->Hide();
  CHECK(BarTexts() == "&File ");
  fixture.child->Show();
  CHECK(BarTexts() == "&File &Mode ");
  fixture.child.Unload();
  Fixture::Settle();
  CHECK(BarTexts() == "&File ");
}

TEST_CASE("The bar follows when the window behind a dialog goes") {
  Fixture fixture;
  fixture.ShowChild();
  fixture.dialog->Show();
  CHECK(BarTexts() == "&File &Mode ");
  SUBCASE("unloaded") {
    fixture.child.Unload();
  }
  SUBCASE("hidden") {
    fixture.child->Hide();
  }
  CHECK(BarTexts() == "&File ");
  CHECK(fixture.windows.ActiveForm() == &fixture.dialog.Loaded());
}

TEST_CASE("The bar of a disabled window makes room for the frame's own, and comes back with it") {
  Fixture fixture;
  fixture.ShowChild();
  fixture.child->SetEnabled(false);
  CHECK(BarTexts() == "&File ");
  fixture.child->Hide();
  fixture.child->Show();
  CHECK(BarTexts() == "&File ");
  fixture.child->SetEnabled(true);
  CHECK(BarTexts() == "&File &Mode ");
}

TEST_CASE("Entries of one name in two windows run their own window's command") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  Entry("mnuOpen", "frmChild").trigger();
  CHECK(form.log.Take() == "open");
  CHECK(fixture.frame->log.Take().empty());
  fixture.child->Hide();
  Entry("mnuOpen", "MDIForm1").trigger();
  CHECK(fixture.frame->log.Take() == "frame open");
}

TEST_CASE("A disabled entry and a disabled menu can't be chosen") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.openEntry.SetEnabled(false);
  CHECK_FALSE(Entry("mnuOpen", "frmChild").isEnabled());
  form.modeMenu.SetEnabled(false);
  CHECK_FALSE(Menu("mnuMode").isEnabled());
}

TEST_CASE(
    "What is off stays off when its window was disabled meanwhile, and what is on comes back") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.openEntry.SetEnabled(false);
  form.modeMenu.SetEnabled(false);
  form.SetEnabled(false);
  SUBCASE("as it was") {}
  SUBCASE("switched on and off behind the disabled window") {
    form.modeMenu.SetEnabled(true);
    form.modeMenu.SetEnabled(false);
  }
  form.SetEnabled(true);
  CHECK_FALSE(Menu("mnuMode").isEnabled());
  CHECK_FALSE(Entry("mnuOpen", "frmChild").isEnabled());
  CHECK(Menu("mnuFile").isEnabled());
  form.modeMenu.SetEnabled(true);
  CHECK(Menu("mnuMode").isEnabled());
}

TEST_CASE("A letter that several entries share goes from one to the next, and Return takes one") {
  for (const Qt::KeyboardModifier held : {Qt::NoModifier, Qt::ShiftModifier, Qt::AltModifier}) {
    CAPTURE(held);
    Fixture fixture;
    SampleForm& form = fixture.ShowChild();
    QMenu& menu = OpenFileMenu();
    CHECK(ActiveIn(menu) == "mnuOpen");
    for (const char* next : {"mnuOrder", "mnuOther", "mnuOpen", "mnuOrder"}) {
      // The letter alone: an Alt that goes down anew closes the menu.
      QKeyEvent letter(QEvent::KeyPress, Qt::Key_O, held, "o");
      QApplication::sendEvent(&menu, &letter);
      CHECK(ActiveIn(menu) == next);
    }
    CHECK(form.log.Take().empty());
    QTest::keyClick(&menu, Qt::Key_Return);
    CHECK(form.log.Take() == "order");
    CHECK(QApplication::activePopupWidget() == nullptr);
  }
}

TEST_CASE("A letter passes over entries that are off or hidden, and takes the one that is left") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.orderEntry.SetEnabled(false);
  SUBCASE("two are left") {
    QMenu& menu = OpenFileMenu();
    for (const char* next : {"mnuOther", "mnuOpen", "mnuOther"}) {
      QTest::keyClick(&menu, Qt::Key_O);
      CHECK(ActiveIn(menu) == next);
    }
    menu.close();
    CHECK(form.log.Take().empty());
  }
  SUBCASE("one is left") {
    form.openEntry.SetVisible(false);
    QTest::keyClick(&OpenFileMenu(), Qt::Key_O);
    CHECK(form.log.Take() == "other");
    CHECK(QApplication::activePopupWidget() == nullptr);
  }
  SUBCASE("none is left") {
    form.otherEntry.SetEnabled(false);
    form.openEntry.SetEnabled(false);
    QMenu& menu = OpenFileMenu();
    QTest::keyClick(&menu, Qt::Key_O);
    CHECK(menu.isVisible());
    menu.close();
    CHECK(form.log.Take().empty());
  }
}

TEST_CASE("An entry with the caption - is a line without text") {
  Fixture fixture;
  fixture.ShowChild();
  const QAction& line = Entry("mnu1", "frmChild");
  CHECK(line.isSeparator());
  CHECK(line.text().isEmpty());
}

TEST_CASE("A mark shows what the form says, not how often it was clicked") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  QAction& study = Entry("mnuStudy", "frmChild");
  CHECK_FALSE(study.isCheckable());
  form.studyEntry.SetChecked(true);
  CHECK(study.isChecked());
  study.trigger();
  CHECK(study.isChecked());
  CHECK(form.log.Take() == "study");
}

TEST_CASE("A command that unloads its own window ends well") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.openEntry.onClick = [&form] { form.Unload(); };
  Entry("mnuOpen", "frmChild").trigger();
  Fixture::Settle();
  CHECK(BarTexts() == "&File ");
}

TEST_CASE("A command that waits for a box while its window goes ends well") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.openEntry.onClick = [&fixture] { fixture.messages.Show(u"Wait", kOkOnly, u""); };
  fixture.messages.whileShown = [&fixture](const FakeMessages::Shown&) {
    fixture.child.Unload();
    // A box's own event loop destroys what waits for it.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  };
  Entry("mnuOpen", "frmChild").trigger();
  CHECK(Fixture::Top("frmChild") == nullptr);
  CHECK(BarTexts() == "&File ");
}
