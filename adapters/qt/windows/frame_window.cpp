#include "adapters/qt/windows/frame_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>

#include "adapters/qt/look/room_on_screen.h"
#include "adapters/qt/text/dropped_file.h"
#include "adapters/qt/text/qt_text.h"
#include "adapters/qt/views/behind_box.h"
#include "forms/window_system.h"

namespace tessara {

namespace {

/// Room for the largest child window, and for the backdrop around it. Pixels of the program.
constexpr int kOpeningWidth = 860;
constexpr int kOpeningHeight = 640;

}  // namespace

FrameWindow::FrameWindow(Form& form, const ViewContext& context)
    : form_(&form), context_(context), area_(new BackdropArea(form, context)) {
  setObjectName(QString::fromStdString(form.Name()));
  setCentralWidget(area_);
  menuBar()->setAccessibleName(QStringLiteral("Menus"));
  setAcceptDrops(true);
  resize(OpeningSize(context.scale));
  Follow(FormAspect::kCaption);
}

QSize FrameWindow::OpeningSize(const PixelScale& scale) {
  return scale.FromPixels(kOpeningWidth, kOpeningHeight).boundedTo(RoomOnScreen());
}

void FrameWindow::Follow(FormAspect aspect) {
  switch (aspect) {
    case FormAspect::kCaption:
      return setWindowTitle(TitleForQt(form_->Caption()));
    case FormAspect::kVisible:
      return setVisible(form_->Visible());
    case FormAspect::kEnabled:
      return setEnabled(form_->Enabled());
    case FormAspect::kPicture:
      return area_->viewport()->update();
    case FormAspect::kBounds:
    case FormAspect::kState:
      break;
  }
}

/// Its windows may have grown. It keeps the size that the user has given it where that is larger.
void FrameWindow::FollowDesktop(DesktopChange change) {
  const bool grows = change == DesktopChange::kScale && !isMaximized() && !isFullScreen();
  if (grows) resize(size().expandedTo(OpeningSize(context_.scale)));
  area_->viewport()->update();
}

void FrameWindow::ComeForward() {
  activateWindow();
}

void FrameWindow::Detach() {
  form_ = nullptr;
  area_->Detach();
}

void FrameWindow::Leave() {
  hide();
  deleteLater();
}

void FrameWindow::ShowMenus(const MenuView& menus) {
  if (menus_ == &menus) return;
  ClearMenuBar();
  menus_ = &menus;
  menuBar()->addActions(menus.TopLevel());
}

void FrameWindow::ForgetMenus(const MenuView& menus) {
  if (menus_ == &menus) ClearMenuBar();
}

/// The entries belong to their windows. Another bar in the place of this one would delete them.
void FrameWindow::ClearMenuBar() {
  menus_ = nullptr;
  const auto shown = menuBar()->actions();
  for (QAction* action : shown) menuBar()->removeAction(action);
}

bool FrameWindow::OpenMenu(char16_t letter) {
  QAction* action = menus_ == nullptr ? nullptr : menus_->TopLevelFor(letter);
  if (action == nullptr || action->menu() == nullptr) return false;
  menuBar()->setActiveAction(action);
  // By the key, the first entry becomes the active one without its submenu coming up.
  QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
  QApplication::sendEvent(action->menu(), &down);
  return true;
}

/// The child in front keeps its place in the frame while a dialog is active: its area has nothing
/// to tell when the user turns back to it.
void FrameWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  const bool comes = event->type() == QEvent::ActivationChange && isActiveWindow();
  Form* child = comes && form_ != nullptr ? form_->System().ActiveChild() : nullptr;
  if (child != nullptr) child->UserActivate();
}

void FrameWindow::closeEvent(QCloseEvent* event) {
  event->setAccepted(form_ == nullptr);
  if (form_ != nullptr) form_->UserClose();
}

void FrameWindow::TakeDrag(QDropEvent& event) const {
  event.ignore();
  const auto path = OneFileIn(*event.mimeData());
  if (!path || BehindBox(*this) || form_ == nullptr || !form_->TakesInput() ||
      !form_->TakesFile(*path)) {
    return;
  }
  event.setDropAction(Qt::CopyAction);
  event.accept();
}

void FrameWindow::dragEnterEvent(QDragEnterEvent* event) {
  TakeDrag(*event);
}

/// The program that the file comes from waits until this returns: what asks the user comes later.
void FrameWindow::dropEvent(QDropEvent* event) {
  TakeDrag(*event);
  if (!event->isAccepted()) return;
  const auto take = [this, path = *OneFileIn(*event->mimeData())] {
    if (form_ != nullptr && !BehindBox(*this)) form_->UserDropFile(path);
  };
  QMetaObject::invokeMethod(this, take, Qt::QueuedConnection);
}

}  // namespace tessara
