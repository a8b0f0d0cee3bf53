#pragma once

#include <QColor>

namespace tessara {

/// What text needs against its ground to be read with tired eyes.
inline constexpr double kReadableContrast = 4.5;
/// What lines need that tell where a control is, and its marks.
inline constexpr double kVisibleContrast = 3;

/// From 1 (the same) to 21 (black and white), as the accessibility guidelines for the web count.
[[nodiscard]] double ContrastOf(const QColor& one, const QColor& other);

/// The colour, made lighter or darker in its own hue as far as it lacks the contrast to the ground.
[[nodiscard]] QColor ReadableOn(const QColor& ground, const QColor& color,
                                double contrast = kReadableContrast);

}  // namespace tessara
