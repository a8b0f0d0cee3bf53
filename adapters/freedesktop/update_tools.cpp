#include "adapters/freedesktop/update_tools.h"

#include <csignal>
#include <fcntl.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include "adapters/freedesktop/document_files.h"

namespace tessara {

namespace {

std::string Script() {
  return std::string(R"(update-mime-database "$1/mime"
update-desktop-database "$1/applications"
gtk-update-icon-cache -q -t -f "$1/icons/hicolor"
xdg-mime default )") +
         kDesktopEntryName + " " + kDeckMimeType + "\n";
}

[[noreturn]] void RunTools(const std::string& script, const std::string& folder) {
  const int nowhere = open("/dev/null", O_RDWR | O_CLOEXEC);
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(nowhere, stream);
  setsid();
  signal(SIGPIPE, SIG_DFL);
  execl("/bin/sh", "sh", "-c", script.c_str(), "sh", folder.c_str(), nullptr);
  _exit(1);
}

}  // namespace

void StartUpdateTools(const std::filesystem::path& userData) {
  const std::string script = Script();
  const std::string folder = userData.string();
  // Forked twice: the tools are nobody's to wait for, and leave no dead child behind.
  const pid_t child = fork();
  if (child == 0) {
    if (fork() == 0) RunTools(script, folder);
    _exit(0);
  }
  if (child > 0) waitpid(child, nullptr, 0);
}

}  // namespace tessara
