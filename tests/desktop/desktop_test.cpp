#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QTemporaryDir>
#include <cstddef>
#include <doctest/doctest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include "adapters/posix/session_lock.h"
#include "adapters/qt/devices/qt_desktop.h"
#include "adapters/qt/text/pixel_scale.h"
#include "adapters/qt/text/qt_text.h"
#include "tests/desktop/support/config_folder.h"
#include "tests/support/environment_variable.h"

using namespace tessara;
using namespace tessara::test;

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
  const std::string name = SessionLock::Name();
  qputenv("DISPLAY", ":7.1");
  CHECK(SessionLock::Name() == name);
  qputenv("DISPLAY", ":8");
  CHECK(SessionLock::Name() != name);
}

TEST_CASE("Another runtime folder is another session; without one the display alone counts") {
  const Session session;
  const std::string name = SessionLock::Name();
  const Session other;
  CHECK(SessionLock::Name() != name);
  qputenv("XDG_RUNTIME_DIR", "/nowhere");
  CHECK(SessionLock::Name() == "tessara-" + std::to_string(geteuid()) + "--:7");
}

TEST_CASE("However often a second instance asks, the lock is held, and it leaves no file") {
  const Session session;
  {
    SessionLock first;
    CHECK(first.Acquire());
    for (int count = 0; count < 20; ++count) CHECK_FALSE(SessionLock().Acquire());
    CHECK(QDir(session.folder.path()).isEmpty());
  }
  CHECK(SessionLock().Acquire());
  CHECK(QDir(session.folder.path()).isEmpty());
}

TEST_CASE("A stranger who has taken the name is not in the way") {
  const Session session;
  const std::string name = SessionLock::Name();
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  name.copy(address.sun_path + 1, name.size());
  const int stranger = socket(AF_UNIX, SOCK_STREAM, 0);
  const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
  REQUIRE(bind(stranger, reinterpret_cast<const sockaddr*>(&address), length) == 0);
  CHECK(SessionLock().Acquire());
  close(stranger);
}

TEST_CASE("Where no lock can be made nothing is in the way") {
  const Session session;
  qputenv("DISPLAY", QByteArray(300, 'x'));
  SessionLock lock;
  CHECK(lock.Acquire());
}

TEST_CASE("Opening a file that is not there is told as such") {
  QtDesktop desktop(nullptr);
  CHECK(desktop.Open(u"/no such file.bmp") == kOpenFileNotFound);
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

TEST_CASE("The folder for documents is the user's, and the home where there is none") {
  const QTemporaryDir home;
  const EnvironmentVariable variable("HOME", home.path().toStdString());
  const ConfigFolder noUserFolders;
  const QtDesktop desktop(nullptr);
  CHECK(desktop.DocumentsFolder() == FromQString(home.path()));
  QDir(home.path()).mkdir("Documents");
  CHECK(desktop.DocumentsFolder() == FromQString(home.filePath("Documents")));
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
