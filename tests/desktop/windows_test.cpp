#include <QAccessible>
#include <QElapsedTimer>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTimer>
#include <doctest/doctest.h>

#include "tests/desktop/support/desk.h"

using namespace tessara;
using namespace tessara::test;

namespace {

QMdiSubWindow& Sub(const char* name) {
  return *qobject_cast<QMdiSubWindow*>(Desk::Top(name));
}

class PaintCount : public QObject {
 public:
  int count = 0;

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    count += event->type() == QEvent::Paint ? 1 : 0;
    return false;
  }
};

}  // namespace

TEST_CASE("A window is found by its name, its controls by theirs") {
  Desk desk;
  desk.ShowChild();
  REQUIRE(Desk::Top("frmChild") != nullptr);
  for (const char* name : {"Label1", "Text1", "Option1(1)", "Command1(0)", "List1", "Painting1"}) {
    CHECK(Desk::Of(name).objectName() == name);
  }
}

TEST_CASE("Every control that takes the focus has a name for screen readers") {
  Desk desk;
  SampleForm& form = desk.ShowChild();
  for (const Control* control : form.Controls()) {
    CAPTURE(control->Name());
    QWidget& widget = Desk::Of(control->Name().c_str());
    if (!control->AccessibleName().empty()) {
      CHECK(widget.accessibleName() == ToQString(control->AccessibleName()));
    }
    if (!control->TakesFocus()) continue;
    CHECK_FALSE(QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name).isEmpty());
  }
  CHECK(Desk::Of("Label1").accessibleName() == "A & B <b>bold</b>");
}

TEST_CASE("A child's client area has the form's size, whatever the border") {
  Desk desk;
  desk.ShowChild();
  CHECK(Sub("frmChild").widget()->size() == QSize(400, 350));
  desk.child->SetWidth(3120);
  CHECK(Sub("frmChild").widget()->width() == 200);
  CHECK(Sub("frmChild").minimumSize() == Sub("frmChild").maximumSize());
}

TEST_CASE("A child stands where the form says, and where the user moved it") {
  Desk desk;
  desk.ShowChild();
  desk.child->SetLeft(1500);
  desk.child->SetTop(1500);
  const QPoint client = Sub("frmChild").mapToParent(Sub("frmChild").widget()->pos());
  CHECK(client.x() == 100 + 4);
  Sub("frmChild").move(Sub("frmChild").pos() + QPoint(20, 10));
  CHECK(desk.child->Left() == 1800);
  CHECK(desk.child->Top() == 1650);
}

TEST_CASE("A child has neither a minimise nor a maximise button") {
  Desk desk;
  desk.ShowChild();
  CHECK_FALSE(Sub("frmChild").windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
  CHECK_FALSE(Sub("frmChild").windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
  CHECK(Sub("frmChild").windowFlags().testFlag(Qt::WindowCloseButtonHint));
}

TEST_CASE("The close box asks the form, which may refuse") {
  Desk desk;
  SampleForm& form = desk.ShowChild();
  form.refusesToGo = true;
  Sub("frmChild").close();
  CHECK(Sub("frmChild").isVisible());
  form.refusesToGo = false;
  Sub("frmChild").close();
  CHECK(Desk::Top("frmChild") == nullptr);
}

TEST_CASE("Closing the frame asks the form and ends the program") {
  Desk desk;
  desk.ShowChild();
  Desk::Top("MDIForm1")->close();
  CHECK(desk.windows.ExitStatus() == 0);
  CHECK_FALSE(desk.child.IsLoaded());
}

TEST_CASE("Titles are shown as they stand") {
  Desk desk;
  desk.ShowChild();
  desk.child->SetCaption(u"deck[*] <b>&x</b>");
  CHECK(Sub("frmChild").windowTitle() == "deck[*][*] <b>&x</b>");
}

TEST_CASE("The window that the user clicks becomes the active one") {
  Desk desk;
  desk.ShowChild();
  desk.other->Show();
  Desk::Settle();
  QMdiArea& area = *Desk::Top("MDIForm1")->findChild<QMdiArea*>();
  CHECK(area.activeSubWindow() == &Sub("frmOther"));
  area.setActiveSubWindow(&Sub("frmChild"));
  CHECK(desk.windows.ActiveForm()->Name() == "frmChild");
}

TEST_CASE("A click on a disabled window leaves the window in front that has disabled it") {
  Desk desk;
  desk.ShowChild();
  desk.other->Show();
  desk.child->SetEnabled(false);
  Desk::Settle();
  QMdiArea& area = *Desk::Top("MDIForm1")->findChild<QMdiArea*>();
  QTest::mouseClick(&Sub("frmChild"), Qt::LeftButton, {}, {60, 8});
  CHECK(area.activeSubWindow() == &Sub("frmOther"));
  CHECK(desk.windows.ActiveForm()->Name() == "frmOther");
  desk.child->SetEnabled(true);
  QTest::mouseClick(&Sub("frmChild"), Qt::LeftButton, {}, {60, 8});
  CHECK(desk.windows.ActiveForm()->Name() == "frmChild");
}

TEST_CASE("Hiding the active window makes the next one active on screen too") {
  Desk desk;
  desk.ShowChild();
  desk.other->Show();
  desk.other->Hide();
  QMdiArea& area = *Desk::Top("MDIForm1")->findChild<QMdiArea*>();
  CHECK(desk.windows.ActiveForm()->Name() == "frmChild");
  CHECK(area.activeSubWindow() == &Sub("frmChild"));
  desk.other->Show();
  CHECK(area.activeSubWindow() == &Sub("frmOther"));
  CHECK(desk.windows.ActiveForm()->Name() == "frmOther");
}

TEST_CASE("Clicks and moves beside the controls are the form's, on the backdrop the frame's") {
  Desk desk;
  SampleForm& form = desk.ShowChild();
  QWidget& client = *Sub("frmChild").widget();
  QTest::mouseClick(&client, Qt::LeftButton, {}, {390, 340});
  CHECK(form.log.Take() == "form");
  QTest::mouseMove(&client, {380, 330});
  CHECK(form.log.Take() == "move");
  QWidget& backdrop = *Desk::Top("MDIForm1")->findChild<QMdiArea*>()->viewport();
  QTest::mouseClick(&backdrop, Qt::LeftButton, {}, {700, 550});
  CHECK(desk.frame->log.Take() == "frame");
}

TEST_CASE("A click on a disabled control is nobody's") {
  Desk desk;
  SampleForm& form = desk.ShowChild();
  form.deleteButton.SetEnabled(false);
  QTest::mouseClick(&Desk::Of("Command2"), Qt::LeftButton);
  CHECK(form.log.Take().empty());
}

TEST_CASE("A modal window returns when it is unloaded, and keeps the user out of the others") {
  Desk desk;
  SampleForm& form = desk.ShowChild();
  QTimer::singleShot(0, [&] {
    CHECK(Desk::Top("frmDialog")->isModal());
    form.deleteButton.Press();
    CHECK(form.log.Take().empty());
    QTest::keyClick(Desk::Top("frmDialog"), Qt::Key_F4, Qt::ControlModifier);
  });
  desk.windows.Run([&desk] { desk.dialog->Show(Modality::kModal); });
  CHECK_FALSE(desk.dialog.IsLoaded());
}

TEST_CASE("A window without modality lets the others work") {
  Desk desk;
  SampleForm& form = desk.ShowChild();
  desk.dialog->Show();
  CHECK_FALSE(Desk::Top("frmDialog")->isModal());
  QTest::mouseClick(&Desk::Of("Command2"), Qt::LeftButton);
  CHECK(form.log.Take() == "lost focus, delete");
}

TEST_CASE("The window behind a dialog becomes the active one when the user turns to it, and back") {
  Desk desk;
  desk.ShowChild();
  desk.dialog->Show();
  for (const char* name : {"frmDialog", "MDIForm1", "frmDialog"}) {
    CAPTURE(name);
    Desk::Top(name)->activateWindow();
    REQUIRE(QTest::qWaitFor([&] { return QApplication::activeWindow() == Desk::Top(name); }));
    const std::string active = desk.windows.ActiveForm()->Name();
    CHECK((active == "frmChild") == (name == std::string("MDIForm1")));
  }
}

TEST_CASE("The frame's client area is told in twips") {
  Desk desk;
  const QMdiArea& area = *Desk::Top("MDIForm1")->findChild<QMdiArea*>();
  CHECK(desk.renderer.FrameScaleWidth() == area.viewport()->width() * 15);
  CHECK(desk.renderer.FrameScaleHeight() == area.viewport()->height() * 15);
}

TEST_CASE("The backdrop shows the pictures painted on the frame") {
  Desk desk;
  desk.frame->SetPicture({{{"backdrops/DEFAULT.jpg", 96, 96}, 96, 0}});
  const QWidget& backdrop = *Desk::Top("MDIForm1")->findChild<QMdiArea*>()->viewport();
  const QImage shown = const_cast<QWidget&>(backdrop).grab().toImage();
  const QImage tile(TESSARA_TEST_PICTURES "/backdrops/DEFAULT.jpg");
  CHECK(shown.pixelColor(96 + 40, 40) == tile.pixelColor(40, 40));
  CHECK(shown.pixelColor(40, 40) == shown.pixelColor(700, 500));
}

TEST_CASE("An error that a handler lets out is reported and ends the program") {
  Desk desk;
  SampleForm& form = desk.ShowChild();
  form.deleteButton.onClick = [&form] { form.options[7].SetSelected(true); };
  QTest::mouseClick(&Desk::Of("Command2"), Qt::LeftButton);
  REQUIRE(desk.messages.shown.size() == 1);
  CHECK(desk.messages.shown[0].text.starts_with(u"Run-time error '340':"));
  CHECK(desk.windows.ExitStatus() == 1);
}

TEST_CASE("Waiting for a window to be seen lasts until it has been painted") {
  Desk desk;
  desk.dialog->Show();
  PaintCount paints;
  Desk::Of("Painting1", "frmDialog").installEventFilter(&paints);
  QElapsedTimer time;
  time.start();
  desk.renderer.WaitUntilSeen(*desk.dialog.operator->());
  constexpr int kLongestWait = 200;
  CHECK((paints.count > 0 || time.elapsed() >= kLongestWait));
}
