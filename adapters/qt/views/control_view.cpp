#include "adapters/qt/views/control_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <utility>

#include "adapters/qt/look/control_palette.h"
#include "adapters/qt/text/qt_text.h"
#include "forms/form.h"

namespace tessara {

ControlView::ControlView(Control& control, QWidget& widget, const ViewContext& context)
    : QObject(&widget), control_(&control), widget_(widget), context_(context) {
  widget.setObjectName(QString::fromStdString(control.Name()));
  if (!control.AccessibleName().empty()) {
    widget.setAccessibleName(ToQString(control.AccessibleName()));
  }
  widget.setFocusPolicy(control.TakesFocus() ? Qt::StrongFocus : Qt::NoFocus);
  if (control.onMouseMove) widget.setMouseTracking(true);
  widget.installEventFilter(this);
}

void ControlView::FollowAll() {
  for (int aspect = 0; aspect <= static_cast<int>(Aspect::kContent); ++aspect) {
    Follow(static_cast<Aspect>(aspect));
  }
}

void ControlView::Follow(Aspect aspect) {
  switch (aspect) {
    case Aspect::kBounds:
      widget_.setGeometry(context_.scale.FromTwips(control_->BoundsOf()));
      break;
    case Aspect::kVisible:
      widget_.setVisible(control_->Visible());
      break;
    case Aspect::kEnabled:
      FollowEnabled();
      break;
    case Aspect::kFont:
      FollowFont();
      break;
    case Aspect::kColor:
      FollowColors();
      break;
    default:
      break;
  }
  FollowOwn(aspect);
}

void ControlView::FollowDesktop() {
  for (const Aspect aspect : {Aspect::kBounds, Aspect::kFont, Aspect::kColor, Aspect::kPicture}) {
    Follow(aspect);
  }
  widget_.update();
}

void ControlView::FollowEnabled() {
  FollowColors();
  widget_.setEnabled(control_->Enabled());
}

void ControlView::FollowFont() {
  if (control_->FontOf() != Font{} || widget_.testAttribute(Qt::WA_SetFont)) {
    widget_.setFont(context_.scale.ControlFont(control_->FontOf()));
  }
}

void ControlView::PrepareWhenSeen() {
  preparesAtShow_ = !widget_.isVisible();
  if (!preparesAtShow_) Prepare();
}

void ControlView::FollowColors() {
  if (NeedsPalette(*control_)) {
    widget_.setPalette(PaletteOf(*control_));
  } else if (widget_.testAttribute(Qt::WA_SetPalette)) {
    widget_.setPalette(QPalette());
  }
}

bool ControlView::eventFilter(QObject* watched, QEvent* event) {
  (void)watched;
  return !Detached() && PassOn(*event);
}

bool ControlView::PassOn(QEvent& event) {
  switch (event.type()) {
    case QEvent::Show:
      if (std::exchange(preparesAtShow_, false)) Prepare();
      return false;
    case QEvent::FocusIn:
      control_->Owner().UserFocus(*control_);
      return false;
    case QEvent::KeyPress:
      PassKey(static_cast<QKeyEvent&>(event).text());
      return Detached();
    case QEvent::KeyRelease:
      if (!static_cast<QKeyEvent&>(event).isAutoRepeat()) control_->UserKeyUp();
      return Detached();
    case QEvent::MouseMove:
      control_->UserMouseMove();
      return Detached();
    case QEvent::MouseButtonRelease: {
      const auto& mouse = static_cast<QMouseEvent&>(event);
      const bool inside = widget_.rect().contains(mouse.position().toPoint());
      if (mouse.button() == Qt::LeftButton && inside) Clicked();
      return Detached();
    }
    default:
      return false;
  }
}

void ControlView::PassKey(const QString& typed) {
  if (typed.size() == 1) control_->UserKeyPress(typed.front().unicode());
}

}  // namespace tessara
