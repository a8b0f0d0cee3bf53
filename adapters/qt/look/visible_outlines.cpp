#include "adapters/qt/look/visible_outlines.h"

#include <QApplication>
#include <QGroupBox>
#include <QPainter>
#include <QPointer>
#include <QProxyStyle>
#include <QStyleOption>
#include <algorithm>
#include <vector>

#include "adapters/qt/look/contrast.h"
#include "adapters/qt/look/icon_at_first_use.h"

namespace tessara {

namespace {

/// A thin curve loses some of it where it is smoothed.
constexpr double kOutlineContrast = 1.25 * kVisibleContrast;
/// How dark, in per cent, the style makes the highlight for the outline of what has the focus.
constexpr int kFocusDarkening = 125;

/// How dark, in per cent, the style makes the ground for the outline of an element; 0 for none.
int DarkeningOf(QStyle::PrimitiveElement element) {
  switch (element) {
    case QStyle::PE_IndicatorRadioButton:
      return 150;
    case QStyle::PE_FrameLineEdit:
    case QStyle::PE_PanelButtonCommand:
      return 140;
    case QStyle::PE_Frame:
      return 130;
    case QStyle::PE_IndicatorCheckBox:
      return 127;
    default:
      return 0;
  }
}

/// The colour that is seen on the ground once the style has darkened it.
QColor SeenWhenDarkened(const QColor& ground, const QColor& color, int darkening) {
  return ReadableOn(ground, color.darker(darkening), kOutlineContrast).lighter(darkening);
}

QPalette OutliningPalette(const QPalette& palette, int darkening) {
  const QColor ground = palette.color(QPalette::Window);
  const QColor focus = palette.color(QPalette::Highlight);
  QPalette outlining = palette;
  outlining.setColor(QPalette::Window, SeenWhenDarkened(ground, ground, darkening));
  outlining.setColor(QPalette::Highlight, SeenWhenDarkened(ground, focus, kFocusDarkening));
  return outlining;
}

/// A title is white on the highlight while its window is the active one, else of the text's colour
/// on the window's. The style makes the ground of the title lighter.
QPalette TitlePalette(const QPalette& palette) {
  constexpr int kLightening = 114;
  const auto lightened = [](const QColor& color) { return color.lighter(kLightening); };
  QPalette title = palette;
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    const QColor highlight = palette.color(group, QPalette::Highlight);
    const QColor window = palette.color(group, QPalette::Window);
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    title.setColor(group, QPalette::Highlight,
                   ReadableOn(Qt::white, lightened(highlight)).darker(kLightening));
    title.setColor(group, QPalette::Text, ReadableOn(lightened(window), text));
  }
  return title;
}

/// Whether the ground is so dark that what the style draws on it in black is not seen.
bool HidesBlack(const QColor& ground) {
  return ContrastOf(ground, Qt::black) < kVisibleContrast;
}

/// The title of a window that is not in front, on a dark ground: drawn as one in front, whose close
/// box has a white cross and not a black one, but in the window's colour.
void DrawDarkTitleInWhite(QStyleOptionTitleBar& title) {
  if (title.titleBarState & QStyle::State_Active) return;
  const QColor ground = title.palette.color(QPalette::Window);
  if (!HidesBlack(ground)) return;
  title.titleBarState |= QStyle::State_Active;
  title.palette.setColor(QPalette::Highlight, ground);
}

/// The style's edge of a window is darker than the window: it is lost on a dark one.
void DrawDarkWindowEdge(const QStyleOption& option, QPainter& painter) {
  const QColor ground = option.palette.color(QPalette::Window);
  if (!HidesBlack(ground)) return;
  painter.save();
  painter.setPen(ReadableOn(ground, ground, kVisibleContrast));
  painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
  painter.restore();
}

/// Where the style draws the frame of a group: below its title.
QRectF GroupFrameOf(const QStyleOption& option, const QWidget* widget, const QStyle& style) {
  constexpr int kTopMargin = 3;
  const auto* group = qobject_cast<const QGroupBox*>(widget);
  const bool titled = group == nullptr || !group->title().isEmpty();
  const int indicator = style.pixelMetric(QStyle::PM_IndicatorHeight, &option, widget);
  const int title = titled ? std::max(indicator, option.fontMetrics.height()) : 0;
  constexpr double kHalfPen = 0.5;
  return QRectF(option.rect.adjusted(0, title + kTopMargin, 0, 0))
      .adjusted(kHalfPen, kHalfPen, -kHalfPen, -kHalfPen);
}

/// The style's own frame is hardly seen on a light desktop, and not at all on a black one.
void DrawGroupFrame(const QRectF& frame, const QPalette& palette, QPainter& painter) {
  constexpr double kCorner = 2;
  const QColor ground = palette.color(QPalette::Window);
  painter.save();
  painter.setPen(ReadableOn(ground, ground, kVisibleContrast));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(frame, kCorner, kCorner);
  painter.restore();
}

/// One palette for equal ones: the style keeps what it has drawn, by palette, and each widget has a
/// copy of its own.
class OutliningPalettes {
 public:
  const QPalette& Of(const QPalette& palette, int darkening) {
    const auto same = [&](const Made& made) {
      return made.darkening == darkening && made.group == palette.currentColorGroup() &&
             made.of == palette;
    };
    const auto found = std::find_if(made_.begin(), made_.end(), same);
    if (found != made_.end()) return found->outlining;
    if (made_.size() == kMostKept) made_.clear();
    made_.push_back(
        {darkening, palette.currentColorGroup(), palette, OutliningPalette(palette, darkening)});
    return made_.back().outlining;
  }

 private:
  struct Made {
    int darkening;
    QPalette::ColorGroup group;
    QPalette of;
    QPalette outlining;
  };
  static constexpr std::size_t kMostKept = 64;
  std::vector<Made> made_;
};

/// Draws elements with a copy of the option, if it is one of the kind.
template <class Option, class Draw>
bool DrawOutlined(const QStyleOption& option, int darkening, OutliningPalettes& palettes,
                  const Draw& draw) {
  const auto* own = qstyleoption_cast<const Option*>(&option);
  if (own == nullptr) return false;
  Option outlined(*own);
  outlined.palette = palettes.Of(own->palette, darkening);
  draw(outlined);
  return true;
}

/// What a menu bar that is too narrow and the menu of a child's title have. Each is read from a
/// file, and Qt loads its plug-ins of all formats for the first one.
bool IsSeldomSeen(QStyle::StandardPixmap icon) {
  switch (icon) {
    case QStyle::SP_ToolBarHorizontalExtensionButton:
    case QStyle::SP_TitleBarMinButton:
    case QStyle::SP_TitleBarMaxButton:
    case QStyle::SP_TitleBarNormalButton:
    case QStyle::SP_TitleBarCloseButton:
      return true;
    default:
      return false;
  }
}

class OutlineStyle : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  /// What is off is pale, and not lost in its ground, as a black one makes it. A link is read on
  /// every ground.
  void polish(QPalette& palette) override {
    QProxyStyle::polish(palette);
    const QColor ground = palette.color(QPalette::Active, QPalette::Window);
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
      const QColor pale = palette.color(QPalette::Disabled, role);
      palette.setColor(QPalette::Disabled, role, ReadableOn(ground, pale, kVisibleContrast));
    }
    const QColor page = palette.color(QPalette::Active, QPalette::Base);
    for (const auto role : {QPalette::Link, QPalette::LinkVisited}) {
      palette.setColor(role, ReadableOn(page, palette.color(QPalette::Active, role)));
    }
  }
  using QProxyStyle::polish;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    const auto draw = [&](const QStyleOption& drawn) {
      QProxyStyle::drawPrimitive(element, &drawn, painter, widget);
    };
    if (element == PE_FrameGroupBox) {
      return DrawGroupFrame(GroupFrameOf(*option, widget, *this), option->palette, *painter);
    }
    const int darkening = DarkeningOf(element);
    const bool outlined =
        darkening != 0 && (DrawOutlined<QStyleOptionButton>(*option, darkening, palettes_, draw) ||
                           DrawOutlined<QStyleOptionFrame>(*option, darkening, palettes_, draw));
    if (!outlined) draw(*option);
    if (element == PE_FrameWindow) DrawDarkWindowEdge(*option, *painter);
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override {
    const auto* title = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    if (control != CC_TitleBar || title == nullptr) {
      return QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
    QStyleOptionTitleBar readable(*title);
    DrawDarkTitleInWhite(readable);
    readable.palette = TitlePalette(readable.palette);
    QProxyStyle::drawComplexControl(control, &readable, painter, widget);
  }

  /// Children keep their titles, whatever their size: else Qt tells the display the frame's title
  /// anew each time that one comes or goes.
  [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                              QStyleHintReturn* returned) const override {
    if (hint == SH_Workspace_FillSpaceOnMaximize) return 1;
    return QProxyStyle::styleHint(hint, option, widget, returned);
  }

  [[nodiscard]] QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                                   const QWidget* widget) const override {
    if (!IsSeldomSeen(icon)) return QProxyStyle::standardIcon(icon, option, widget);
    return IconAtFirstUse([base = QPointer<const QStyle>(baseStyle()), icon] {
      return base == nullptr ? QIcon() : base->standardIcon(icon);
    });
  }

 private:
  mutable OutliningPalettes palettes_;
};

}  // namespace

void ShowOutlines() {
  const QString name = QApplication::style()->name();
  if (name == QLatin1String("fusion")) QApplication::setStyle(new OutlineStyle(name));
}

}  // namespace tessara
