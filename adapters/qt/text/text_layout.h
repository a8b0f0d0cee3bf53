#pragma once

#include <QTextLayout>
#include <QTextOption>

#include "forms/canvas.h"

namespace tessara {

/// How a text breaks into lines: between its words, and within a word that is wider than a line.
/// A text with a word that would fill line after line breaks anywhere: looking for the breaks
/// between words takes a time that grows with the square of the longest one's length.
[[nodiscard]] QTextOption::WrapMode WrapModeOf(const QString& text);

/// A text laid out in lines of even height for a canvas, in pixels of the program.
class LaidOutText {
 public:
  LaidOutText(const Text& text, double width, const TextStyle& style);

  [[nodiscard]] double Height() const { return layout_.lineCount() * lineHeight_; }
  /// Width of the widest line.
  [[nodiscard]] double Width() const;
  /// Whether a line ends inside a word: neither at a blank nor at a line break.
  [[nodiscard]] bool BreaksWords() const;
  void Draw(QPainter& painter, const QPointF& topLeft) const;

  [[nodiscard]] static double LineHeight(const TextStyle& style);
  /// From the top of a line to the feet of its letters.
  [[nodiscard]] static double Ascent(const TextStyle& style);

 private:
  void LayOut(double width);

  QTextLayout layout_;
  double lineHeight_;
  double ascent_;
};

}  // namespace tessara
