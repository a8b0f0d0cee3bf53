#pragma once

#include <QFont>
#include <QRect>
#include <QSize>

#include "forms/canvas.h"
#include "forms/geometry.h"
#include "forms/look.h"

namespace tessara {

/// From the program's twips, pixels and fonts to those of the desktop. One factor serves all: 1 up
/// to a desktop font of 10 points, growing with the font beyond, so that nothing is clipped, up to
/// what lets the deck window stand whole on the screen.
class PixelScale {
 public:
  explicit PixelScale(const QFont& desktopFont);
  /// `screen` is what a window has of it, in pixels of the desktop.
  PixelScale(const QFont& desktopFont, QSize screen);
  /// By the font that the desktop gives applications, on the first screen.
  static PixelScale OfDesktop();

  [[nodiscard]] double Factor() const { return factor_; }
  [[nodiscard]] int FromTwips(int twips) const;
  [[nodiscard]] QRect FromTwips(const Bounds& bounds) const;
  [[nodiscard]] QSize FromPixels(int width, int height) const;
  [[nodiscard]] int ToTwips(int pixels) const;

  /// Font of a control, in the desktop's pixels.
  [[nodiscard]] QFont ControlFont(const Font& font) const;
  /// Font of a canvas, in the program's pixels: what is painted is scaled as a whole.
  [[nodiscard]] static QFont CanvasFont(const TextStyle& style);

 private:
  double factor_ = 1;
};

}  // namespace tessara
