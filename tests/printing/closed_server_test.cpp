// Who may talk to the server could read the user's files through it.

#include <cerrno>
#include <doctest/doctest.h>
#include <string>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "adapters/libreoffice/loader/loaded_spreadsheet.h"
#include "adapters/posix/system_call.h"
#include "base/utf8.h"
#include "tests/printing/server_processes.h"
#include "tests/support/limited_process.h"

namespace tessara {
namespace {

/// For its life new files get these permissions of others.
class Mask {
 public:
  explicit Mask(mode_t mask) : before_(umask(mask)) {}
  Mask(const Mask&) = delete;
  Mask& operator=(const Mask&) = delete;
  ~Mask() { umask(before_); }

 private:
  mode_t before_;
};

int ErrorOfConnecting(const std::string& path) {
  const Descriptor caller(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path.copy(address.sun_path, sizeof address.sun_path - 1);
  const auto* socket = reinterpret_cast<const sockaddr*>(&address);
  return connect(caller.Get(), socket, sizeof address) == 0 ? 0 : errno;
}

TEST_CASE("another user can't talk to the server, of whatever group and under any umask") {
  if (geteuid() != 0) {
    MESSAGE("skipped: only root can be another user");
    return;
  }
  const Text path = FromUtf8(PROGRAM_FOLDER "/Notelet.xlt");
  for (const mode_t mask : {0022U, 0002U, 0000U}) {
    CAPTURE(mask);
    const Mask set(mask);
    LoadedSpreadsheet server{FromUtf8(PROGRAM_FOLDER)};
    std::shared_ptr<Workbook> book;
    // One that starts ahead of its use, too.
    if (mask == 0) {
      server.Prepare(path, {});
    } else {
      book = server.Bind(path);
    }
    for (const std::string& socket : test::WaitForSockets(test::WaitForServer())) {
      CAPTURE(socket);
      CHECK(ErrorOfConnecting(socket) == 0);
      // Another user, but still of this one's group.
      CHECK(test::HoldsForAnyUser([&] { return ErrorOfConnecting(socket) == EACCES; }));
    }
  }
}

}  // namespace
}  // namespace tessara
