#include <QApplication>
#include <QCursor>
#include <QTemporaryDir>
#include <doctest/doctest.h>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/qt/pixel_scale.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/session_lock.h"

using namespace tessara;

namespace {

/// A session of its own: its runtime folder and its display.
struct Session {
  QTemporaryDir folder;
  Session() {
    qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit());
    qputenv("DISPLAY", ":7");
  }
};

}  // namespace

TEST_CASE("The second instance of a session sees the first, until it is gone") {
  const Session session;
  QtDesktop second(nullptr);
  {
    QtDesktop first(nullptr);
    CHECK_FALSE(first.PreviousInstance());
    CHECK_FALSE(first.PreviousInstance());
    CHECK(second.PreviousInstance());
  }
  CHECK_FALSE(second.PreviousInstance());
}

TEST_CASE("The lock of a program that dies is free") {
  const Session session;
  const pid_t program = fork();
  if (program == 0) {
    SessionLock lock;
    _exit(lock.Acquire() ? 0 : 1);
  }
  int status = -1;
  waitpid(program, &status, 0);
  CHECK(status == 0);
  SessionLock lock;
  CHECK(lock.Acquire());
}

TEST_CASE("Another display is another session, another screen of it is not") {
  const Session session;
  const std::string path = SessionLock::Path();
  CHECK(path == session.folder.path().toStdString() + "/tessara-:7.lock");
  qputenv("DISPLAY", ":7.1");
  CHECK(SessionLock::Path() == path);
  qputenv("DISPLAY", ":8");
  CHECK(SessionLock::Path() != path);
}

TEST_CASE("Without a runtime folder the lock is the user's in the temporary folder") {
  const Session session;
  qputenv("XDG_RUNTIME_DIR", "/nowhere");
  qputenv("TMPDIR", session.folder.path().toLocal8Bit());
  CHECK(SessionLock::Path() ==
        session.folder.path().toStdString() + "/tessara-" + std::to_string(getuid()) + "-:7.lock");
  qunsetenv("TMPDIR");
}

TEST_CASE("Where no lock can be made nothing is in the way") {
  const Session session;
  qputenv("DISPLAY", QByteArray(300, 'x'));
  SessionLock lock;
  CHECK(lock.Acquire());
}

TEST_CASE("Opening a file that is not there is told as such") {
  QtDesktop desktop(nullptr);
  CHECK(desktop.Open(u"/no such file.bmp", u"C:\\", ShowState::kMaximised) == kOpenFileNotFound);
}

TEST_CASE("Help is shown where its file is, and else silently not") {
  const QTemporaryDir folder;
  Text shown;
  QtDesktop desktop([&shown](const Text& path) { shown = path; });
  desktop.ShowHelp(FromQString(folder.filePath("none.chm")));
  CHECK(shown.empty());
  desktop.ShowHelp(FromQString(folder.path()));
  CHECK(shown == FromQString(folder.path()));
}

TEST_CASE("The mouse pointer is the hourglass until it is set back, however often") {
  QtDesktop desktop(nullptr);
  desktop.SetMousePointer(MousePointer::kHourglass);
  desktop.SetMousePointer(MousePointer::kHourglass);
  REQUIRE(QApplication::overrideCursor() != nullptr);
  CHECK(QApplication::overrideCursor()->shape() == Qt::WaitCursor);
  desktop.SetMousePointer(MousePointer::kDefault);
  CHECK(QApplication::overrideCursor() == nullptr);
  desktop.SetMousePointer(MousePointer::kDefault);
}
