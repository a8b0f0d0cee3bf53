#pragma once

namespace tessara {

/// Sizes and places are twips: 15 to a pixel of the program.
inline constexpr int kTwipsPerPixel = 15;

/// What a window's border adds to its client area, in twips.
inline constexpr int kBorderAcross = 120;
inline constexpr int kBorderDown = 390;

/// A place and a size in twips.
struct Bounds {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  friend bool operator==(const Bounds&, const Bounds&) = default;
};

}  // namespace tessara
