#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/text.h"

namespace tessara {

/// A colour: either a role of the user's palette, or fixed red, green and blue.
struct Color {
  enum class Role : std::uint8_t {
    kDefault,  ///< what the control has by itself
    kFixed,    ///< red, green, blue below
    kWindow,   ///< background of boxes
    kButtonFace,
    kInactiveTitle,
    kWorkspace,  ///< the backdrop of windows in a frame
  };
  Role role = Role::kDefault;
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  friend bool operator==(const Color&, const Color&) = default;
};

constexpr Color FixedColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
  return {Color::Role::kFixed, red, green, blue};
}

/// A font; what it leaves open the desktop decides.
struct Font {
  Text family;        ///< empty: the desktop's own
  double points = 0;  ///< 0: the desktop's own size; else relative to the forms' 8.25
  bool bold = false;
  bool italic = false;
  bool underline = false;
  friend bool operator==(const Font&, const Font&) = default;
};

enum class Alignment { kLeft, kRight, kCenter };

/// A picture: a file below the program folder's "pictures", or nothing. Sizes are pixels.
struct Picture {
  std::string file;
  int width = 0;
  int height = 0;
  [[nodiscard]] bool Empty() const { return file.empty(); }
  friend bool operator==(const Picture&, const Picture&) = default;
};

/// A picture painted on a form, its top left corner at x and y pixels.
struct PaintedPicture {
  Picture picture;
  int x = 0;
  int y = 0;
  friend bool operator==(const PaintedPicture&, const PaintedPicture&) = default;
};

}  // namespace tessara
