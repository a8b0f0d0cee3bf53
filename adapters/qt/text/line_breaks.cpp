#include "adapters/qt/text/line_breaks.h"

#include <QTextBoundaryFinder>

namespace tessara {

namespace {

/// Letters, with the blank or the break behind them. More than a card's field has, so that only a
/// word that was typed or pasted is longer.
constexpr qsizetype kLongestWord = 1000;

bool HasLongerWord(const QString& text) {
  if (text.size() <= kLongestWord) return false;
  QTextBoundaryFinder breaks(QTextBoundaryFinder::Line, text);
  for (qsizetype begin = 0, end = 0; (end = breaks.toNextBoundary()) >= 0; begin = end) {
    if (end - begin > kLongestWord) return true;
  }
  return false;
}

}  // namespace

QTextOption::WrapMode WrapModeOf(const QString& text) {
  return HasLongerWord(text) ? QTextOption::WrapAnywhere
                             : QTextOption::WrapAtWordBoundaryOrAnywhere;
}

}  // namespace tessara
