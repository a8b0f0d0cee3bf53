// What a screen reader finds behind widgets whose role Qt can't know.

#include <QAccessible>
#include <doctest/doctest.h>

#include "tests/desktop/support/fixture.h"

using namespace tessara;
using namespace tessara::test;

namespace {

QAccessible::Role RoleOf(QWidget& widget) {
  return QAccessible::queryAccessibleInterface(&widget)->role();
}

}  // namespace

TEST_CASE("What paints itself is a text, an option a radio button, a dialog a dialog") {
  Fixture fixture;
  fixture.ShowChild();
  fixture.dialog->Show();
  CHECK(RoleOf(Fixture::Of("Painting1")) == QAccessible::StaticText);
  CHECK(RoleOf(Fixture::Of("Option1(0)")) == QAccessible::RadioButton);
  CHECK(RoleOf(*Fixture::Top("frmDialog")) == QAccessible::Dialog);
}

TEST_CASE("An option stays a radio button, and no Tab stop is lost, wherever the focus goes") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  Fixture::Of("Option1(0)").setFocus();
  CHECK(Fixture::Of("Option1(1)").focusPolicy() == Qt::StrongFocus);
  form.options[1].SetSelected(true);
  CHECK(RoleOf(Fixture::Of("Option1(1)")) == QAccessible::RadioButton);
}

TEST_CASE("Each kind of control shows that it has the focus, before a key was pressed") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  const auto picture = [](const char* control) { return Fixture::Of(control).grab().toImage(); };
  for (const char* name : {"Command2", "Check1", "Option1(0)", "Combo1", "Painting1", "Text1"}) {
    CAPTURE(name);
    form.list.SetFocus();
    const QImage plain = picture(name);
    Fixture::Of(name).setFocus(Qt::OtherFocusReason);
    CHECK(picture(name) != plain);
  }
}

TEST_CASE("A new card is told with what the program leaves the focus on, or moves it to") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  const auto said = [](const char* name) { return Fixture::Of(name).accessibleDescription(); };
  form.check.SetFocus();
  form.painting.Write(u"one", 10);
  CHECK(said("Check1") == "one");
  form.painting.Write(u"two", 10);
  form.deleteButton.SetFocus();
  CHECK(said("Command2") == "two");
  CHECK(said("Check1").isEmpty());
  QTest::keyClick(&Fixture::Of("Command2"), Qt::Key_Tab);
  CHECK(QApplication::focusWidget()->accessibleDescription().isEmpty());
  form.painting.SetFocus();
  CHECK(said("Painting1") == "two");
  CHECK(said("Command2").isEmpty());
}

TEST_CASE("A link is a link, Tab gets to it, it shows the focus, and Return is its click") {
  Fixture fixture;
  fixture.prepare = [](SampleForm& form) { form.label.SetLink(true); };
  SampleForm& form = fixture.ShowChild();
  QWidget& link = Fixture::Of("Label1");
  CHECK(RoleOf(link) == QAccessible::Link);
  form.lineBox.SetFocus();
  const QImage plain = link.grab().toImage();
  QTest::keyClick(&Fixture::Of("Text1"), Qt::Key_Backtab);
  REQUIRE(link.hasFocus());
  CHECK(link.grab().toImage() != plain);
  form.log.Take();
  QTest::keyClick(&link, Qt::Key_Return);
  CHECK(form.log.Take() == "label");
}
