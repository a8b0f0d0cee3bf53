#include <QAbstractButton>
#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <doctest/doctest.h>

#include "tests/desktop/support/fixture.h"

using namespace tessara;
using namespace tessara::test;

TEST_CASE("A click on a button runs its form's click") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  QTest::mouseClick(&Fixture::Of("Command2"), Qt::LeftButton);
  CHECK(form.log.Take() == "lost focus, delete");
}

TEST_CASE("A disabled button and one behind a disabled window take no click") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.deleteButton.SetEnabled(false);
  CHECK_FALSE(Fixture::Of("Command2").isEnabled());
  form.deleteButton.SetEnabled(true);
  form.SetEnabled(false);
  QTest::mouseClick(&Fixture::Of("Command2"), Qt::LeftButton);
  CHECK(form.log.Take().empty());
}

TEST_CASE("A click that comes through while a box is up does nothing") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  auto& button = Fixture::Of<QAbstractButton>("Command2");
  auto& mark = Fixture::Of<QAbstractButton>("Check1");
  {
    QMessageBox box;
    box.setModal(true);
    box.show();
    button.click();
    mark.click();
    CHECK(form.log.Take().empty());
    CHECK_FALSE(mark.isChecked());
  }
  button.click();
  CHECK(form.log.Take() == "delete");
}

TEST_CASE("A long caption is made to fit its button and keeps its text") {
  Fixture fixture;
  fixture.ShowChild();
  auto& button = Fixture::Of<QPushButton>("Command2");
  CHECK(button.text() == "&Delete form deck");
  CHECK(button.size() == QSize(97, 33));
}

TEST_CASE("A caption stays away from the sides of its button, however long it is") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  const auto sides = [&form](std::size_t letters) {
    form.deleteButton.SetCaption(Text(letters, u'i'));
    const QImage picture = Fixture::Of("Command2").grab().toImage();
    return std::pair(picture.copy(2, 0, 1, picture.height()),
                     picture.copy(picture.width() - 3, 0, 1, picture.height()));
  };
  const auto empty = sides(0);
  for (std::size_t letters = 15; letters < 35; ++letters) {
    CAPTURE(letters);
    CHECK(sides(letters) == empty);
  }
}

TEST_CASE("A caption's accelerator is underlined, and its mark is not seen") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  const std::pair<CaptionedControl*, const char*> captioned[] = {{&form.deleteButton, "Command2"},
                                                                 {&form.check, "Check1"},
                                                                 {&form.options[0], "Option1(0)"},
                                                                 {&form.label, "Label1"}};
  for (const auto& row : captioned) {
    CaptionedControl* const control = row.first;
    const char* const name = row.second;
    CAPTURE(std::string(name));
    const auto picture = [control, name](TextView caption) {
      control->SetCaption(Text(caption));
      return Fixture::Of(name).grab().toImage();
    };
    const QImage plain = picture(u"ill");
    const QImage marked = picture(u"&ill");
    CHECK(marked != plain);
    // All that changes is below the letters.
    const int middle = plain.height() / 2;
    CHECK(marked.copy(0, 0, plain.width(), middle) == plain.copy(0, 0, plain.width(), middle));
  }
}

TEST_CASE("A button without a caption that is off is not to be seen, and is there again with one") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  const auto picture = [] { return Fixture::Of("Command2").grab().toImage(); };
  const QColor ground = Fixture::Of("Command2").palette().color(QPalette::Window);
  const auto seen = [&](const QImage& image) {
    QImage empty(image.size(), image.format());
    empty.fill(ground);
    return image != empty;
  };
  CHECK(seen(picture()));
  form.deleteButton.SetCaption(u"");
  CHECK(seen(picture()));
  form.deleteButton.SetEnabled(false);
  CHECK_FALSE(seen(picture()));
  form.deleteButton.SetCaption(u"Next");
  CHECK(seen(picture()));
}

TEST_CASE("An option that a form clears is cleared on screen") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  auto& one = Fixture::Of<QRadioButton>("Option1(0)");
  form.options[0].SetSelected(true);
  REQUIRE(one.isChecked());
  form.options[0].SetSelected(false);
  CHECK_FALSE(one.isChecked());
}

TEST_CASE("A click selects one option of a group, and clicks again where it was selected") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  auto& one = Fixture::Of<QRadioButton>("Option1(0)");
  auto& two = Fixture::Of<QRadioButton>("Option1(1)");
  QTest::mouseClick(&one, Qt::LeftButton, {}, {6, 8});
  QTest::mouseClick(&two, Qt::LeftButton, {}, {6, 8});
  QTest::mouseClick(&two, Qt::LeftButton, {}, {6, 8});
  CHECK(form.log.Take() == "lost focus, option 0, option 1, option 1");
  CHECK_FALSE(one.isChecked());
  CHECK(two.isChecked());
}

TEST_CASE("An option and a check box take a click anywhere in their place") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  for (const char* name : {"Option1(1)", "Check1"}) {
    QWidget& widget = Fixture::Of(name);
    const QPoint atTheEnd(widget.width() - 2, widget.height() / 2);
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, atTheEnd);
  }
  CHECK(form.log.Take() == "lost focus, option 1, check");
}

TEST_CASE("An option that has room for its mark only is widened for its caption") {
  Fixture fixture;
  fixture.prepare = [](SampleForm& form) {
    form.options[0].SetCaption(u"A");
    form.options[0].SetWidth(255);
  };
  fixture.ShowChild();
  const auto& one = Fixture::Of<QRadioButton>("Option1(0)");
  CHECK(one.height() == 17);
  CHECK(one.width() > 17);
  CHECK(one.width() < 40);
  CHECK(Fixture::Of("Option1(1)").width() == 100);
}

TEST_CASE("The arrow keys select the next option, round the group") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  QTest::mouseClick(&Fixture::Of("Option1(0)"), Qt::LeftButton, {}, {6, 8});
  QTest::keyClick(&Fixture::Of("Option1(0)"), Qt::Key_Down);
  CHECK(form.options[1].Selected());
  CHECK(Fixture::Of("Option1(1)").hasFocus());
  QTest::keyClick(&Fixture::Of("Option1(1)"), Qt::Key_Down);
  CHECK(form.options[0].Selected());
}

TEST_CASE("The arrow keys only go from option to option where a choice is an answer") {
  Fixture fixture;
  fixture.prepare = [](SampleForm& form) {
    for (OptionButton& option : form.options) option.SetArrowsSelect(false);
  };
  SampleForm& form = fixture.ShowChild();
  Fixture::Of("Option1(0)").setFocus();
  for (const char* next : {"Option1(1)", "Option1(0)", "Option1(1)"}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    CHECK(QApplication::focusWidget()->objectName() == next);
  }
  CHECK_FALSE(form.options[0].Selected());
  CHECK_FALSE(form.options[1].Selected());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  CHECK(form.options[1].Selected());
}

TEST_CASE("A disabled group keeps the user out and does not grey what it holds") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  const QColor blue(0, 0, 255);
  form.options[1].SetForeColor(FixedColor(0, 0, 255));
  form.group.SetEnabled(false);
  auto& one = Fixture::Of<QRadioButton>("Option1(0)");
  auto& two = Fixture::Of<QRadioButton>("Option1(1)");
  QTest::mouseClick(&one, Qt::LeftButton, {}, {6, 8});
  CHECK(form.log.Take().empty());
  CHECK_FALSE(one.isChecked());
  const QPalette desktop = QApplication::palette();
  CHECK(one.palette().color(QPalette::Disabled, QPalette::WindowText) ==
        desktop.color(QPalette::Active, QPalette::WindowText));
  CHECK(two.palette().color(QPalette::Disabled, QPalette::WindowText) == blue);

  form.options[0].SetEnabled(false);
  CHECK(one.palette().color(QPalette::Disabled, QPalette::WindowText) ==
        desktop.color(QPalette::Disabled, QPalette::WindowText));
}

TEST_CASE("A coloured option is painted in its colour in a disabled group") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.options[1].SetForeColor(FixedColor(0, 0, 255));
  form.group.SetEnabled(false);
  const QImage picture = Fixture::Of("Option1(1)").grab().toImage();
  int blue = 0;
  for (int x = 0; x < picture.width(); ++x) {
    for (int y = 0; y < picture.height(); ++y) {
      const QColor color = picture.pixelColor(x, y);
      if (color.blue() > color.red() + 150) ++blue;
    }
  }
  CHECK(blue > 10);
}

TEST_CASE("A check box shows its value and is turned over by a click") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  auto& check = Fixture::Of<QCheckBox>("Check1");
  QTest::mouseClick(&check, Qt::LeftButton, {}, {6, 8});
  CHECK(form.log.Take() == "lost focus, check");
  CHECK(check.checkState() == Qt::Checked);
  form.check.SetValue(2);
  CHECK(check.checkState() == Qt::PartiallyChecked);
  form.check.SetValue(0);
  CHECK(check.checkState() == Qt::Unchecked);
}

TEST_CASE("A handler that unloads its own window ends well") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.deleteButton.onClick = [&form] { form.Unload(); };
  QTest::mouseClick(&Fixture::Of("Command2"), Qt::LeftButton);
  CHECK(Fixture::Top("frmChild") == nullptr);
  Fixture::Settle();
  CHECK_FALSE(fixture.child.IsLoaded());
}
