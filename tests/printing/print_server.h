#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

#include "tests/printing/printed_pdf.h"
#include "tests/support/scratch_folder.h"

namespace tessara::test {

/// A job that has come out of a queue.
struct PrintedJob {
  int copies = 0;
  std::string options;
  std::vector<PrintedPage> pages;

  /// True where the option was set to the value: "sides=one-sided".
  [[nodiscard]] bool Has(const std::string& option) const;
};

/// A print server of the test's own, with its whole state in a scratch folder. Its queues have
/// no printer: they keep what would have been printed. It ends with the process.
class PrintServer {
 public:
  static constexpr const char* kQueue = "cards";
  /// Another queue that works. Its paper is Letter, and its user has settings of his own for it:
  /// three copies, four pages on a sheet, both sides of the paper, fitted and mirrored.
  static constexpr const char* kOtherQueue = "letters";
  /// The first queue with settings to which its user has given a name: two pages on a sheet.
  static constexpr const char* kNamedSettings = "cards/draft";
  /// Takes no jobs.
  static constexpr const char* kRefusingQueue = "refusing";

  static PrintServer& Instance();
  PrintServer();
  ~PrintServer();
  PrintServer(const PrintServer&) = delete;
  PrintServer& operator=(const PrintServer&) = delete;

  /// From now on this process and its children print there and see no other printer.
  void BecomeTheOnlyOne() const;

  /// Waits until so many jobs have come out of the queue, takes them away, in the order of their
  /// printing. Fails the test where they don't come, or more do.
  std::vector<PrintedJob> TakeJobs(const std::string& queue, std::size_t count);

 private:
  void Configure() const;
  void AddQueue(const std::string& name, const std::string& paper, const char* accepting) const;
  void Start();
  void WaitUntilUp() const;
  [[nodiscard]] std::vector<int> JobsOf(const std::string& queue) const;
  [[nodiscard]] PrintedJob ReadJob(const std::string& path) const;

  ScratchFolder folder_;
  pid_t process_ = 0;
};

}  // namespace tessara::test
