#pragma once

#include "base/text.h"
#include "forms/look.h"

namespace tessara {

/// A place or size in pixels of the program, with fractions: what is painted stays sharp at any
/// scaling of the screen.
struct Point {
  double x = 0;
  double y = 0;
};

struct Rect {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
  [[nodiscard]] double Right() const { return left + width; }
  [[nodiscard]] double Bottom() const { return top + height; }
};

struct TextStyle {
  Text family;        ///< empty: the desktop's own
  double points = 9;  ///< true points
  bool bold = false;
  Color color;
  Alignment alignment = Alignment::kLeft;
  bool wrap = false;  ///< at words, and inside a word that is wider than the line
};

/// What a painted control draws on.
class Canvas {
 public:
  virtual ~Canvas() = default;
  virtual void FillRect(const Rect& rect, const Color& color) = 0;
  virtual void FillRoundedRect(const Rect& rect, double radius, const Color& fill,
                               const Color& border) = 0;
  virtual void DrawLine(Point from, Point to, double width, const Color& color) = 0;
  /// Until Unclip nothing is drawn outside the rectangle.
  virtual void Clip(const Rect& rect) = 0;
  virtual void Unclip() = 0;
  /// Draws literally, cut off at the rectangle; line breaks are line breaks.
  virtual void DrawText(const Rect& rect, const Text& text, const TextStyle& style) = 0;
  /// Height of the text, wrapped at the width where the style says so.
  [[nodiscard]] virtual double TextHeight(const Text& text, double width,
                                          const TextStyle& style) = 0;
  /// Whether the text, wrapped at the width, has a line that ends inside a word: neither at a blank
  /// nor at a line break.
  [[nodiscard]] virtual bool BreaksWords(const Text& text, double width,
                                         const TextStyle& style) = 0;
  /// Width of the text's widest line, not wrapped.
  [[nodiscard]] virtual double TextWidth(const Text& text, const TextStyle& style) = 0;
  [[nodiscard]] virtual double LineHeight(const TextStyle& style) = 0;
  /// From the top of a line to the feet of its letters.
  [[nodiscard]] virtual double Ascent(const TextStyle& style) = 0;
};

}  // namespace tessara
