#include <QApplication>
#include <QMenu>
#include <QTimer>
#include <doctest/doctest.h>

#include "adapters/qt/devices/qt_message_boxes.h"
#include "tests/desktop/support/fixture.h"

using namespace tessara;
using namespace tessara::test;

namespace {

QWidget& Focused() {
  return *QApplication::focusWidget();
}

}  // namespace

TEST_CASE("An accelerator presses what carries it, whatever the focus") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  QTest::keyClick(&Focused(), Qt::Key_D, Qt::AltModifier);
  CHECK(form.log.Take() == "delete");
  QTest::keyClick(&Focused(), Qt::Key_H, Qt::AltModifier);
  CHECK(form.log.Take() == "check");
  QTest::keyClick(&Focused(), Qt::Key_W, Qt::AltModifier);
  CHECK(form.log.Take() == "option 1");
}

TEST_CASE("The window's accelerators come before the menu bar's") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.deleteButton.SetCaption(u"&First");
  QTest::keyClick(&Focused(), Qt::Key_F, Qt::AltModifier);
  CHECK(form.log.Take() == "delete");
  CHECK(QApplication::activePopupWidget() == nullptr);
}

TEST_CASE("An accelerator that no control has opens the menu, whose keys choose") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  QTest::keyClick(&Focused(), Qt::Key_M, Qt::AltModifier);
  REQUIRE(QApplication::activePopupWidget() != nullptr);
  CHECK(QApplication::activePopupWidget()->objectName() == "mnuMode");
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_S);
  CHECK(form.log.Take() == "study");
}

TEST_CASE("An accelerator that nothing carries types no letter") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.deleteButton.SetEnabled(false);
  constexpr int kCyrillicEf = 0x424;
  for (const char* name : {"Text1", "Text2"}) {
    CAPTURE(name);
    QWidget& box = Fixture::Of(name);
    box.setFocus();
    QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_D, QStringLiteral("d"), Qt::AltModifier);
    QTest::sendKeyEvent(QTest::Click, &box, Qt::Key(kCyrillicEf), QChar(kCyrillicEf),
                        Qt::AltModifier);
  }
  CHECK(form.lineBox.TextOf().empty());
  CHECK(form.areaBox.TextOf().empty());
  CHECK(form.log.Take().find("delete") == std::string::npos);
}

TEST_CASE("A letter of another script is left to Qt, which knows the Latin letter of its key") {
  Fixture fixture;
  fixture.ShowChild();
  const auto claims = [](int key) {
    QKeyEvent event(QEvent::ShortcutOverride, key, Qt::AltModifier, QChar(key));
    event.ignore();
    QApplication::sendEvent(&Focused(), &event);
    return event.isAccepted();
  };
  constexpr int kCyrillicEf = 0x424;
  CHECK(claims(Qt::Key_D));
  CHECK_FALSE(claims(kCyrillicEf));
}

TEST_CASE("Page Up and Page Down press the buttons that turn pages") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  Fixture::Of("Command2").setFocus();
  form.log.Take();
  QTest::keyClick(&Focused(), Qt::Key_PageUp);
  QTest::keyClick(&Focused(), Qt::Key_PageDown);
  CHECK(form.log.Take() == "back, forth");
  form.arrows[1].SetEnabled(false);
  QTest::keyClick(&Focused(), Qt::Key_PageDown);
  CHECK(form.log.Take().empty());
}

TEST_CASE("In a text box Page Up and Page Down need Ctrl") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  Fixture::Of("Text2").setFocus();
  form.log.Take();
  QTest::keyClick(&Focused(), Qt::Key_PageDown);
  CHECK(form.log.Take().empty());
  QTest::keyClick(&Focused(), Qt::Key_PageDown, Qt::ControlModifier);
  CHECK(form.log.Take() == "forth");
}

TEST_CASE("A box has its keys for itself, and the window behind it none") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.log.Take();
  QTimer::singleShot(0, [] {
    QWidget* const box = QApplication::activeModalWidget();
    CHECK(QTest::qWaitFor([&] { return QApplication::activeWindow() == box; }));
    QWidget& button = *box->focusWidget();
    for (const Qt::Key key : {Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_F1, Qt::Key_Escape}) {
      QTest::keyClick(&button, key);
    }
    QTest::keyClick(&button, Qt::Key_F4, Qt::ControlModifier);
    QTest::keyClick(&button, Qt::Key_D, Qt::AltModifier);
    CHECK(box->isVisible());
    QTest::keyClick(&button, Qt::Key_N, Qt::AltModifier);
  });
  QtMessageBoxes boxes;
  CHECK(boxes.Show(u"?", kYesNo, u"") == MessageAnswer::kNo);
  CHECK(form.log.Take() == "");
}

TEST_CASE("Return and Escape press a window's default and cancel button") {
  Fixture fixture;
  fixture.prepare = [](SampleForm& form) { form.deleteButton.SetDefaultAndCancel(true); };
  fixture.dialog->Show();
  Fixture::Settle();
  fixture.dialog->log.Take();
  QTest::keyClick(&Fixture::Of("Check1", "frmDialog"), Qt::Key_Return);
  QTest::keyClick(&Fixture::Of("Check1", "frmDialog"), Qt::Key_Escape);
  CHECK(fixture.dialog->log.Take() == "delete, delete");
  QTest::keyClick(&Fixture::Of("Command1(0)", "frmDialog"), Qt::Key_Return);
  CHECK(fixture.dialog->log.Take() == "back");
  QTest::keyClick(&Fixture::Of("Text2", "frmDialog"), Qt::Key_Return);
  CHECK(fixture.dialog->areaBox.TextOf() == u"\r\n");
}

TEST_CASE("Escape leaves a window without a cancel button alone") {
  Fixture fixture;
  fixture.dialog->Show();
  QTest::keyClick(Fixture::Top("frmDialog"), Qt::Key_Escape);
  CHECK(Fixture::Top("frmDialog")->isVisible());
}

TEST_CASE("The key for help presses the menu's help entry") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  QTest::keyClick(&Focused(), Qt::Key_F1);
  CHECK(form.log.Take() == "help");
}

TEST_CASE("Ctrl+F4 closes the window in front, and never the frame") {
  Fixture fixture;
  fixture.ShowChild();
  QTest::keyClick(&Focused(), Qt::Key_F4, Qt::ControlModifier);
  CHECK_FALSE(fixture.child.IsLoaded());
  Fixture::Settle();
  QTest::keyClick(Fixture::Top("MDIForm1"), Qt::Key_F4, Qt::ControlModifier);
  CHECK_FALSE(fixture.windows.ExitStatus());
}

TEST_CASE("Space presses the button that has the focus") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  Fixture::Of("Command2").setFocus();
  form.log.Take();
  QTest::keyClick(&Focused(), Qt::Key_Space);
  CHECK(form.log.Take() == "delete");
}

TEST_CASE("The focus is where the form has it, and its moves are told once") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  CHECK(Focused().objectName() == "Text1");
  form.deleteButton.SetFocus();
  CHECK(Focused().objectName() == "Command2");
  CHECK(form.log.Take() == "lost focus");
  Fixture::Of("Text1").setFocus();
  CHECK(form.FocusedControl() == &form.lineBox);
  CHECK(form.log.Take() == "got focus");
}

TEST_CASE(
    "What goes off with the focus on it hands it to the next control, or where the form says") {
  struct Case {
    const char* pressed;
    std::function<void(SampleForm&)> handler;
    std::string next;
  };
  const auto goOff = [](SampleForm& form) { form.arrows[0].SetEnabled(false); };
  const Case cases[] = {
      {"Command1(0)", goOff, "Command1(1)"},
      {"Command1(0)", [](SampleForm& form) { form.arrows[0].SetVisible(false); }, "Command1(1)"},
      {"Command2", [](SampleForm& form) { form.deleteButton.SetEnabled(false); }, "Text1"},
      {"Option1(0)", [](SampleForm& form) { form.group.SetVisible(false); }, "Check1"},
      {"Command1(0)",
       [&](SampleForm& form) {
         goOff(form);
         CHECK(form.FocusedControl() == &form.arrows[0]);
         form.areaBox.SetFocus();
       },
       "Text2"}};
  for (const Case& c : cases) {
    CAPTURE(c.next);
    Fixture fixture;
    SampleForm& form = fixture.ShowChild();
    Fixture::Of(c.pressed).setFocus();
    form.log.Take();
    fixture.windows.Run([&] { c.handler(form); });
    Fixture::Settle();
    CHECK(Focused().objectName().toStdString() == c.next);
    CHECK(form.FocusedControl()->Name() == c.next);
  }
}

TEST_CASE("A focus set while a window loads is the one that it comes up with") {
  Fixture fixture;
  fixture.prepare = [](SampleForm& form) {
    form.onLoad = [&form] {
      form.Show();
      form.deleteButton.SetFocus();
    };
  };
  fixture.ShowChild();
  CHECK(Focused().objectName() == "Command2");
}

TEST_CASE("An entry's keys choose it, where the entry is on, and stand beside it") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  const auto* entry = Fixture::Top("MDIForm1")->findChild<QAction*>("mnuStudy");
  REQUIRE(entry != nullptr);
  CHECK(entry->shortcut().toString().toStdString() == "Ctrl+Shift+S");
  for (const char* control : {"Command2", "Text1", "Text2"}) {
    CAPTURE(control);
    Fixture::Of(control).setFocus();
    form.log.Take();
    QTest::keyClick(&Focused(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    CHECK(form.log.Take() == "study");
  }
  form.modeMenu.SetEnabled(false);
  QTest::keyClick(&Focused(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  CHECK(form.log.Take().empty());
}

TEST_CASE("Of two bars with the same keys, those of the bar on show count") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  QTest::keyClick(&Focused(), Qt::Key_O, Qt::ControlModifier);
  CHECK(form.log.Take() == "open");
  CHECK(fixture.frame->log.Take().empty());
  form.Hide();
  Fixture::Settle();
  QTest::keyClick(Fixture::Top("MDIForm1"), Qt::Key_O, Qt::ControlModifier);
  CHECK(form.log.Take().empty());
  CHECK(fixture.frame->log.Take() == "frame open");
}

TEST_CASE("Keys that always work do so behind another bar, and in a menu that is off") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  fixture.frame->fileMenu.SetEnabled(false);
  QTest::keyClick(&Focused(), Qt::Key_Q, Qt::ControlModifier);
  CHECK(fixture.frame->log.Take() == "frame exit");
  form.Hide();
  Fixture::Settle();
  QTest::keyClick(Fixture::Top("MDIForm1"), Qt::Key_Q, Qt::ControlModifier);
  CHECK(fixture.frame->log.Take() == "frame exit");
}

TEST_CASE("No keys of a menu reach it while a box is open") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  QTimer::singleShot(0, [] {
    QWidget* const box = QApplication::activeModalWidget();
    CHECK(QTest::qWaitFor([&] { return QApplication::activeWindow() == box; }));
    for (const Qt::Key key : {Qt::Key_O, Qt::Key_Q, Qt::Key_S}) {
      QTest::keyClick(box->focusWidget(), key, Qt::ControlModifier);
    }
    QTest::keyClick(box->focusWidget(), Qt::Key_Return);
  });
  QtMessageBoxes().Show(u"!", kOkOnly, u"");
  CHECK(form.log.Take().empty());
  CHECK(fixture.frame->log.Take().empty());
}

TEST_CASE("Arrows, the blank and Ctrl+Return are the window's where it has a use for them") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  const auto press = [&form] {
    form.log.Take();
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Space}) {
      QTest::keyClick(&Focused(), key);
    }
    QTest::keyClick(&Focused(), Qt::Key_Return, Qt::ControlModifier);
    return form.log.Take();
  };
  form.hasUseForKeys = true;
  form.areaBox.SetFocus();
  CHECK(press() == "left, right, space, keep");
  CHECK(form.areaBox.TextOf().empty());
  form.hasUseForKeys = false;
  form.areaBox.SetFocus();
  CHECK(press() == "change");
  CHECK(form.areaBox.TextOf() == u" ");
}

TEST_CASE("A blank held down is no second one") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.hasUseForKeys = true;
  form.painting.SetFocus();
  form.log.Take();
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
  QApplication::sendEvent(&Focused(), &held);
  CHECK(form.log.Take().empty());
}

TEST_CASE("Tab goes where the window says, and else to the next control") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  CHECK(Focused().objectName() == "Text1");
  form.tabTarget = &form.deleteButton;
  QTest::keyClick(&Focused(), Qt::Key_Tab);
  CHECK(Focused().objectName() == "Command2");
  CHECK(form.FocusedControl() == &form.deleteButton);
  form.lineBox.SetFocus();
  form.tabTarget = nullptr;
  QTest::keyClick(&Focused(), Qt::Key_Tab);
  CHECK(Focused().objectName() == "Text2");
}
