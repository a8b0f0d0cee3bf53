#include "adapters/libreoffice/office_process.h"

#include <csignal>
#include <cstdlib>
#include <string_view>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <utility>
#include <vector>

#include "adapters/cups/printing_system.h"
#include "adapters/libreoffice/office_profile.h"
#include "adapters/libreoffice/server_sockets.h"
#include "adapters/libreoffice/uno_text.h"
#include "adapters/posix/process/start_process.h"
#include "base/run_time_error.h"

namespace tessara {

namespace {

/// Exit codes by which the server asks to be started again.
constexpr int kRestartAfterCrash = 79;
constexpr int kRestart = 81;

/// What the server makes is nobody else's, and it dies with the program, also with one that died
/// before the server was told so. Behind the program's number stands the server's command.
constexpr const char* kServerScript =
    "umask 077\n"
    "exec setpriv --pdeathsig KILL"
    " /bin/sh -c '[ \"$PPID\" = \"$0\" ] && exec \"$@\"' \"$@\"";

std::vector<std::string> Command(const std::string& office, const std::filesystem::path& folder) {
  return {"/bin/sh",
          "-c",
          kServerScript,
          "sh",
          std::to_string(getpid()),
          office + "/soffice.bin",
          "--headless",
          "--invisible",
          "--norestore",
          "--nologo",
          "--nodefault",
          "--nolockcheck",
          "-env:UserInstallation=" + FileUrl(ProfileOf(folder).string()),
          "-env:" + std::string(kSocketPath) + "=" + SocketFolder(folder).string(),
          "--accept=pipe,name=" + PipeName(folder) + ";urp"};
}

/// The program's own, but for the folder of temporary files and for the printing system, which the
/// server has no use for and would wait for without a limit: its sheets are exported.
std::vector<std::string> Environment(const std::string& folder,
                                     const std::filesystem::path& fonts) {
  constexpr const char* kFonts = "FONTCONFIG_FILE";
  constexpr std::string_view kTemporary = "TMPDIR=";
  constexpr std::string_view kPrinting = "CUPS_SERVER=";
  std::vector<std::string> environment{std::string(kTemporary) + folder,
                                       std::string(kPrinting) + kNoPrintingSystem};
  // Whoever has chosen the fonts of programs has chosen the server's too.
  if (!fonts.empty() && std::getenv(kFonts) == nullptr)
    environment.push_back(std::string(kFonts) + "=" + fonts.string());
  for (char** variable = environ; *variable != nullptr; ++variable) {
    const std::string_view own(*variable);
    if (!own.starts_with(kTemporary) && !own.starts_with(kPrinting)) environment.emplace_back(own);
  }
  return environment;
}

}  // namespace

OfficeProcess::OfficeProcess(std::string officeProgramFolder)
    : officeProgramFolder_(std::move(officeProgramFolder)) {
  const std::filesystem::path profile = ProfileOf(folder_.Path());
  PrepareProfile(profile, officeProgramFolder_);
  fonts_ = PrepareFonts(profile, officeProgramFolder_);
  Start();
}

OfficeProcess::~OfficeProcess() {
  Kill();
  if (process_ != 0) waitpid(process_, nullptr, 0);
}

void OfficeProcess::Start() {
  Launch launch{Command(officeProgramFolder_, folder_.Path())};
  launch.environment = Environment(folder_.Path().string(), fonts_);
  // It tells the cleaner that the server lives.
  launch.opened = folder_.SignOfLife();
  try {
    process_ = StartProcess(launch);
  } catch (const std::system_error&) {
    throw RunTimeError(ErrorNumber::kAutomationError);
  }
}

bool OfficeProcess::Running() {
  constexpr pid_t kStillRunning = 0;
  const std::lock_guard lock(mutex_);
  int status = 0;
  // Where the program has inherited that its children's ends are ignored, an ended one is no child
  // any more: the wait fails.
  if (process_ != 0 && waitpid(process_, &status, WNOHANG) != kStillRunning) {
    process_ = 0;
    const int code = WIFEXITED(status) ? WEXITSTATUS(status) : 0;
    if (code == kRestart || code == kRestartAfterCrash) Start();
  }
  return process_ != 0;
}

void OfficeProcess::Kill() {
  const std::lock_guard lock(mutex_);
  if (process_ != 0) kill(process_, SIGKILL);
}

}  // namespace tessara
