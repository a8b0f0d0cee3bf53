#include "adapters/qt/views/painted_view.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QVariant>
#include <cmath>
#include <utility>
#include <variant>

#include "adapters/qt/look/accessible_role.h"
#include "adapters/qt/look/visible_focus.h"
#include "adapters/qt/text/qt_text.h"

namespace tessara {

namespace {

/// How far a key or a turn of the wheel scrolls, in pixels of the program.
constexpr int kScrollStep = 15;

QVariant ForQt(const std::variant<bool, Text>& value) {
  if (const bool* on = std::get_if<bool>(&value)) return *on;
  return ToQString(std::get<Text>(value));
}

}  // namespace

PaintedView::PaintedView(PaintedControl& control, QWidget& parent, const ViewContext& context)
    : ControlView(control, WithRole(*new QWidget(&parent), QAccessible::StaticText), context) {}

void PaintedView::FollowOwn(Aspect aspect) {
  if (aspect == Aspect::kContent) ShowContent();
}

void PaintedView::FollowDesktop() {
  memory_.texts.Forget();
  ControlView::FollowDesktop();
  FitScrollBar();
}

void PaintedView::ShowContent() {
  const auto& control = As<PaintedControl>();
  for (const auto& property : control.Properties()) {
    Widget().setProperty(property.name.c_str(), ForQt(property.value));
  }
  Widget().setAccessibleDescription(LinesForQt(control.Description()));
  if (scrollBar_ != nullptr) scrollBar_->setValue(0);
  Widget().update();
  FitScrollBarSoon();
}

/// Once for all the properties that a card's move changes, and before the paint.
void PaintedView::FitScrollBarSoon() {
  if (std::exchange(fitsScrollBar_, true)) return;
  QCoreApplication::postEvent(&Widget(), new QEvent(QEvent::LayoutRequest), Qt::HighEventPriority);
}

bool PaintedView::eventFilter(QObject* watched, QEvent* event) {
  if (Detached()) return false;
  switch (event->type()) {
    case QEvent::Paint:
      Paint();
      return true;
    case QEvent::LayoutRequest:
      FitScrollBar();
      return false;
    case QEvent::Resize:
      FitScrollBarSoon();
      return false;
    case QEvent::Wheel:
      if (scrollBar_ == nullptr || scrollBar_->isHidden()) return false;
      return QCoreApplication::sendEvent(scrollBar_, event);
    case QEvent::KeyPress:
      if (ScrollByKey(static_cast<QKeyEvent*>(event)->key())) return true;
      break;
    case QEvent::FocusOut:
    case QEvent::FocusIn:
      Widget().update();
      break;
    default:
      break;
  }
  return ControlView::eventFilter(watched, event);
}

Rect PaintedView::SizeInPixels() const {
  const Bounds& place = As<PaintedControl>().BoundsOf();
  return {0, 0, static_cast<double>(place.width) / kTwipsPerPixel,
          static_cast<double>(place.height) / kTwipsPerPixel};
}

void PaintedView::Paint() {
  QPainter painter(&Widget());
  painter.save();
  painter.scale(Context().scale.Factor(), Context().scale.Factor());
  QtCanvas canvas(memory_, &painter);
  const double scroll = scrollBar_ == nullptr ? 0 : scrollBar_->value();
  As<PaintedControl>().Paint(canvas, SizeInPixels(), scroll);
  painter.restore();
  constexpr int kInside = 3;
  // What paints itself is paper, on every desktop.
  PaintFocus(Widget(), Widget().rect().adjusted(kInside, kInside, -kInside, -kInside), Qt::white,
             painter);
}

void PaintedView::FitScrollBar() {
  fitsScrollBar_ = false;
  QtCanvas canvas(memory_, nullptr);
  const Rect size = SizeInPixels();
  const int range = static_cast<int>(std::ceil(As<PaintedControl>().ScrollRange(canvas, size)));
  if (range == 0 && scrollBar_ == nullptr) return;
  const Rect area = As<PaintedControl>().ScrollArea(size);
  const double factor = Context().scale.Factor();
  const int width = ScrollBar().sizeHint().width();
  ScrollBar().setRange(0, range);
  ScrollBar().setPageStep(static_cast<int>(area.height));
  ScrollBar().setGeometry(Widget().width() - width - 1, qRound(area.top * factor), width,
                          qRound(area.height * factor));
  ScrollBar().setVisible(range > 0);
}

QScrollBar& PaintedView::ScrollBar() {
  if (scrollBar_ == nullptr) {
    scrollBar_ = new QScrollBar(Qt::Vertical, &Widget());
    scrollBar_->setFocusPolicy(Qt::NoFocus);
    scrollBar_->setSingleStep(kScrollStep);
    QObject::connect(scrollBar_, &QScrollBar::valueChanged, &Widget(),
                     qOverload<>(&QWidget::update));
  }
  return *scrollBar_;
}

bool PaintedView::ScrollByKey(int key) {
  if (scrollBar_ == nullptr || scrollBar_->isHidden()) return false;
  switch (key) {
    case Qt::Key_Up:
      scrollBar_->triggerAction(QAbstractSlider::SliderSingleStepSub);
      return true;
    case Qt::Key_Down:
      scrollBar_->triggerAction(QAbstractSlider::SliderSingleStepAdd);
      return true;
    case Qt::Key_Home:
      scrollBar_->triggerAction(QAbstractSlider::SliderToMinimum);
      return true;
    case Qt::Key_End:
      scrollBar_->triggerAction(QAbstractSlider::SliderToMaximum);
      return true;
    default:
      return false;
  }
}

}  // namespace tessara
