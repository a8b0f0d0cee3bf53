#include "adapters/qt/look/caption_fit.h"

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

/// Letters of a share of the font's size, and of a width in per cent of their own.
struct Letters {
  double size;
  int width;
};

/// A little narrower is hardly seen beside other captions, where a little smaller is.
constexpr int kOwnWidth = 100;
constexpr int kNarrow = 86;
constexpr std::array kLetters = {Letters{1, kOwnWidth},       Letters{1, kNarrow},
                                 Letters{11.0 / 12, kNarrow}, Letters{10.0 / 12, kNarrow},
                                 Letters{9.0 / 12, kNarrow},  Letters{8.0 / 12, kNarrow}};

QFont With(const Letters& letters, const QFont& font) {
  QFont changed(font);
  changed.setPixelSize(qRound(font.pixelSize() * letters.size));
  if (letters.width != kOwnWidth) changed.setStretch(letters.width);
  return changed;
}

}  // namespace

FittedCaption FitCaption(const QString& caption, const QFont& font, QSizeF room) {
  FittedCaption fitted{caption, font};
  if (Fits(fitted, room)) return fitted;
  for (const Letters& letters : kLetters) {
    fitted.font = With(letters, font);
    fitted.text = caption;
    if (Fits(fitted, room)) return fitted;
    fitted.text = Wrapped(caption, fitted.font, room.width());
    if (Fits(fitted, room)) return fitted;
  }
  return fitted;
}

}  // namespace tessara
