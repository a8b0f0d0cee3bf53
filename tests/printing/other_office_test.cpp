#include <csignal>
#include <cstdio>
#include <doctest/doctest.h>
#include <filesystem>
#include <unistd.h>

#include "adapters/libreoffice/loader/office_location.h"
#include "tests/printing/office_fixture.h"
#include "tests/printing/server_processes.h"
#include "tests/support/wait_for.h"

namespace tessara {
namespace {

constexpr const char* kDocument = R"(<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0" office:version="1.2"
 office:mimetype="application/vnd.oasis.opendocument.spreadsheet">
<office:body><office:spreadsheet><table:table table:name="One">
<table:table-row><table:table-cell/></table:table-row>
</table:table></office:spreadsheet></office:body></office:document>
)";

/// A LibreOffice as a user has it, with its usual profile in a home of its own and a document open.
/// A grandchild in a group of its own, so that it is none of the servers of this process.
class UsersOffice {
 public:
  UsersOffice() {
    folder_.Write("letter.fods", kDocument);
    Start();
    test::WaitFor("the user's document", [this] { return HasDocument(); });
  }
  ~UsersOffice() { kill(-process_, SIGKILL); }
  UsersOffice(const UsersOffice&) = delete;
  UsersOffice& operator=(const UsersOffice&) = delete;

  [[nodiscard]] bool Runs() const { return kill(-process_, 0) == 0; }
  /// The document is open as long as its lock stands beside it.
  [[nodiscard]] bool HasDocument() const {
    return std::filesystem::exists(folder_ / ".~lock.letter.fods#");
  }

 private:
  void Start() {
    const std::string home = folder_.Path();
    const std::string command = "SAL_USE_VCLPLUGIN=svp HOME=" + home + " setsid " +
                                OfficeProgramFolder() + "/soffice --norestore --nologo " + home +
                                "/letter.fods >" + home + "/output 2>&1 & echo $!";
    FILE* shell = popen(command.c_str(), "r");
    REQUIRE(shell != nullptr);
    REQUIRE(fscanf(shell, "%d", &process_) == 1);
    pclose(shell);
  }

  test::ScratchFolder folder_;
  pid_t process_ = 0;
};

TEST_CASE("the user's own LibreOffice and its document stay open, whatever becomes of a job") {
  const UsersOffice users;
  test::OfficeFixture fixture(1);
  fixture.server.before = [](const std::string& operation) {
    if (operation != "print") return;
    for (const pid_t process : test::ServerProcesses()) kill(process, SIGKILL);
  };
  CHECK(fixture.Print() == "Cancel Printing");
  fixture.server.before = [](const std::string&) {};
  CHECK(fixture.Print() == "PRINT");
  CHECK(users.Runs());
  CHECK(users.HasDocument());
}

}  // namespace
}  // namespace tessara
