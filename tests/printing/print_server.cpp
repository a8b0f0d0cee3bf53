#include "tests/printing/print_server.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/folder_entries.h"
#include "tests/support/wait_for.h"

namespace tessara::test {

namespace {

namespace fs = std::filesystem;

constexpr const char* kProgram = "/usr/sbin/cupsd";
constexpr const char* kHelpers = "/usr/lib/cups/daemon";

constexpr std::string_view kConfiguration = R"(Listen FOLDER/socket
LogLevel warn
Browsing No
WebInterface No
DefaultAuthType None
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
)";

constexpr std::string_view kFiles = R"(ServerRoot FOLDER/root
ServerBin FOLDER/bin
RequestRoot FOLDER/spool
TempDir FOLDER/spool/tmp
CacheDir FOLDER/cache
StateDir FOLDER/state
AccessLog FOLDER/access_log
ErrorLog FOLDER/error_log
PageLog FOLDER/page_log
Printcap
SyncOnClose No
)";

/// Keeps a job as QUEUE-NUMBER.pdf; its other arguments beside it, first of all.
constexpr std::string_view kSink = R"(#!/bin/sh
[ $# -gt 0 ] || exit 0
job=FOLDER/jobs/$PRINTER-$1
printf '%s\n%s\n' "$4" "$5" > "$job.arguments"
cat "${6:--}" > "$job.part" && mv "$job.part" "$job.pdf"
)";

constexpr std::string_view kQueueEntry = R"(<Printer NAME>
DeviceURI sink:/NAME
State Idle
Accepting ACCEPTING
Shared No
JobSheets none none
ErrorPolicy abort-job
</Printer>
)";

/// A printer that takes PDF files as they are, so that no filters are needed.
constexpr std::string_view kDescription = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "SINK.PPD"
*Manufacturer: "Sink"
*Product: "(Sink)"
*PSVersion: "(3010.000) 0"
*ModelName: "Sink"
*ShortNickName: "Sink"
*NickName: "Sink"
*ColorDevice: False
*cupsVersion: 2.3
*cupsFilter2: "application/pdf application/pdf 0 -"
*OpenUI *PageSize/Media Size: PickOne
*DefaultPageSize: PAPER
*PageSize A4/A4: ""
*PageSize Letter/US Letter: ""
*CloseUI: *PageSize
*OpenUI *PageRegion/Media Size: PickOne
*DefaultPageRegion: PAPER
*PageRegion A4/A4: ""
*PageRegion Letter/US Letter: ""
*CloseUI: *PageRegion
*DefaultImageableArea: PAPER
*ImageableArea A4: "18 18 577 824"
*ImageableArea Letter: "18 18 594 774"
*DefaultPaperDimension: PAPER
*PaperDimension A4: "595 842"
*PaperDimension Letter: "612 792"
)ppd";

std::string Replaced(std::string_view text, std::string_view what, std::string_view with) {
  std::string replaced(text);
  for (std::size_t at = 0; (at = replaced.find(what, at)) != std::string::npos; at += with.size()) {
    replaced.replace(at, what.size(), with);
  }
  return replaced;
}

}  // namespace

bool PrintedJob::Has(const std::string& option) const {
  return (" " + options + " ").find(" " + option + " ") != std::string::npos;
}

PrintServer& PrintServer::Instance() {
  static PrintServer server;
  return server;
}

PrintServer::PrintServer() {
  Configure();
  Start();
}

PrintServer::~PrintServer() {
  kill(process_, SIGTERM);
  waitpid(process_, nullptr, 0);
}

void PrintServer::Configure() const {
  for (const char* name : {"bin/backend", "root/ppd", "spool/tmp", "cache", "state", "jobs"}) {
    fs::create_directories(folder_ / name);
  }
  const std::string folder = folder_.Path().string();
  folder_.Write("cupsd.conf", Replaced(kConfiguration, "FOLDER", folder));
  folder_.Write("cups-files.conf", Replaced(kFiles, "FOLDER", folder));
  folder_.Write("bin/backend/sink", Replaced(kSink, "FOLDER", folder));
  // Nobody else's: a server that runs as root then runs it as root, who may write here.
  fs::permissions(folder_ / "bin/backend/sink", fs::perms::owner_all);
  fs::create_directory_symlink(kHelpers, folder_ / "bin/daemon");
  // Under its usual name a security profile may keep the server to its usual folders.
  fs::copy_file(kProgram, folder_ / "cupsd");
  AddQueue(kQueue, "A4", "Yes");
  AddQueue(kOtherQueue, "Letter", "Yes");
  folder_.Write(
      "root/lpoptions",
      std::string("Dest ") + kOtherQueue +
          " copies=3 number-up=4 sides=two-sided-long-edge fit-to-page=true mirror=true\nDest " +
          kNamedSettings + " number-up=2\n");
  AddQueue(kRefusingQueue, "A4", "No");
}

void PrintServer::AddQueue(const std::string& name, const std::string& paper,
                           const char* accepting) const {
  const std::string entry = Replaced(kQueueEntry, "NAME", name);
  std::ofstream(folder_ / "root/printers.conf", std::ios::app)
      << Replaced(entry, "ACCEPTING", accepting);
  folder_.Write("root/ppd/" + name + ".ppd", Replaced(kDescription, "PAPER", paper));
}

void PrintServer::Start() {
  const std::string program = folder_ / "cupsd";
  const std::string configuration = folder_ / "cupsd.conf";
  const std::string files = folder_ / "cups-files.conf";
  process_ = fork();
  if (process_ == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    execl(program.c_str(), program.c_str(), "-f", "-c", configuration.c_str(), "-s", files.c_str(),
          nullptr);
    _exit(1);
  }
  WaitUntilUp();
}

void PrintServer::WaitUntilUp() const {
  WaitFor("the print server", [this] {
    if (waitpid(process_, nullptr, WNOHANG) != 0) {
      throw std::runtime_error("the print server has ended: " + folder_.Read("error_log"));
    }
    return fs::exists(folder_ / "socket");
  });
}

void PrintServer::BecomeTheOnlyOne() const {
  setenv("CUPS_SERVER", (folder_ / "socket").c_str(), 1);
  setenv("CUPS_SERVERROOT", (folder_ / "root").c_str(), 1);
}

std::vector<int> PrintServer::JobsOf(const std::string& queue) const {
  std::vector<int> jobs;
  std::error_code unread;
  for (const fs::directory_entry& entry : EntriesOf(folder_ / "jobs", unread)) {
    const fs::path& path = entry.path();
    const std::string prefix = queue + "-";
    if (path.extension() != ".pdf" || !path.stem().string().starts_with(prefix)) continue;
    jobs.push_back(std::stoi(path.stem().string().substr(prefix.size())));
  }
  std::sort(jobs.begin(), jobs.end());
  return jobs;
}

std::vector<PrintedJob> PrintServer::TakeJobs(const std::string& queue, std::size_t count) {
  WaitFor(std::to_string(count) + " jobs", [&] { return JobsOf(queue).size() >= count; });
  std::vector<PrintedJob> jobs;
  for (const int number : JobsOf(queue)) {
    const std::string path = folder_ / ("jobs/" + queue + "-" + std::to_string(number));
    jobs.push_back(ReadJob(path));
    fs::remove(path + ".pdf");
  }
  if (jobs.size() != count) throw std::runtime_error("jobs: " + std::to_string(jobs.size()));
  return jobs;
}

PrintedJob PrintServer::ReadJob(const std::string& path) const {
  PrintedJob job;
  std::ifstream arguments(path + ".arguments");
  arguments >> job.copies >> std::ws;
  std::getline(arguments, job.options);
  job.pages = ReadPdf(path + ".pdf");
  return job;
}

}  // namespace tessara::test
