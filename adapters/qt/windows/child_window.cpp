#include "adapters/qt/windows/child_window.h"

#include <QCloseEvent>
#include <algorithm>

#include "adapters/qt/text/qt_text.h"

namespace tessara {

ChildWindow::ChildWindow(Form& form, QMdiArea& area, const ViewContext& context)
    : form_(&form),
      area_(area),
      context_(context),
      surface_(new FormSurface(form, nullptr, context)) {
  setObjectName(QString::fromStdString(form.Name()));
  setWidget(surface_);
  setSystemMenu(nullptr);
  area.addSubWindow(this, Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                              Qt::WindowCloseButtonHint);
  Follow(FormAspect::kCaption);
  Follow(FormAspect::kBounds);
}

void ChildWindow::Follow(FormAspect aspect) {
  following_ = true;
  switch (aspect) {
    case FormAspect::kCaption:
      setWindowTitle(TitleForQt(form_->Caption()));
      break;
    case FormAspect::kBounds:
      surface_->FollowForm();
      FollowBounds();
      break;
    case FormAspect::kVisible:
      setVisible(form_->Visible());
      break;
    case FormAspect::kEnabled:
      surface_->FollowForm();
      // Else a click would bring it before the window that has disabled it.
      setEnabled(form_->Enabled());
      break;
    case FormAspect::kState:
      FollowState();
      break;
    case FormAspect::kPicture:
      surface_->update();
      break;
  }
  following_ = false;
}

QSize ChildWindow::BorderDifference() const {
  const QMargins border = contentsMargins();
  return {border.left() + border.right() - context_.scale.FromTwips(kBorderAcross),
          border.top() + border.bottom() - context_.scale.FromTwips(kBorderDown)};
}

void ChildWindow::FollowBounds() {
  const QMargins border = contentsMargins();
  setFixedSize(surface_->size().grownBy(border));
  const QSize extra = BorderDifference();
  const QPoint place(context_.scale.FromTwips(form_->Left()) - extra.width() / 2,
                     context_.scale.FromTwips(form_->Top()) - extra.height() / 2);
  // A frame that is too small for the window still shows its title.
  move(place.x(), std::max(0, place.y()));
}

void ChildWindow::FollowState() {
  switch (form_->State()) {
    case WindowState::kNormal:
      return showNormal();
    case WindowState::kMinimised:
      return showMinimized();
    case WindowState::kMaximised:
      return showMaximized();
  }
}

void ChildWindow::FollowDesktop(DesktopChange /*change*/) {
  surface_->FollowDesktop();
  Follow(FormAspect::kBounds);
}

void ChildWindow::ComeForward() {
  area_.setActiveSubWindow(this);
}

void ChildWindow::Detach() {
  form_ = nullptr;
  surface_->Detach();
}

void ChildWindow::Leave() {
  setObjectName(QString());
  hide();
  area_.removeSubWindow(this);
  deleteLater();
}

void ChildWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (form_ != nullptr) form_->UserClose();
}

void ChildWindow::moveEvent(QMoveEvent* event) {
  QMdiSubWindow::moveEvent(event);
  if (form_ == nullptr || following_) return;
  const QSize extra = BorderDifference();
  form_->UserMove(context_.scale.ToTwips(x() + extra.width() / 2),
                  context_.scale.ToTwips(y() + extra.height() / 2));
}

}  // namespace tessara
