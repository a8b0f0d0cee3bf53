#include "adapters/qt/text/pixel_scale.h"

#include <QApplication>
#include <QScreen>
#include <doctest/doctest.h>

using namespace tessara;

namespace {

PixelScale ScaleFor(int fontPixels) {
  QFont font = QApplication::font();
  font.setPixelSize(fontPixels);
  return PixelScale(font);
}

}  // namespace

TEST_CASE("The factor is 1 up to a font of 10 points and grows with the font beyond") {
  CHECK(ScaleFor(9).Factor() == 1);
  CHECK(ScaleFor(13).Factor() == 1);
  CHECK(ScaleFor(20).Factor() == doctest::Approx(1.5));
  CHECK(ScaleFor(40).Factor() == doctest::Approx(3));
}

TEST_CASE("A font told in points is measured in whole pixels") {
  const double density = QApplication::primaryScreen()->logicalDotsPerInchY();
  const auto factorAt = [density](double pixels) {
    QFont font = QApplication::font();
    font.setPointSizeF(pixels * 72 / density);
    return PixelScale(font).Factor();
  };
  CHECK(factorAt(13.4) == 1);
  CHECK(factorAt(14.67) == doctest::Approx(1.125));
}

TEST_CASE("Places and sizes of neighbours meet at every factor") {
  for (const int font : {10, 15, 17, 20, 23}) {
    const PixelScale scale = ScaleFor(font);
    const QRect left = scale.FromTwips(Bounds{0, 0, 1000, 300});
    const QRect right = scale.FromTwips(Bounds{1000, 0, 1000, 300});
    CHECK(left.x() + left.width() == right.x());
  }
}

TEST_CASE("Control fonts grow with the factor and with their points") {
  CHECK(ScaleFor(10).ControlFont({}).pixelSize() == 12);
  CHECK(ScaleFor(20).ControlFont({}).pixelSize() == 18);
  Font large;
  large.points = 16.5;
  CHECK(ScaleFor(10).ControlFont(large).pixelSize() == 24);
}

TEST_CASE("The factor is at most what lets the deck window stand whole on the screen") {
  QFont font = QApplication::font();
  font.setPixelSize(24);
  CHECK(PixelScale(font, {3840, 2160}).Factor() == doctest::Approx(1.8));
  const PixelScale small(font, {1366, 768});
  CHECK(small.Factor() > 1.3);
  CHECK(small.Factor() < 1.7);
  CHECK(PixelScale(font, {640, 480}).Factor() == 1);
}
