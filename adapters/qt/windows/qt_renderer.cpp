#include "adapters/qt/windows/qt_renderer.h"

#include <QApplication>
#include <QTimer>
#include <QWindow>

#include "adapters/qt/views/boxes/text_area_view.h"
#include "adapters/qt/windows/child_window.h"
#include "adapters/qt/windows/desktop_watch.h"
#include "adapters/qt/windows/dialog_window.h"
#include "adapters/qt/windows/frame_window.h"

namespace tessara {

namespace {

class Following {
 public:
  explicit Following(int& count) : count_(count) { ++count_; }
  Following(const Following&) = delete;
  Following& operator=(const Following&) = delete;
  ~Following() { --count_; }

 private:
  int& count_;
};

/// Ends the loop once a watched widget has been painted and its window brought to the screen.
class FirstPaint : public QObject {
 public:
  explicit FirstPaint(QEventLoop& loop) : loop_(loop) {}

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      QMetaObject::invokeMethod(&loop_, &QEventLoop::quit, Qt::QueuedConnection);
    }
    return false;
  }

 private:
  QEventLoop& loop_;
};

}  // namespace

QtRenderer::QtRenderer(WindowSystem& windows, const QString& pictureFolder)
    : windows_(windows),
      scale_(PixelScale::OfDesktop()),
      pictures_(pictureFolder, Density()),
      context_{scale_, pictures_, captions_},
      keyboard_(windows, [this] { return frame_; }) {
  // The program ends with its frame, whatever else is on screen.
  QApplication::setQuitOnLastWindowClosed(false);
}

QtRenderer::~QtRenderer() {
  const auto left = shown_;
  // All of them first: when one leaves, Qt activates another, whose form may be gone already.
  for (const auto& [form, window] : left) window->Detach();
  for (const auto& [form, window] : left) window->Leave();
  for (const auto& [form, window] : left) delete &window->Top();
}

FormWindow* QtRenderer::WindowOf(const Form& form) const {
  const auto found = shown_.find(&form);
  return found == shown_.end() ? nullptr : found->second;
}

FormWindow& QtRenderer::Make(Form& form) {
  if (form.Kind() == FormKind::kFrame) return MakeFrame(form);
  if (form.Kind() == FormKind::kChild && frame_ != nullptr) {
    return *new ChildWindow(form, frame_->Area(), context_);
  }
  return *new DialogWindow(form, frame_, context_);
}

FrameWindow& QtRenderer::MakeFrame(Form& form) {
  frame_ = new FrameWindow(form, context_);
  QObject::connect(&frame_->Area(), &QMdiArea::subWindowActivated, frame_,
                   [this](QMdiSubWindow* window) {
                     auto* child = dynamic_cast<ChildWindow*>(window);
                     const bool byUser = following_ == 0 && child != nullptr;
                     if (byUser && child->FormOf() != nullptr) child->FormOf()->UserActivate();
                   });
  new DesktopWatch(*frame_, [this] { FollowDesktop(); });
  return *frame_;
}

/// All that is on screen follows at once: a window keeps its place in twips, and its text.
void QtRenderer::FollowDesktop() {
  const Following following(following_);
  const double before = scale_.Factor();
  scale_ = PixelScale::OfDesktop();
  pictures_.SetDensity(Density());
  captions_.Forget();
  const auto change = scale_.Factor() == before ? DesktopChange::kLook : DesktopChange::kScale;
  for (const auto& [form, window] : shown_) window->FollowDesktop(change);
}

/// The most pixels of a screen that a picture's pixel takes.
double QtRenderer::Density() const {
  return scale_.Factor() * qApp->devicePixelRatio();
}

void QtRenderer::FormChanged(Form& form, FormAspect aspect) {
  const Following following(following_);
  FormWindow* window = WindowOf(form);
  const bool comesUp = window == nullptr && aspect == FormAspect::kVisible && form.Visible();
  if (comesUp) {
    window = &Make(form);
    shown_[&form] = window;
    ShowMenus();
  }
  if (window == nullptr) return;
  window->Follow(aspect);
  if (aspect == FormAspect::kVisible && !form.Visible()) QuitModal(form);
  if (aspect != FormAspect::kEnabled) return;
  ShowMenus();
  if (form.Enabled()) FocusChanged(form);
}

void QtRenderer::FormUnloaded(Form& form) {
  const Following following(following_);
  QuitModal(form);
  FormWindow* window = WindowOf(form);
  if (window == nullptr) return;
  DropMenusOf(form);
  shown_.erase(&form);
  if (window == frame_) frame_ = nullptr;
  window->Detach();
  window->Leave();
}

void QtRenderer::ControlChanged(Control& control, Aspect aspect) {
  FormWindow* window = WindowOf(control.Owner());
  if (window != nullptr && window->Surface() != nullptr) window->Surface()->Follow(control, aspect);
}

void QtRenderer::MenuChanged(MenuEntry& entry) {
  const auto found = menus_.find(&entry.Owner());
  if (found != menus_.end()) found->second->Follow(entry);
}

void QtRenderer::ActiveFormChanged(Form* form) {
  const Following following(following_);
  ShowMenus();
  FormWindow* window = form == nullptr ? nullptr : WindowOf(*form);
  if (window == nullptr) return;
  // The focus first: a window that comes forward without one gives it to its first control.
  window->Surface()->TakeFocus();
  window->ComeForward();
}

void QtRenderer::FocusChanged(Form& form) {
  FormWindow* window = WindowOf(form);
  const bool inFront = window != nullptr && windows_.ActiveForm() == &form;
  if (inFront && window->Surface() != nullptr) window->Surface()->TakeFocus();
}

void QtRenderer::WaitUntilSeen(Form& form) {
  constexpr int kLongestWait = 200;  // milliseconds
  FormWindow* window = WindowOf(form);
  if (window == nullptr) return;
  QEventLoop loop;
  FirstPaint paint(loop);
  // What is covered whole by what it holds is not painted itself.
  QList<QWidget*> parts = window->Top().findChildren<QWidget*>();
  parts.append(&window->Top());
  // Where it has been painted as it came up, once more is soon enough.
  const QWindow* shown = window->Top().window()->windowHandle();
  const bool painted = shown != nullptr && shown->isExposed();
  for (QWidget* part : parts) {
    part->installEventFilter(&paint);
    if (painted) part->update();
  }
  QTimer::singleShot(kLongestWait, &loop, &QEventLoop::quit);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
  QGuiApplication::sync();
}

void QtRenderer::ShowMenus() {
  Form* form = windows_.MenuBarForm();
  if (frame_ != nullptr && form != nullptr && WindowOf(*form) != nullptr) {
    frame_->ShowMenus(MenusOf(*form));
  }
}

MenuView& QtRenderer::MenusOf(Form& form) {
  MenuView*& menus = menus_[&form];
  if (menus == nullptr) menus = new MenuView(form, WindowOf(form)->Top());
  return *menus;
}

void QtRenderer::DropMenusOf(const Form& form) {
  const auto found = menus_.find(&form);
  if (found == menus_.end()) return;
  found->second->Detach();
  if (frame_ != nullptr) frame_->ForgetMenus(*found->second);
  menus_.erase(found);
}

void QtRenderer::RunModal(Form& form) {
  QEventLoop loop;
  modalLoops_[&form] = &loop;
  loop.exec();
  modalLoops_.erase(&form);
}

void QtRenderer::QuitModal(const Form& form) {
  const auto found = modalLoops_.find(&form);
  if (found != modalLoops_.end()) found->second->quit();
}

int QtRenderer::LineCount(const TextBox& box) {
  return LineCountOf(box, scale_);
}

QSize QtRenderer::FrameClient() const {
  return frame_ == nullptr ? FrameWindow::OpeningSize(scale_) : frame_->Area().viewport()->size();
}

int QtRenderer::FrameScaleWidth() {
  return scale_.ToTwips(FrameClient().width());
}

int QtRenderer::FrameScaleHeight() {
  return scale_.ToTwips(FrameClient().height());
}

void QtRenderer::ProgramHasEnded(int exitStatus) {
  QCoreApplication::exit(exitStatus);
}

}  // namespace tessara
