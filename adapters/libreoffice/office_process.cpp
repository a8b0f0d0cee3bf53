#include "adapters/libreoffice/office_process.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <string_view>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include "adapters/cups/printing_system.h"
#include "adapters/libreoffice/file_url.h"
#include "adapters/libreoffice/office_profile.h"
#include "adapters/libreoffice/server_sockets.h"
#include "base/run_time_error.h"

namespace tessara {

namespace {

/// Exit codes by which the server asks to be started again.
constexpr int kRestartAfterCrash = 79;
constexpr int kRestart = 81;

/// The first one behind standard input, output and error: it tells the cleaner that the server
/// lives.
constexpr int kSignOfLife = 3;

/// What the server makes is nobody else's.
constexpr mode_t kMask = S_IRWXG | S_IRWXO;

/// A command with its environment as the system wants them: made before the fork, because behind
/// it nothing may be allocated.
class Command {
 public:
  Command(std::vector<std::string> arguments, std::vector<std::string> environment)
      : arguments_(std::move(arguments)), environment_(std::move(environment)) {
    for (std::string& argument : arguments_) argv_.push_back(argument.data());
    for (std::string& variable : environment_) envp_.push_back(variable.data());
    argv_.push_back(nullptr);
    envp_.push_back(nullptr);
  }
  Command(const Command&) = delete;
  Command& operator=(const Command&) = delete;

  void Execute() const { execve(argv_.front(), argv_.data(), envp_.data()); }

 private:
  std::vector<std::string> arguments_;
  std::vector<std::string> environment_;
  std::vector<char*> argv_;
  std::vector<char*> envp_;
};

std::vector<std::string> Arguments(const std::string& office, const std::filesystem::path& folder) {
  return {office + "/soffice.bin",
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

void KeepOpen(int signOfLife) {
  const bool there = signOfLife == kSignOfLife;
  there ? fcntl(signOfLife, F_SETFD, 0) : dup2(signOfLife, kSignOfLife);
}

/// Between fork and execution: only what is safe there.
[[noreturn]] void BecomeServer(const Command& command, pid_t parent, int signOfLife) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (getppid() != parent) _exit(1);  // died before the line above
  umask(kMask);
  KeepOpen(signOfLife);
  const int nothing = open("/dev/null", O_RDWR);
  dup2(nothing, STDIN_FILENO);
  dup2(nothing, STDOUT_FILENO);
  dup2(nothing, STDERR_FILENO);
  close_range(kSignOfLife + 1, ~0U, 0);
  signal(SIGPIPE, SIG_DFL);
  command.Execute();
  _exit(1);
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
  const Command command(Arguments(officeProgramFolder_, folder_.Path()),
                        Environment(folder_.Path().string(), fonts_));
  const pid_t parent = getpid();
  const pid_t child = fork();
  if (child < 0) throw RunTimeError(ErrorNumber::kAutomationError);
  if (child == 0) BecomeServer(command, parent, folder_.SignOfLife());
  process_ = child;
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
