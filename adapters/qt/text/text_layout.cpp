#include "adapters/qt/text/text_layout.h"

#include <QFontMetricsF>
#include <QTextBoundaryFinder>
#include <algorithm>

#include "adapters/qt/text/pixel_scale.h"
#include "adapters/qt/text/qt_text.h"

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

QString WithLineSeparators(const Text& text) {
  QString lines = LinesForQt(text);
  lines.replace(u'\n', QChar::LineSeparator);
  lines.replace(u'\r', QChar::LineSeparator);
  return lines;
}

QTextOption OptionOf(const QString& text, const TextStyle& style) {
  QTextOption option;
  option.setWrapMode(style.wrap ? WrapModeOf(text) : QTextOption::ManualWrap);
  switch (style.alignment) {
    case Alignment::kLeft:
      option.setAlignment(Qt::AlignLeft);
      break;
    case Alignment::kRight:
      option.setAlignment(Qt::AlignRight);
      break;
    case Alignment::kCenter:
      option.setAlignment(Qt::AlignHCenter);
      break;
  }
  return option;
}

}  // namespace

QTextOption::WrapMode WrapModeOf(const QString& text) {
  return HasLongerWord(text) ? QTextOption::WrapAnywhere
                             : QTextOption::WrapAtWordBoundaryOrAnywhere;
}

LaidOutText::LaidOutText(const Text& text, double width, const TextStyle& style)
    : layout_(WithLineSeparators(text), PixelScale::CanvasFont(style)),
      lineHeight_(LineHeight(style)),
      ascent_(Ascent(style)) {
  layout_.setTextOption(OptionOf(layout_.text(), style));
  // Else the letters' shapes are worked out once more for each time that they are drawn.
  layout_.setCacheEnabled(true);
  LayOut(width);
}

void LaidOutText::LayOut(double width) {
  layout_.beginLayout();
  double top = 0;
  for (QTextLine line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
    line.setLineWidth(width);
    // Letters of another font, as of another script, have their feet in the same place.
    line.setPosition({0, top + ascent_ - line.ascent()});
    top += lineHeight_;
  }
  layout_.endLayout();
}

double LaidOutText::Width() const {
  double widest = 0;
  for (int at = 0; at < layout_.lineCount(); ++at) {
    widest = std::max(widest, layout_.lineAt(at).naturalTextWidth());
  }
  return widest;
}

bool LaidOutText::BreaksWords() const {
  for (int at = 0; at + 1 < layout_.lineCount(); ++at) {
    const QTextLine line = layout_.lineAt(at);
    const QChar last = layout_.text().at(line.textStart() + line.textLength() - 1);
    if (last != u' ' && last != QChar::LineSeparator) return true;
  }
  return false;
}

void LaidOutText::Draw(QPainter& painter, const QPointF& topLeft) const {
  layout_.draw(&painter, topLeft);
}

double LaidOutText::LineHeight(const TextStyle& style) {
  return QFontMetricsF(PixelScale::CanvasFont(style)).lineSpacing();
}

double LaidOutText::Ascent(const TextStyle& style) {
  return QFontMetricsF(PixelScale::CanvasFont(style)).ascent();
}

}  // namespace tessara
