#include "adapters/qt/look/caption_fit.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <algorithm>
#include <array>
#include <cmath>

#include "adapters/qt/text/qt_text.h"
#include "forms/controls/control.h"
#include "forms/form.h"

namespace tessara {

namespace {

/// Width of the widest line; from the top of the first line to the bottom of the last, and what of
/// that is ink. Pixels.
struct Measures {
  double width;
  double block;
  double inkTop;
  double inkBottom;
};

QSizeF SizeOf(const QString& lines, const QFont& font) {
  return QFontMetricsF(font).size(Qt::TextShowMnemonic, lines);
}

/// Most captions have one line, which is measured once.
Measures MeasuresOf(const QString& lines, const QFont& font, CaptionPlace place) {
  const QFontMetricsF metrics(font);
  const QString read = ToQString(PlainCaption(FromQString(lines)));
  const QStringList parts = read.split(u'\n');
  const bool oneLine = parts.size() == 1;
  // Letters that begin at a whole pixel stand on one.
  const double firstBaseline =
      place == CaptionPlace::kFromTop ? std::round(metrics.ascent()) : metrics.ascent();
  const QSizeF whole = SizeOf(lines, font);
  const QRectF firstInk = metrics.tightBoundingRect(parts.front());
  const QRectF lastInk = oneLine ? firstInk : metrics.tightBoundingRect(parts.back());
  // Painted lines begin at whole pixels, and are further apart than the font's spacing says.
  const double aboveLast = oneLine ? 0 : whole.height() - SizeOf(parts.back(), font).height();
  return {whole.width(), whole.height(), firstBaseline + firstInk.top(),
          firstBaseline + aboveLast + lastInk.bottom()};
}

/// Brings the ink into the room. True where it has room.
bool FitHeight(FittedCaption& caption, const Measures& measures, double room, CaptionPlace place,
               double mostOverhang) {
  const double top = place == CaptionPlace::kInMiddle ? (room - measures.block) / 2 : 0;
  const double below = std::max(0.0, top + measures.inkBottom - room);
  // In the middle, the style draws it.
  if (place == CaptionPlace::kInMiddle) return below == 0 && top + measures.inkTop >= 0;
  caption.rise = std::min(std::ceil(below), std::max(0.0, std::floor(measures.inkTop)));
  caption.overhang = std::max(0.0, std::ceil(below - caption.rise));
  return measures.inkTop >= 0 && caption.overhang <= mostOverhang;
}

bool FitsOnOneLine(const QString& caption, const QFont& font, double width) {
  return SizeOf(caption, font).width() <= width;
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

/// Shares of the font's size, largest first.
constexpr std::array kSizes = {1.0, 11.0 / 12, 10.0 / 12, 9.0 / 12, 8.0 / 12};
/// A width of letters, in per cent of their own, that is hardly seen beside other captions.
constexpr int kNarrow = 86;

QFont OfSize(const QFont& font, double share) {
  QFont changed(font);
  changed.setPixelSize(qRound(font.pixelSize() * share));
  return changed;
}

QFont Narrowed(const QFont& font) {
  QFont changed(font);
  changed.setStretch(kNarrow);
  return changed;
}

/// Makes room for captions, try by try.
class Fitting {
 public:
  Fitting(const QString& caption, QSizeF room, CaptionPlace place, double mostOverhang)
      : caption_(caption), room_(room), place_(place), mostOverhang_(mostOverhang) {}

  /// True where the caption fits in the font, on one line or wrapped.
  bool Try(const QFont& font) {
    return Try(caption_, font) || Try(Wrapped(caption_, font, room_.width()), font);
  }
  [[nodiscard]] const FittedCaption& Fitted() const { return fitted_; }

 private:
  bool Try(const QString& text, const QFont& font) {
    fitted_ = {text, font};
    const Measures measures = MeasuresOf(text, font, place_);
    return FitHeight(fitted_, measures, room_.height(), place_, mostOverhang_) &&
           measures.width <= room_.width();
  }

  const QString& caption_;
  QSizeF room_;
  CaptionPlace place_;
  double mostOverhang_;
  FittedCaption fitted_;
};

bool Covers(const Bounds& other, int left, int end, int middle) {
  return other.left > left && other.left < end && other.top <= middle &&
         middle < other.top + other.height;
}

constexpr int kMostFreeHeight = 45;

bool IsBelow(const Bounds& other, const Bounds& own) {
  const bool beside = other.left >= own.left + own.width || own.left >= other.left + other.width;
  return !beside && other.top + other.height > own.top + own.height && other.top > own.top;
}

}  // namespace

FittedCaption FitCaption(const QString& caption, const QFont& font, QSizeF room, CaptionPlace place,
                         double mostOverhang) {
  Fitting fitting(caption, room, place, mostOverhang);
  if (caption.isEmpty()) return {caption, font};
  for (const double size : kSizes) {
    const QFont own = OfSize(font, size);
    if (fitting.Try(own)) break;
    const bool tooWide = !FitsOnOneLine(caption, own, room.width());
    if (tooWide && fitting.Try(Narrowed(own))) break;
  }
  return fitting.Fitted();
}

int FreeHeightBelow(const Control& control) {
  const Bounds& own = control.BoundsOf();
  const int bottom = own.top + own.height;
  int free = kMostFreeHeight;
  if (control.Container() != nullptr) {
    free = std::min(free, control.Container()->BoundsOf().height - bottom);
  }
  for (const Control* other : control.Owner().Controls()) {
    const bool inSamePlace = other != &control && other->Container() == control.Container();
    if (inSamePlace && IsBelow(other->BoundsOf(), own)) {
      free = std::min(free, other->BoundsOf().top - bottom);
    }
  }
  return std::max(0, free);
}

int CoveredWidth(const Control& control) {
  const auto& all = control.Owner().Controls();
  const Bounds& own = control.BoundsOf();
  int end = own.left + own.width;
  // From back to front.
  for (auto at = std::find(all.begin(), all.end(), &control); at != all.end(); ++at) {
    const Bounds& other = (*at)->BoundsOf();
    const bool beside = (*at)->Container() == control.Container();
    if (beside && Covers(other, own.left, end, own.top + own.height / 2)) end = other.left;
  }
  return own.left + own.width - end;
}

}  // namespace tessara
