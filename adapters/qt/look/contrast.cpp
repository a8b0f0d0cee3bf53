#include "adapters/qt/look/contrast.h"

#include <algorithm>
#include <cmath>

namespace tessara {

namespace {

constexpr int kLightest = 255;
/// A ground of this luminance is as far from white as from black.
constexpr double kMiddleLuminance = 0.179;

double Linear(double part) {
  return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double LuminanceOf(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) +
         0.0722 * Linear(color.blueF());
}

double ContrastOfLuminances(double one, double other) {
  const auto [darker, lighter] = std::minmax(one, other);
  return (lighter + 0.05) / (darker + 0.05);
}

}  // namespace

double ContrastOf(const QColor& one, const QColor& other) {
  return ContrastOfLuminances(LuminanceOf(one), LuminanceOf(other));
}

QColor ReadableOn(const QColor& ground, const QColor& color, double contrast) {
  const double luminance = LuminanceOf(ground);
  const int step = luminance < kMiddleLuminance ? 1 : -1;
  QColor readable = color;
  for (int lightness = color.lightness() + step;
       ContrastOfLuminances(luminance, LuminanceOf(readable)) < contrast && lightness >= 0 &&
       lightness <= kLightest;
       lightness += step) {
    readable = QColor::fromHsl(color.hslHue(), color.hslSaturation(), lightness);
  }
  return readable;
}

}  // namespace tessara
