#include "adapters/libreoffice/sheet_output.h"

#include <fstream>
#include <iterator>
#include <utility>

#include "adapters/cups/print_queue.h"
#include "adapters/libreoffice/join_pdf.h"
#include "adapters/posix/write_file.h"
#include "base/utf8.h"

namespace tessara {

namespace {

/// What would move the cards, or turn the paper before its time.
constexpr QueueOption kAsTheyStand[] = {{"copies", "1"},
                                        {"print-scaling", "none"},
                                        {"sides", "one-sided"},
                                        {"number-up", "1"},
                                        {"fit-to-page"},
                                        {"fitplot"},
                                        {"scaling"},
                                        {"natural-scaling"},
                                        {"mirror"},
                                        {"position"},
                                        {"landscape"},
                                        {"orientation-requested"}};

std::string ReadAll(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace

void SheetOutput::SetDestination(const PrintDestination& destination) {
  destination_ = destination;
  pages_.clear();
}

void SheetOutput::Print(const std::string& pagePath) {
  if (destination_.printer.empty()) {
    pages_.push_back(ReadAll(pagePath));
  } else {
    PrintOnQueue(ToUtf8(destination_.printer), pagePath, kAsTheyStand);
  }
}

void SheetOutput::Finish() {
  const std::vector<std::string> pages = std::exchange(pages_, {});
  if (!pages.empty()) WriteFile(ToUtf8(destination_.pdfFile), JoinPdf(pages));
}

}  // namespace tessara
