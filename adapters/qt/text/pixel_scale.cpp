#include "adapters/qt/text/pixel_scale.h"

#include <QApplication>
#include <QFontMetrics>
#include <QScreen>
#include <algorithm>

#include "adapters/qt/text/qt_text.h"

namespace tessara {

namespace {

/// The size of letters that the windows' places in twips were drawn for.
constexpr double kFormPoints = 8.25;
constexpr double kPointsPerInch = 72;
/// Pixels to an inch that the program's pixels are counted by.
constexpr double kPixelsPerInch = 96;
constexpr double kLargestUnscaledFont = 10 * kPixelsPerInch / kPointsPerInch;
/// Height of a control's font of that size: a pixel more than 8.25 points are, for faces are wider
/// now.
constexpr double kControlFontPixels = 12;

/// As the font tells it: finding the font itself takes longer, and a start need not wait for it.
int PixelSizeOf(const QFont& font) {
  if (font.pixelSize() > 0) return font.pixelSize();
  const double density = QApplication::primaryScreen()->logicalDotsPerInchY();
  return qRound(font.pointSizeF() * density / kPointsPerInch);
}

/// The forms' sans-serif face stands for the desktop's own; another one keeps its name.
void SetFamily(QFont& font, TextView family) {
  if (family.empty() || family == u"MS Sans Serif") return;
  const bool serif = family == u"MS Serif" || family == u"Georgia";
  font.setFamily(ToQString(family));
  if (serif) font.setStyleHint(QFont::Serif);
}

// The client area of the largest window, the deck's, in pixels of the program.
constexpr double kLargestWidth = 474;
constexpr double kLargestHeight = 395;
/// What the frame's border takes, and the border of the window in it, in pixels of the desktop.
constexpr int kBorders = 32;
/// What stands in lines of the desktop's font: the frame's title, its menu bar, the window's title,
/// each with some room around its letters.
constexpr int kLines = 3;
constexpr int kRoomOfLine = 12;

/// The factor at which the largest window just stands whole on the screen.
double MostFactor(const QFontMetrics& font, QSize screen) {
  const int lines = kLines * (font.height() + kRoomOfLine);
  return std::min((screen.width() - kBorders) / kLargestWidth,
                  (screen.height() - kBorders - lines) / kLargestHeight);
}

}  // namespace

PixelScale::PixelScale(const QFont& desktopFont)
    : factor_(std::max(1.0, PixelSizeOf(desktopFont) / kLargestUnscaledFont)) {}

PixelScale::PixelScale(const QFont& desktopFont, QSize screen) : PixelScale(desktopFont) {
  if (factor_ > 1)
    factor_ = std::max(1.0, std::min(factor_, MostFactor(QFontMetrics(desktopFont), screen)));
}

PixelScale PixelScale::OfDesktop() {
  return {QApplication::font(), QApplication::primaryScreen()->availableSize()};
}

int PixelScale::FromTwips(int twips) const {
  return qRound(twips * factor_ / kTwipsPerPixel);
}

QRect PixelScale::FromTwips(const Bounds& bounds) const {
  const QPoint topLeft(FromTwips(bounds.left), FromTwips(bounds.top));
  const QPoint end(FromTwips(bounds.left + bounds.width), FromTwips(bounds.top + bounds.height));
  return {topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())};
}

QSize PixelScale::FromPixels(int width, int height) const {
  return {qRound(width * factor_), qRound(height * factor_)};
}

int PixelScale::ToTwips(int pixels) const {
  return qRound(pixels * kTwipsPerPixel / factor_);
}

QFont PixelScale::ControlFont(const Font& font) const {
  QFont result = QApplication::font();
  SetFamily(result, font.family);
  const double points = font.points > 0 ? font.points : kFormPoints;
  result.setPixelSize(qRound(kControlFontPixels * factor_ * points / kFormPoints));
  result.setBold(font.bold);
  result.setItalic(font.italic);
  result.setUnderline(font.underline);
  return result;
}

QFont PixelScale::CanvasFont(const TextStyle& style) {
  QFont result = QApplication::font();
  SetFamily(result, style.family);
  // Points that a screen of another density would take for larger ones.
  const double density = QApplication::primaryScreen()->logicalDotsPerInchY();
  result.setPointSizeF(style.points * kPixelsPerInch / density);
  result.setBold(style.bold);
  result.setHintingPreference(QFont::PreferVerticalHinting);
  return result;
}

}  // namespace tessara
