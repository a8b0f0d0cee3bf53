#include "adapters/qt/text/character_before.h"

#include <QTextBoundaryFinder>
#include <algorithm>

namespace tessara {

qsizetype CharacterBefore(const QString& text, qsizetype place) {
  QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
  characters.setPosition(place);
  return std::max<qsizetype>(characters.toPreviousBoundary(), 0);
}

}  // namespace tessara
