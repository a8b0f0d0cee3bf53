#pragma once

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "forms/canvas.h"

namespace tessara::test {

/// A canvas with letters of simple widths that remembers what was drawn.
class FakeCanvas : public Canvas {
 public:
  struct DrawnText {
    Rect place;
    Text text;
    TextStyle style;
    std::optional<Rect> clip;
  };
  struct DrawnLine {
    Point from;
    Point to;
    Color color;
  };
  struct Filled {
    Rect place;
    Color color;
  };

  std::vector<DrawnText> texts;
  std::vector<DrawnLine> lines;
  std::vector<Filled> fills;
  std::optional<Rect> clip;

  static double PixelsOf(const TextStyle& style) { return style.points * 96 / 72; }

  void FillRect(const Rect& rect, const Color& color) override { fills.push_back({rect, color}); }
  void FillRoundedRect(const Rect& rect, double, const Color& fill, const Color&) override {
    fills.push_back({rect, fill});
  }
  void DrawLine(Point from, Point to, double, const Color& color) override {
    lines.push_back({from, to, color});
  }
  void Clip(const Rect& rect) override { clip = rect; }
  void Unclip() override { clip.reset(); }
  void DrawText(const Rect& rect, const Text& text, const TextStyle& style) override {
    texts.push_back({rect, text, style, clip});
  }
  double TextHeight(const Text& text, double width, const TextStyle& style) override {
    return CountLines(text, width, style) * LineHeight(style);
  }
  bool BreaksWords(const Text& text, double width, const TextStyle& style) override {
    Text words = text;
    std::replace(words.begin(), words.end(), u' ', u'\n');
    return TextWidth(words, style) > width;
  }
  double TextWidth(const Text& text, const TextStyle& style) override {
    double widest = 0;
    double width = 0;
    for (const char16_t letter : text) {
      width = letter == u'\n' ? 0 : width + WidthOf(letter, style);
      widest = std::max(widest, width);
    }
    return widest;
  }
  double LineHeight(const TextStyle& style) override { return PixelsOf(style) * 1.2; }
  double Ascent(const TextStyle& style) override { return PixelsOf(style) * 0.95; }

  /// Display lines, wrapped at words, and inside a word that is wider than the line.
  [[nodiscard]] int CountLines(TextView text, double width, const TextStyle& style) const {
    int count = 0;
    while (true) {
      const std::size_t end = std::min(text.find(u"\r\n"), text.size());
      count += CountLinesOfParagraph(text.substr(0, end), width, style);
      if (end == text.size()) return count;
      text.remove_prefix(end + 2);
    }
  }

 private:
  static double WidthOf(char16_t letter, const TextStyle& style) {
    if (letter == u'\r') return 0;
    const bool narrow = TextView(u" ijl.,").find(letter) != TextView::npos;
    const bool wide = TextView(u"mwMW").find(letter) != TextView::npos;
    return PixelsOf(style) * (narrow ? 0.3 : wide ? 0.9 : 0.55);
  }

  static int CountLinesOfParagraph(TextView text, double width, const TextStyle& style) {
    int count = 1;
    double used = 0;
    double word = 0;
    for (const char16_t letter : text) {
      const double advance = WidthOf(letter, style);
      if (letter == u' ') {
        used += std::exchange(word, 0) + advance;
        continue;
      }
      if (used + word + advance > width) {
        ++count;
        if (used == 0) word = 0;
        used = 0;
      }
      word += advance;
    }
    return count;
  }
};

}  // namespace tessara::test
