#include "adapters/qt/views/label_view.h"

#include <QLabel>
#include <QPainter>
#include <QStyle>

#include "adapters/qt/look/accessible_role.h"
#include "adapters/qt/look/caption_fit.h"
#include "adapters/qt/look/visible_focus.h"
#include "adapters/qt/text/qt_text.h"

namespace tessara {

namespace {

/// A label whose text is shown as it stands, but for its accelerator mark, and whole.
class CaptionLabel : public QLabel {
 public:
  explicit CaptionLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

  /// Makes the label as high as the caption's ink goes on below the room.
  void Show(const FittedCaption& fitted, QSize room) {
    resize(width(), room.height() + static_cast<int>(fitted.overhang));
    shown_ = fitted.text;
    rise_ = static_cast<int>(fitted.rise);
    if (this->font() != fitted.font) setFont(fitted.font);
    update();
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    (void)event;
    QPainter painter(this);
    const int flags = static_cast<int>(alignment()) | Qt::TextShowMnemonic;
    // Higher than the label: text is cut at the place that it is given.
    const QRect place = rect().adjusted(0, -rise_, 0, height());
    style()->drawItemText(&painter, place, flags, palette(), isEnabled(), shown_, foregroundRole());
    PaintFocus(*this, rect(), palette().color(QPalette::Window), painter);
  }

 private:
  QString shown_;
  int rise_ = 0;
};

QWidget& MakeWidget(const Label& label, QWidget& parent) {
  QWidget& widget = *new CaptionLabel(&parent);
  return label.IsLink() ? WithRole(widget, QAccessible::Link) : widget;
}

Qt::Alignment AlignmentForQt(Alignment alignment) {
  switch (alignment) {
    case Alignment::kRight:
      return Qt::AlignRight | Qt::AlignTop;
    case Alignment::kCenter:
      return Qt::AlignHCenter | Qt::AlignTop;
    case Alignment::kLeft:
      break;
  }
  return Qt::AlignLeft | Qt::AlignTop;
}

}  // namespace

LabelView::LabelView(Label& label, QWidget& parent, const ViewContext& context)
    : ControlView(label, MakeWidget(label, parent), context) {
  static_cast<CaptionLabel&>(Widget()).setAlignment(AlignmentForQt(label.AlignmentOf()));
  if (label.onClick) Widget().setCursor(Qt::PointingHandCursor);
}

void LabelView::FollowOwn(Aspect aspect) {
  auto& shown = static_cast<CaptionLabel&>(Widget());
  if (aspect == Aspect::kColor) shown.setAutoFillBackground(As<Label>().BackColor() != Color{});
  if (aspect == Aspect::kCaption) {
    const Text& caption = As<Label>().Caption();
    shown.setText(LinesForQt(caption));
    const bool named = !As<Label>().AccessibleName().empty();
    if (!named) shown.setAccessibleName(LinesForQt(PlainCaption(caption)));
  }
  if (aspect == Aspect::kCaption || aspect == Aspect::kBounds) FollowFont();
}

void LabelView::Prepare() {
  const auto& label = As<Label>();
  const PixelScale& scale = Context().scale;
  const QSize whole = scale.FromTwips(label.BoundsOf()).size();
  const QSize room = whole - QSize(scale.FromTwips(CoveredWidth(label)), 0);
  auto& shown = static_cast<CaptionLabel&>(Widget());
  shown.Show(
      Context().captions.Fit(shown.text(), scale.ControlFont(label.FontOf()), room,
                             CaptionPlace::kFromTop, scale.FromTwips(FreeHeightBelow(label))),
      room);
}

}  // namespace tessara
