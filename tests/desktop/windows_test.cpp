#include <QAccessible>
#include <QElapsedTimer>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTimer>
#include <doctest/doctest.h>

#include "tests/desktop/support/fixture.h"

using namespace tessara;
using namespace tessara::test;

namespace {

QMdiSubWindow& Sub(const char* name) {
  return *qobject_cast<QMdiSubWindow*>(Fixture::Top(name));
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
  Fixture fixture;
  fixture.ShowChild();
  REQUIRE(Fixture::Top("frmChild") != nullptr);
  for (const char* name : {"Label1", "Text1", "Option1(1)", "Command1(0)", "List1", "Painting1"}) {
    CHECK(Fixture::Of(name).objectName() == name);
  }
}

TEST_CASE("Every control that takes the focus has a name for screen readers") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  for (const Control* control : form.Controls()) {
    CAPTURE(control->Name());
    QWidget& widget = Fixture::Of(control->Name().c_str());
    if (!control->AccessibleName().empty()) {
      CHECK(widget.accessibleName() == ToQString(control->AccessibleName()));
    }
    if (!control->TakesFocus()) continue;
    CHECK_FALSE(QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name).isEmpty());
  }
  CHECK(Fixture::Of("Label1").accessibleName() == "A & B <b>bold</b>");
}

TEST_CASE("A child's client area has the form's size, whatever the border") {
  Fixture fixture;
  fixture.ShowChild();
  CHECK(Sub("frmChild").widget()->size() == QSize(400, 350));
  fixture.child->SetWidth(3120);
  CHECK(Sub("frmChild").widget()->width() == 200);
  CHECK(Sub("frmChild").minimumSize() == Sub("frmChild").maximumSize());
}

TEST_CASE("A child stands where the form says, and where the user moved it") {
  Fixture fixture;
  fixture.ShowChild();
  fixture.child->SetLeft(1500);
  fixture.child->SetTop(1500);
  const QPoint client = Sub("frmChild").mapToParent(Sub("frmChild").widget()->pos());
  CHECK(client.x() == 100 + 4);
  Sub("frmChild").move(Sub("frmChild").pos() + QPoint(20, 10));
  CHECK(fixture.child->Left() == 1800);
  CHECK(fixture.child->Top() == 1650);
}

TEST_CASE("A child has neither a minimise nor a maximise button") {
  Fixture fixture;
  fixture.ShowChild();
  CHECK_FALSE(Sub("frmChild").windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
  CHECK_FALSE(Sub("frmChild").windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
  CHECK(Sub("frmChild").windowFlags().testFlag(Qt::WindowCloseButtonHint));
}

TEST_CASE("The close box asks the form, which may refuse") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.refusesToGo = true;
  Sub("frmChild").close();
  CHECK(Sub("frmChild").isVisible());
  form.refusesToGo = false;
  Sub("frmChild").close();
  CHECK(Fixture::Top("frmChild") == nullptr);
}

TEST_CASE("Closing the frame asks the form and ends the program") {
  Fixture fixture;
  fixture.ShowChild();
  Fixture::Top("MDIForm1")->close();
  CHECK(fixture.windows.ExitStatus() == 0);
  CHECK_FALSE(fixture.child.IsLoaded());
}

TEST_CASE("Titles are shown as they stand") {
  Fixture fixture;
  fixture.ShowChild();
  fixture.child->SetCaption(u"deck[*] <b>&x</b>");
  CHECK(Sub("frmChild").windowTitle() == "deck[*][*] <b>&x</b>");
}

TEST_CASE("The window that the user clicks becomes the active one") {
  Fixture fixture;
  fixture.ShowChild();
  fixture.other->Show();
  Fixture::Settle();
  QMdiArea& area = *Fixture::Top("MDIForm1")->findChild<QMdiArea*>();
  CHECK(area.activeSubWindow() == &Sub("frmOther"));
  area.setActiveSubWindow(&Sub("frmChild"));
  CHECK(fixture.windows.ActiveForm()->Name() == "frmChild");
}

TEST_CASE("A click on a disabled window leaves the window in front that has disabled it") {
  Fixture fixture;
  fixture.ShowChild();
  fixture.other->Show();
  fixture.child->SetEnabled(false);
  Fixture::Settle();
  QMdiArea& area = *Fixture::Top("MDIForm1")->findChild<QMdiArea*>();
  QTest::mouseClick(&Sub("frmChild"), Qt::LeftButton, {}, {60, 8});
  CHECK(area.activeSubWindow() == &Sub("frmOther"));
  CHECK(fixture.windows.ActiveForm()->Name() == "frmOther");
  fixture.child->SetEnabled(true);
  QTest::mouseClick(&Sub("frmChild"), Qt::LeftButton, {}, {60, 8});
  CHECK(fixture.windows.ActiveForm()->Name() == "frmChild");
}

TEST_CASE("Hiding the active window makes the next one active on screen too") {
  Fixture fixture;
  fixture.ShowChild();
  fixture.other->Show();
  fixture.other->Hide();
  QMdiArea& area = *Fixture::Top("MDIForm1")->findChild<QMdiArea*>();
  CHECK(fixture.windows.ActiveForm()->Name() == "frmChild");
  CHECK(area.activeSubWindow() == &Sub("frmChild"));
  fixture.other->Show();
  CHECK(area.activeSubWindow() == &Sub("frmOther"));
  CHECK(fixture.windows.ActiveForm()->Name() == "frmOther");
}

TEST_CASE("Clicks and moves beside the controls are the form's, on the backdrop the frame's") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  QWidget& client = *Sub("frmChild").widget();
  QTest::mouseClick(&client, Qt::LeftButton, {}, {390, 340});
  CHECK(form.log.Take() == "form");
  QTest::mouseMove(&client, {380, 330});
  CHECK(form.log.Take() == "move");
  QWidget& backdrop = *Fixture::Top("MDIForm1")->findChild<QMdiArea*>()->viewport();
  QTest::mouseClick(&backdrop, Qt::LeftButton, {}, {700, 550});
  CHECK(fixture.frame->log.Take() == "frame");
}

TEST_CASE("A click on a disabled control is nobody's") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.deleteButton.SetEnabled(false);
  QTest::mouseClick(&Fixture::Of("Command2"), Qt::LeftButton);
  CHECK(form.log.Take().empty());
}

TEST_CASE("A modal window returns when it is unloaded, and keeps the user out of the others") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  QTimer::singleShot(0, [&] {
    CHECK(Fixture::Top("frmDialog")->isModal());
    form.deleteButton.Press();
    CHECK(form.log.Take().empty());
    QTest::keyClick(Fixture::Top("frmDialog"), Qt::Key_F4, Qt::ControlModifier);
  });
  fixture.windows.Run([&fixture] { fixture.dialog->Show(Modality::kModal); });
  CHECK_FALSE(fixture.dialog.IsLoaded());
}

TEST_CASE("A window without modality lets the others work") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  fixture.dialog->Show();
  CHECK_FALSE(Fixture::Top("frmDialog")->isModal());
  QTest::mouseClick(&Fixture::Of("Command2"), Qt::LeftButton);
  CHECK(form.log.Take() == "lost focus, delete");
}

TEST_CASE("The window behind a dialog becomes the active one when the user turns to it, and back") {
  Fixture fixture;
  fixture.ShowChild();
  fixture.dialog->Show();
  for (const char* name : {"frmDialog", "MDIForm1", "frmDialog"}) {
    CAPTURE(name);
    Fixture::Top(name)->activateWindow();
    REQUIRE(QTest::qWaitFor([&] { return QApplication::activeWindow() == Fixture::Top(name); }));
    const std::string active = fixture.windows.ActiveForm()->Name();
    CHECK((active == "frmChild") == (name == std::string("MDIForm1")));
  }
}

TEST_CASE("The frame's client area is told in twips") {
  Fixture fixture;
  const QMdiArea& area = *Fixture::Top("MDIForm1")->findChild<QMdiArea*>();
  CHECK(fixture.renderer.FrameScaleWidth() == area.viewport()->width() * 15);
  CHECK(fixture.renderer.FrameScaleHeight() == area.viewport()->height() * 15);
}

TEST_CASE("The backdrop shows the pictures painted on the frame") {
  Fixture fixture;
  fixture.frame->SetPicture({{{"backdrops/DEFAULT.jpg", 96, 96}, 96, 0}});
  const QWidget& backdrop = *Fixture::Top("MDIForm1")->findChild<QMdiArea*>()->viewport();
  const QImage shown = const_cast<QWidget&>(backdrop).grab().toImage();
  const QImage tile(TESSARA_TEST_PICTURES "/backdrops/DEFAULT.jpg");
  CHECK(shown.pixelColor(96 + 40, 40) == tile.pixelColor(40, 40));
  CHECK(shown.pixelColor(40, 40) == shown.pixelColor(700, 500));
}

TEST_CASE("An error that a handler lets out is reported and ends the program") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.deleteButton.onClick = [&form] { form.options[7].SetSelected(true); };
  QTest::mouseClick(&Fixture::Of("Command2"), Qt::LeftButton);
  REQUIRE(fixture.messages.shown.size() == 1);
  CHECK(fixture.messages.shown[0].text.starts_with(u"Run-time error '340':"));
  CHECK(fixture.windows.ExitStatus() == 1);
}

TEST_CASE("Waiting for a window that has been painted already is not in vain") {
  Fixture fixture;
  fixture.dialog->Show();
  QApplication::processEvents();
  PaintCount paints;
  Fixture::Of("Painting1", "frmDialog").installEventFilter(&paints);
  fixture.renderer.WaitUntilSeen(*fixture.dialog.operator->());
  CHECK(paints.count > 0);
}

TEST_CASE("Waiting for a window to be seen lasts until it has been painted") {
  Fixture fixture;
  fixture.dialog->Show();
  PaintCount paints;
  Fixture::Of("Painting1", "frmDialog").installEventFilter(&paints);
  QElapsedTimer time;
  time.start();
  fixture.renderer.WaitUntilSeen(*fixture.dialog.operator->());
  constexpr int kLongestWait = 200;
  CHECK((paints.count > 0 || time.elapsed() >= kLongestWait));
}
