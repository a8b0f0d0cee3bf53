#include "platform/qt/caption_fit.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <array>

namespace tessara {

namespace {

QSizeF SizeOf(const QString& lines, const QFont& font) {
  return QFontMetricsF(font).size(Qt::TextShowMnemonic, lines);
}

bool Fits(const FittedCaption& caption, QSizeF room) {
  const QSizeF size = SizeOf(caption.text, caption.font);
  return size.width() <= room.width() && size.height() <= room.height();
}

QString Wrapped(const QString& caption, const QFont& font, double width) {
  QTextLayout layout(caption, font);
  QTextOption option;
  option.setWrapMode(QTextOption::WordWrap);
  layout.setTextOption(option);
  layout.beginLayout();
  QString lines;
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    if (!lines.isEmpty()) lines += u'\n';
    lines += QStringView(caption).mid(line.textStart(), line.textLength()).trimmed();
  }
  layout.endLayout();
  return lines;
}

QFont Smaller(const QFont& font, double share) {
  QFont smaller(font);
  smaller.setPixelSize(qRound(font.pixelSize() * share));
  return smaller;
}

}  // namespace

FittedCaption FitCaption(const QString& caption, const QFont& font, QSizeF room) {
  constexpr std::array kShares = {1.0, 11.0 / 12, 10.0 / 12, 9.0 / 12, 8.0 / 12};
  FittedCaption fitted{caption, font};
  if (Fits(fitted, room)) return fitted;
  for (const double share : kShares) {
    fitted.font = Smaller(font, share);
    fitted.text = caption;
    if (Fits(fitted, room)) return fitted;
    fitted.text = Wrapped(caption, fitted.font, room.width());
    if (Fits(fitted, room)) return fitted;
  }
  return fitted;
}

}  // namespace tessara
