#include "adapters/qt/windows/dialog_window.h"

#include <QCloseEvent>
#include <QScreen>

#include "adapters/qt/look/accessible_role.h"
#include "adapters/qt/text/qt_text.h"
#include "forms/window_system.h"

namespace tessara {

namespace {

Qt::WindowFlags FlagsOf(FormKind kind) {
  if (kind == FormKind::kSplash) return Qt::SplashScreen | Qt::FramelessWindowHint;
  return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
         Qt::WindowCloseButtonHint;
}

}  // namespace

DialogWindow::DialogWindow(Form& form, QWidget* frame, const ViewContext& context)
    : QWidget(frame, FlagsOf(form.Kind())),
      form_(&form),
      context_(context),
      surface_(new FormSurface(form, this, context)) {
  WithRole(*this, QAccessible::Dialog);
  setObjectName(QString::fromStdString(form.Name()));
  Follow(FormAspect::kCaption);
  Follow(FormAspect::kBounds);
}

void DialogWindow::Follow(FormAspect aspect) {
  switch (aspect) {
    case FormAspect::kCaption:
      return setWindowTitle(TitleForQt(form_->Caption()));
    case FormAspect::kBounds:
      return FollowBounds();
    case FormAspect::kVisible:
      return FollowVisible();
    case FormAspect::kEnabled:
      return surface_->FollowForm();
    case FormAspect::kPicture:
      return surface_->update();
    case FormAspect::kState:
      break;
  }
}

/// A dialog's place is told from the frame's; without one it stands in the middle of it.
void DialogWindow::FollowBounds() {
  surface_->FollowForm();
  setFixedSize(surface_->size());
  const bool placed = form_->Left() != 0 || form_->Top() != 0;
  const QRect around = parentWidget() != nullptr && form_->Kind() == FormKind::kDialog
                           ? parentWidget()->frameGeometry()
                           : screen()->availableGeometry();
  if (placed) {
    move(around.topLeft() +
         QPoint(context_.scale.FromTwips(form_->Left()), context_.scale.FromTwips(form_->Top())));
  } else {
    move(around.center() - rect().center());
  }
}

void DialogWindow::FollowVisible() {
  // Before it comes up: a window on screen can't become modal.
  const bool modal = form_->System().ModalForm() == form_;
  if (form_->Visible()) setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
  setVisible(form_->Visible());
}

void DialogWindow::FollowDesktop(DesktopChange change) {
  surface_->FollowDesktop();
  // Else it stays where the user has moved it.
  if (change == DesktopChange::kScale) FollowBounds();
}

void DialogWindow::ComeForward() {
  raise();
  activateWindow();
}

void DialogWindow::Detach() {
  form_ = nullptr;
  surface_->Detach();
}

void DialogWindow::Leave() {
  hide();
  setParent(nullptr);
  setObjectName(QString());
  deleteLater();
}

void DialogWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  const bool comes = event->type() == QEvent::ActivationChange && isActiveWindow();
  if (comes && form_ != nullptr) form_->UserActivate();
}

void DialogWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (form_ != nullptr) form_->UserClose();
}

}  // namespace tessara
