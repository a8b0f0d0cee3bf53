#include "adapters/qt/windows/desktop_watch.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <utility>

namespace tessara {

DesktopWatch::DesktopWatch(QWidget& window, std::function<void()> changed)
    : QObject(&window), changed_(std::move(changed)) {
  window.installEventFilter(this);
  FollowScreens(window);
}

void DesktopWatch::FollowScreens(QWidget& window) {
  // Its window of the desktop, which is not there before.
  window.winId();
  QObject::connect(window.windowHandle(), &QWindow::screenChanged, this, [this] { NoteChange(); });
  const auto follow = [this](QScreen* screen) {
    for (const auto changed :
         {&QScreen::logicalDotsPerInchChanged, &QScreen::physicalDotsPerInchChanged}) {
      QObject::connect(screen, changed, this, [this] { NoteChange(); });
    }
  };
  for (QScreen* screen : QGuiApplication::screens()) follow(screen);
  QObject::connect(qApp, &QGuiApplication::screenAdded, this, follow);
}

bool DesktopWatch::eventFilter(QObject* /*watched*/, QEvent* event) {
  switch (event->type()) {
    case QEvent::ApplicationFontChange:
    case QEvent::ApplicationPaletteChange:
    case QEvent::FontChange:
    case QEvent::PaletteChange:
      NoteChange();
      break;
    default:
      break;
  }
  return false;
}

void DesktopWatch::NoteChange() {
  if (std::exchange(noted_, true)) return;
  const auto tell = [this] {
    noted_ = false;
    changed_();
  };
  QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

}  // namespace tessara
