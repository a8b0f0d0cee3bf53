#include <QDir>
#include <QLabel>
#include <QScrollBar>
#include <QStyle>
#include <QWheelEvent>
#include <doctest/doctest.h>

#include "adapters/qt/look/icon_at_first_use.h"
#include "adapters/qt/look/png_picture.h"
#include "tests/desktop/support/fixture.h"

using namespace tessara;
using namespace tessara::test;

namespace {

QImage PictureOf(const char* control) {
  return Fixture::Of(control).grab().toImage();
}

const QColor kRed(255, 0, 0);

}  // namespace

TEST_CASE("Labels show their text as it stands, but for the accelerator mark") {
  Fixture fixture;
  fixture.ShowChild();
  const auto& label = Fixture::Of<QLabel>("Label1");
  CHECK(label.textFormat() == Qt::PlainText);
  CHECK(label.text() == "A && B <b>bold</b>");
}

TEST_CASE("A label that has no room for its text shows it smaller") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  const int before = Fixture::Of("Label1").font().pixelSize();
  form.label.SetCaption(u"a text that is much too long for a label of two hundred pixels");
  CHECK(Fixture::Of("Label1").font().pixelSize() < before);
  form.label.SetCaption(u"short");
  CHECK(Fixture::Of("Label1").font().pixelSize() == before);
}

TEST_CASE("Labels and images take clicks and the mouse that moves over them") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  QTest::mouseClick(&Fixture::Of("Label1"), Qt::LeftButton);
  QTest::mouseClick(&Fixture::Of("Image1"), Qt::LeftButton);
  CHECK(form.log.Take() == "label, image");
  QTest::mouseMove(&Fixture::Of("Label1"), {5, 5});
  CHECK(form.log.Take() == "over label");
}

TEST_CASE("A picture box shows its picture at its top left corner") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  const QImage flip(TESSARA_TEST_PICTURES "/print/nonflip.png");
  CHECK(PictureOf("Picture1").pixelColor(30, 18) == flip.pixelColor(30, 18));
  form.pictureBox.SetPicture({});
  CHECK(PictureOf("Picture1").pixelColor(30, 18) == PictureOf("Picture1").pixelColor(0, 0));
}

TEST_CASE("An image takes its picture's size, a missing file shows nothing") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  CHECK(Fixture::Of("Image1").size() == QSize(32, 32));
  form.image.SetPicture({"no such file.png", 20, 10});
  CHECK(Fixture::Of("Image1").size() == QSize(20, 10));
  CHECK(PictureOf("Image1").pixelColor(5, 5) == PictureOf("Image1").pixelColor(15, 5));
}

TEST_CASE("A picture that is not on screen is read when it comes there") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.image.SetVisible(false);
  form.image.SetPicture({"info.png", 64, 64});
  CHECK(Fixture::Of<QLabel>("Image1").pixmap(Qt::ReturnByValue).width() != 64);
  form.image.SetVisible(true);
  CHECK(Fixture::Of<QLabel>("Image1").pixmap(Qt::ReturnByValue).width() == 64);
}

TEST_CASE(
    "A caption that is not on screen is fitted when it comes there, in a hidden container too") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.group.SetVisible(false);
  const int before = Fixture::Of("Option1(0)").font().pixelSize();
  form.options[0].SetCaption(u"a text that is much too long for an option of hundred pixels");
  CHECK(Fixture::Of("Option1(0)").font().pixelSize() == before);
  form.group.SetVisible(true);
  CHECK(Fixture::Of("Option1(0)").font().pixelSize() < before);
}

TEST_CASE("Each backdrop has beside it, as PNG, what it shows") {
  int found = 0;
  for (const QFileInfo& named :
       QDir(TESSARA_TEST_PICTURES "/backdrops").entryInfoList({"*.jpg", "*.gif"})) {
    CAPTURE(named.fileName().toStdString());
    const QImage png = ReadPng(named.path() + u'/' + named.completeBaseName() + ".png");
    CHECK(png.convertToFormat(QImage::Format_RGB32) ==
          QImage(named.filePath()).convertToFormat(QImage::Format_RGB32));
    ++found;
  }
  CHECK(found == 40);
}

TEST_CASE("What is no PNG is no picture") {
  CHECK(ReadPng(TESSARA_TEST_PICTURES "/no such file.png").isNull());
  CHECK(ReadPng(TESSARA_TEST_PICTURES "/backdrops/DEFAULT.jpg").isNull());
  CHECK(ReadPng(TESSARA_TEST_PICTURES "/backdrops").isNull());
}

TEST_CASE("A PNG is read with its transparent parts") {
  const QString skin = TESSARA_TEST_PICTURES "/skins/white_3d.png";
  CHECK(ReadPng(skin) == QImage(skin).convertToFormat(QImage::Format_RGBA8888));
}

TEST_CASE("A style's icon is made once, when it is shown") {
  int made = 0;
  const QIcon own = QApplication::style()->standardIcon(QStyle::SP_TitleBarCloseButton);
  const QIcon late = IconAtFirstUse([&] {
    ++made;
    return own;
  });
  const QIcon other(late);
  CHECK(made == 0);
  CHECK(late.pixmap(16).toImage() == own.pixmap(16).toImage());
  CHECK(other.availableSizes() == own.availableSizes());
  CHECK(made == 1);
}

TEST_CASE("A shape is filled with its colour, a line without a height still shows") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.shape.SetBackColor(FixedColor(255, 0, 0));
  CHECK(PictureOf("Shape1").pixelColor(20, 20) == kRed);
  form.line.SetForeColor(FixedColor(255, 0, 0));
  CHECK(PictureOf("Line1").size() == QSize(40, 1));
  CHECK(PictureOf("Line1").pixelColor(20, 0) == kRed);
}

TEST_CASE("A painted control paints itself and can be read from outside") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  CHECK(PictureOf("Painting1").pixelColor(50, 20) == kRed);
  CHECK(PictureOf("Painting1").pixelColor(50, 80) != kRed);
  const QWidget& widget = Fixture::Of("Painting1");
  CHECK(widget.property("CardText") == "Painting");
  CHECK(widget.property("FrontRule") == true);
  CHECK(widget.accessibleName() == "Card");
  form.painting.Write(u"Other", 10);
  CHECK(widget.property("CardText") == "Other");
  CHECK(widget.accessibleDescription() == "Other");
}

TEST_CASE("A painted text that is too long scrolls by wheel, keys and bar; a new one starts anew") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  CHECK(Fixture::Of("Painting1").findChild<QScrollBar*>() == nullptr);
  form.painting.Write(u"long", 150);
  Fixture::Settle();
  auto& bar = *Fixture::Of("Painting1").findChild<QScrollBar*>();
  CHECK(bar.isVisible());
  CHECK(bar.maximum() == 50);
  QTest::keyClick(&Fixture::Of("Painting1"), Qt::Key_End);
  CHECK(bar.value() == 50);
  CHECK(PictureOf("Painting1").pixelColor(50, 20) != kRed);
  QTest::keyClick(&Fixture::Of("Painting1"), Qt::Key_Home);
  QWheelEvent turn({50, 50}, Fixture::Of("Painting1").mapToGlobal(QPointF(50, 50)), {}, {0, -120},
                   Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&Fixture::Of("Painting1"), &turn);
  CHECK(bar.value() > 0);
  form.painting.Write(u"short", 10);
  Fixture::Settle();
  CHECK(bar.value() == 0);
  CHECK_FALSE(bar.isVisible());
}

TEST_CASE("A control that the form hides is hidden, in a hidden container too") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.check.SetVisible(false);
  CHECK_FALSE(Fixture::Of("Check1").isVisible());
  form.group.SetVisible(false);
  CHECK_FALSE(Fixture::Of("Option1(0)").isVisible());
  form.group.SetVisible(true);
  CHECK(Fixture::Of("Option1(0)").isVisible());
}

TEST_CASE("A hidden window comes back with what changed meanwhile") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.Hide();
  form.lineBox.SetText(u"new");
  form.SetWidth(4620);
  form.Show();
  CHECK(Fixture::Of("Text1").isVisible());
  CHECK(Fixture::Of("Text1").property("text") == "new");
}
