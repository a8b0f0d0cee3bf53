#include <QLabel>
#include <QScrollBar>
#include <QWheelEvent>
#include <doctest/doctest.h>

#include "tests/desktop/support/desk.h"

using namespace tessara;
using namespace tessara::test;

namespace {

QImage PictureOf(const char* control) {
  return Desk::Of(control).grab().toImage();
}

const QColor kRed(255, 0, 0);

}  // namespace

TEST_CASE("Labels show their text as it stands, but for the accelerator mark") {
  Desk desk;
  desk.ShowChild();
  const auto& label = Desk::Of<QLabel>("Label1");
  CHECK(label.textFormat() == Qt::PlainText);
  CHECK(label.text() == "A && B <b>bold</b>");
}

TEST_CASE("A label that has no room for its text shows it smaller") {
  Desk desk;
  SampleForm& form = desk.ShowChild();
  const int before = Desk::Of("Label1").font().pixelSize();
  form.label.SetCaption(u"a text that is much too long for a label of two hundred pixels");
  CHECK(Desk::Of("Label1").font().pixelSize() < before);
  form.label.SetCaption(u"short");
  CHECK(Desk::Of("Label1").font().pixelSize() == before);
}

TEST_CASE("Labels and images take clicks and the mouse that moves over them") {
  Desk desk;
  SampleForm& form = desk.ShowChild();
  QTest::mouseClick(&Desk::Of("Label1"), Qt::LeftButton);
  QTest::mouseClick(&Desk::Of("Image1"), Qt::LeftButton);
  CHECK(form.log.Take() == "label, image");
  QTest::mouseMove(&Desk::Of("Label1"), {5, 5});
  CHECK(form.log.Take() == "over label");
}

TEST_CASE("A picture box shows its picture at its top left corner") {
  Desk desk;
  SampleForm& form = desk.ShowChild();
  const QImage flip(TESSARA_TEST_PICTURES "/print/nonflip.png");
  CHECK(PictureOf("Picture1").pixelColor(30, 18) == flip.pixelColor(30, 18));
  form.pictureBox.SetPicture({});
  CHECK(PictureOf("Picture1").pixelColor(30, 18) == PictureOf("Picture1").pixelColor(0, 0));
}

TEST_CASE("An image takes its picture's size, a missing file shows nothing") {
  Desk desk;
  SampleForm& form = desk.ShowChild();
  CHECK(Desk::Of("Image1").size() == QSize(32, 32));
  form.image.SetPicture({"no such file.png", 20, 10});
  CHECK(Desk::Of("Image1").size() == QSize(20, 10));
  CHECK(PictureOf("Image1").pixelColor(5, 5) == PictureOf("Image1").pixelColor(15, 5));
}

TEST_CASE("A shape is filled with its colour, a line without a height still shows") {
  Desk desk;
  SampleForm& form = desk.ShowChild();
  form.shape.SetBackColor(FixedColor(255, 0, 0));
  CHECK(PictureOf("Shape1").pixelColor(20, 20) == kRed);
  form.line.SetForeColor(FixedColor(255, 0, 0));
  CHECK(PictureOf("Line1").size() == QSize(40, 1));
  CHECK(PictureOf("Line1").pixelColor(20, 0) == kRed);
}

TEST_CASE("A painted control paints itself and can be read from outside") {
  Desk desk;
  SampleForm& form = desk.ShowChild();
  CHECK(PictureOf("Painting1").pixelColor(50, 20) == kRed);
  CHECK(PictureOf("Painting1").pixelColor(50, 80) != kRed);
  const QWidget& widget = Desk::Of("Painting1");
  CHECK(widget.property("CardText") == "Painting");
  CHECK(widget.property("FrontRule") == true);
  CHECK(widget.accessibleName() == "Card");
  form.painting.Write(u"Other", 10);
  CHECK(widget.property("CardText") == "Other");
  CHECK(widget.accessibleDescription() == "Other");
}

TEST_CASE("A painted text that is too long scrolls by wheel, keys and bar; a new one starts anew") {
  Desk desk;
  SampleForm& form = desk.ShowChild();
  CHECK(Desk::Of("Painting1").findChild<QScrollBar*>() == nullptr);
  form.painting.Write(u"long", 150);
  Desk::Settle();
  auto& bar = *Desk::Of("Painting1").findChild<QScrollBar*>();
  CHECK(bar.isVisible());
  CHECK(bar.maximum() == 50);
  QTest::keyClick(&Desk::Of("Painting1"), Qt::Key_End);
  CHECK(bar.value() == 50);
  CHECK(PictureOf("Painting1").pixelColor(50, 20) != kRed);
  QTest::keyClick(&Desk::Of("Painting1"), Qt::Key_Home);
  QWheelEvent turn({50, 50}, Desk::Of("Painting1").mapToGlobal(QPointF(50, 50)), {}, {0, -120},
                   Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&Desk::Of("Painting1"), &turn);
  CHECK(bar.value() > 0);
  form.painting.Write(u"short", 10);
  Desk::Settle();
  CHECK(bar.value() == 0);
  CHECK_FALSE(bar.isVisible());
}

TEST_CASE("A control that the form hides is hidden, in a hidden container too") {
  Desk desk;
  SampleForm& form = desk.ShowChild();
  form.check.SetVisible(false);
  CHECK_FALSE(Desk::Of("Check1").isVisible());
  form.group.SetVisible(false);
  CHECK_FALSE(Desk::Of("Option1(0)").isVisible());
  form.group.SetVisible(true);
  CHECK(Desk::Of("Option1(0)").isVisible());
}

TEST_CASE("A hidden window comes back with what changed meanwhile") {
  Desk desk;
  SampleForm& form = desk.ShowChild();
  form.Hide();
  form.lineBox.SetText(u"new");
  form.SetWidth(4620);
  form.Show();
  CHECK(Desk::Of("Text1").isVisible());
  CHECK(Desk::Of("Text1").property("text") == "new");
}
