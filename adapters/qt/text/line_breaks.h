#pragma once

#include <QString>
#include <QTextOption>

namespace tessara {

/// How a text breaks into lines: between its words, and within a word that is wider than a line.
/// A text with a word that would fill line after line breaks anywhere: looking for the breaks
/// between words takes a time that grows with the square of the longest one's length.
[[nodiscard]] QTextOption::WrapMode WrapModeOf(const QString& text);

}  // namespace tessara
