#include "adapters/qt/windows/form_surface.h"

#include <QMouseEvent>
#include <algorithm>
#include <utility>
#include <vector>

#include "adapters/qt/look/picture_cache.h"
#include "adapters/qt/views/make_view.h"
#include "adapters/qt/windows/reading.h"

namespace tessara {

FormSurface::FormSurface(Form& form, QWidget* parent, const ViewContext& context)
    : QWidget(parent), form_(&form), context_(context) {
  setFont(context.scale.ControlFont({}));
  setAutoFillBackground(true);
  setMouseTracking(true);
  FollowForm();
  MakeViews();
}

void FormSurface::MakeViews() {
  for (Control* control : form_->Controls()) {
    const Control* container = control->Container();
    QWidget& parent = container == nullptr ? *this : ViewOf(*container).Widget();
    views_[control] = MakeView(*control, parent, context_);
  }
}

ControlView& FormSurface::ViewOf(const Control& control) const {
  return *views_.at(&control);
}

void FormSurface::Follow(Control& control, Aspect aspect) {
  const bool mayGoOff = aspect == Aspect::kEnabled || aspect == Aspect::kVisible;
  if (mayGoOff) KeepFocusFromStraying(control);
  ViewOf(control).Follow(aspect);
  const bool holds =
      control.Kind() == ControlKind::kFrame || control.Kind() == ControlKind::kPictureBox;
  if (aspect == Aspect::kEnabled && holds) FollowColors();
  const bool reads = aspect == Aspect::kContent || aspect == Aspect::kCaption ||
                     (aspect == Aspect::kVisible && holds);
  if (reads) TellReading();
}

/// Qt would hand the focus of what goes off to whatever comes next, in the middle of the event that
/// switches it off. The form may have a better place for it; where it has none, the event's end is
/// soon enough.
void FormSurface::KeepFocusFromStraying(const Control& control) {
  if (control.Enabled() && control.Visible()) return;
  const QWidget& off = ViewOf(control).Widget();
  QWidget* focused = window()->focusWidget();
  if (focused != &off && !off.isAncestorOf(focused)) return;
  focused->clearFocus();
  QMetaObject::invokeMethod(
      this, [this] { RestoreFocus(); }, Qt::QueuedConnection);
}

void FormSurface::RestoreFocus() {
  if (form_ != nullptr && isVisible() && window()->focusWidget() == nullptr) TakeFocus();
}

/// A screen reader says what has the focus, not what has changed elsewhere: a new card is told
/// with the control that the program has left the focus on, or moved it to. Tab adds nothing.
void FormSurface::TellReading() {
  if (form_ == nullptr) return;
  const QString reading = ReadingOf(*form_);
  const Control* focused = WantedFocus();
  if (reading.isEmpty() || focused == nullptr) return;
  QWidget& widget = ViewOf(*focused).Widget();
  if (told_ != nullptr && told_ != &widget) told_->setAccessibleDescription({});
  // What paints itself says so by itself.
  told_ = focused->Kind() == ControlKind::kPainted ? nullptr : &widget;
  if (told_ != nullptr && told_->accessibleDescription() != reading) {
    told_->setAccessibleDescription(reading);
  }
}

void FormSurface::FollowForm() {
  setFixedSize(context_.scale.FromTwips(form_->ScaleWidth()),
               context_.scale.FromTwips(form_->ScaleHeight()));
  if (isEnabled() == form_->Enabled()) return;
  FollowColors();
  setEnabled(form_->Enabled());
}

void FormSurface::FollowDesktop() {
  setFont(context_.scale.ControlFont({}));
  FollowForm();
  for (const auto& [control, view] : views_) view->FollowDesktop();
}

/// Whether a container is enabled shows in the colours of what it holds.
void FormSurface::FollowColors() {
  for (const auto& [control, view] : views_) view->Follow(Aspect::kColor);
}

Control* FormSurface::WantedFocus() const {
  Control* focused = form_->FocusedControl();
  if (focused != nullptr && focused->Reachable()) return focused;
  std::vector<Control*> controls = form_->Controls();
  std::rotate(controls.begin(), std::find(controls.begin(), controls.end(), focused),
              controls.end());
  const auto next = std::find_if(controls.begin(), controls.end(), [](const Control* control) {
    return control->TakesFocus() && control->Reachable();
  });
  return next == controls.end() ? nullptr : *next;
}

void FormSurface::TakeFocus() {
  Control* wanted = WantedFocus();
  if (wanted == nullptr || ViewOf(*wanted).Widget().hasFocus()) return;
  TellReading();
  ViewOf(*wanted).Widget().setFocus(Qt::OtherFocusReason);
}

/// The window may have a better place for the focus than the next control.
bool FormSurface::focusNextPrevChild(bool next) {
  const Control* focused = form_ == nullptr ? nullptr : form_->FocusedControl();
  const Control* target = next && focused != nullptr ? form_->TabTarget(*focused) : nullptr;
  if (target == nullptr) return QWidget::focusNextPrevChild(next);
  ViewOf(*target).Widget().setFocus(Qt::TabFocusReason);
  return true;
}

void FormSurface::Detach() {
  form_ = nullptr;
  for (const auto& [control, view] : views_) view->Detach();
  views_.clear();
}

// Events that a control's widget does not take come here too; they are none of the form's.

void FormSurface::mousePressEvent(QMouseEvent* event) {
  const bool background = childAt(event->position().toPoint()) == nullptr;
  pressed_ = background && event->button() == Qt::LeftButton;
}

void FormSurface::mouseReleaseEvent(QMouseEvent* event) {
  const bool inside = rect().contains(event->position().toPoint());
  if (std::exchange(pressed_, false) && inside && form_ != nullptr) form_->UserClick();
}

void FormSurface::mouseMoveEvent(QMouseEvent* event) {
  const bool background = childAt(event->position().toPoint()) == nullptr;
  if (background && form_ != nullptr) form_->UserMouseMove();
}

void FormSurface::paintEvent(QPaintEvent* event) {
  if (form_ == nullptr || form_->Painted().empty()) return;
  QPainter painter(this);
  PaintPictures(painter, form_->Painted(), event->region(), context_.scale, context_.pictures);
}

}  // namespace tessara
