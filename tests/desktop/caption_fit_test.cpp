#include <QFontInfo>
#include <QFontMetricsF>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <algorithm>
#include <doctest/doctest.h>

#include "adapters/qt/look/caption_fits.h"
#include "adapters/qt/text/pixel_scale.h"
#include "tests/desktop/support/desktop_font.h"
#include "tests/desktop/support/program_on_screen.h"
#include "tests/support/deck_bytes.h"

using namespace tessara;
using namespace tessara::test;

namespace {

constexpr int kOwnWidth = 100;

QFont FontOf(const char* family, int pixels) {
  QFont font(QString::fromLatin1(family));
  font.setPixelSize(pixels);
  return font;
}

QSizeF SizeOf(const QString& caption, const QFont& font) {
  return QFontMetricsF(font).size(Qt::TextShowMnemonic, caption);
}

bool IsNarrowed(const QFont& font) {
  return font.stretch() != QFont::AnyStretch && font.stretch() < kOwnWidth;
}

/// The lowest pixel that is drawn of a caption in its room, on a screen of twice the density; in
/// pixels of the program, from the top of the room.
double InkBottom(const FittedCaption& fitted) {
  constexpr int kDensity = 2;
  QImage screen(QSize(400, 200) * kDensity, QImage::Format_Grayscale8);
  screen.setDevicePixelRatio(kDensity);
  screen.fill(Qt::white);
  QPainter painter(&screen);
  painter.setFont(fitted.font);
  const int flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextShowMnemonic;
  painter.drawText(QRect(0, -static_cast<int>(fitted.rise), 400, 200), flags, fitted.text);
  painter.end();
  const auto drawn = [&](int row) {
    const uchar* line = screen.constScanLine(row);
    return std::any_of(line, line + screen.width(), [](uchar grey) { return grey < 128; });
  };
  int row = screen.height();
  while (row > 0 && !drawn(row - 1)) --row;
  return static_cast<double>(row) / kDensity;
}

/// The label stands at its full size on one line.
void CheckFullSize(const QLabel& label, double points) {
  const Font designed{u"", points};
  CHECK(label.font().pixelSize() == PixelScale::OfDesktop().ControlFont(designed).pixelSize());
  CHECK_FALSE(IsNarrowed(label.font()));
}

}  // namespace

TEST_CASE("Each face that captions are tried in is there") {
  for (const char* family : Faces()) CHECK(QFontInfo(QFont(family)).family() == family);
}

TEST_CASE("Letters get narrower only where the width is short, smaller where that does not do") {
  const QString caption = "Show the back";
  for (const char* family : Faces()) {
    CAPTURE(family);
    const QFont font = FontOf(family, 12);
    const QSizeF whole = SizeOf(caption, font);
    const auto fit = [&](double width, double height) {
      return FitCaption(caption, font, {whole.width() * width, whole.height() * height},
                        CaptionPlace::kFromTop);
    };
    CHECK(fit(1, 1).font == font);
    const FittedCaption narrowed = fit(0.95, 1);
    CHECK(narrowed.text == caption);
    CHECK(IsNarrowed(narrowed.font));
    CHECK(narrowed.font.pixelSize() == 12);
    CHECK(fit(0.8, 1).font.pixelSize() < 12);
    const FittedCaption low = fit(1, 0.6);
    CHECK_FALSE(IsNarrowed(low.font));
    CHECK(low.font.pixelSize() < 12);
    const FittedCaption wrapped = fit(0.8, 2);
    CHECK(wrapped.font == font);
    CHECK(wrapped.text.contains(u'\n'));
  }
}

TEST_CASE("A line that is a little too high for its room is drawn higher, its ink whole") {
  const QString caption = "Typing";
  for (const char* family : Faces()) {
    CAPTURE(family);
    const QFont font = FontOf(family, 14);
    const QFontMetricsF metrics(font);
    const QRectF ink = metrics.tightBoundingRect(caption);
    for (const double room : {ink.height() + 1, ink.height() + 2, metrics.height()}) {
      CAPTURE(room);
      const FittedCaption fitted = FitCaption(caption, font, {200, room}, CaptionPlace::kFromTop);
      CHECK(fitted.font == font);
      CHECK(metrics.ascent() + ink.top() - fitted.rise >= 0);
      CHECK(metrics.ascent() + ink.bottom() - fitted.rise <= room);
    }
  }
}

TEST_CASE("The last of several lines has its ink in the room on a sharp screen too") {
  for (const char* family : Faces()) {
    QFont font = FontOf(family, 12);
    font.setHintingPreference(QFont::PreferNoHinting);  // as on such a screen
    for (const double room : {47.0, 49.0, 51.0}) {
      CAPTURE(family);
      CAPTURE(room);
      const FittedCaption fitted =
          FitCaption("Typing\nforty\ngypsy", font, {200, room}, CaptionPlace::kFromTop);
      CHECK(InkBottom(fitted) <= room);
    }
  }
}

TEST_CASE("The answer card and the title of the About box stand at their full size") {
  for (const char* family : Faces()) {
    CAPTURE(family);
    const DesktopFont desktopFont(family, 10);
    ProgramOnScreen fixture;
    fixture.folder.Write(
        "one.tsr",
        InfoBytes({}) +
            QuestionBytes('M', u"question", 1, {u"\u00C9lectron (gypsy)", u"", u"", u""}, 'A') +
            EndBytes());
    fixture.Start(u"one.tsr");
    CheckFullSize(ProgramOnScreen::Of<QLabel>("Label2"), 9.75);
    fixture.program.FrameWindow()->ShowAbout();
    ProgramOnScreen::Settle();
    CheckFullSize(ProgramOnScreen::Of<QLabel>("Label1(0)", "frmAbout"), 15.75);
  }
}

TEST_CASE("A caption that was fitted before is fitted in the same way, and not again") {
  CaptionFits fits;
  QFont font = QApplication::font();
  font.setPixelSize(12);
  const auto same = [](const FittedCaption& one, const FittedCaption& other) {
    return one.text == other.text && one.font == other.font && one.rise == other.rise &&
           one.overhang == other.overhang;
  };
  for (const QSizeF room : {QSizeF(200, 20), QSizeF(40, 20), QSizeF(40, 40)}) {
    for (const CaptionPlace place : {CaptionPlace::kFromTop, CaptionPlace::kInMiddle}) {
      const FittedCaption fitted = FitCaption("&Typing forty", font, room, place, 3);
      CHECK(same(fits.Fit("&Typing forty", font, room, place, 3), fitted));
      CHECK(same(fits.Fit("&Typing forty", font, room, place, 3), fitted));
    }
  }
  const FittedCaption* const before = &fits.Fit("kept", font, {200, 20}, CaptionPlace::kInMiddle);
  CHECK(&fits.Fit("kept", font, {200, 20}, CaptionPlace::kInMiddle) == before);
  font.setPixelSize(13);
  CHECK(fits.Fit("kept", font, {200, 20}, CaptionPlace::kInMiddle).font == font);
}
