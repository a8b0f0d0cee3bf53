#include "adapters/libreoffice/sheet_output.h"

#include <filesystem>
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

/// Sheets that the server keeps before it exports them: more would take it longer than it is given.
constexpr std::size_t kMostKept = 100;

std::string ReadAll(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace

void SheetOutput::SetDestination(const PrintDestination& destination) {
  *this = SheetOutput();
  destination_ = destination;
}

void SheetOutput::Print(const std::shared_ptr<SheetLayout>& layout, const SheetContent& content) {
  if (!destination_.printer.empty()) {
    PrintOnQueue(ToUtf8(destination_.printer), layout->Export().string(), kAsTheyStand);
    return;
  }
  layout->Keep();
  layout_ = layout;
  kept_.push_back(content);
  if (kept_.size() == kMostKept) Export();
}

void SheetOutput::Export() {
  if (kept_.empty()) return;
  pages_.push_back(ReadAll(layout_->Export()));
  kept_.clear();
}

void SheetOutput::ExportBy(SheetLayout& other) {
  for (const SheetContent& sheet : kept_) {
    other.Show(sheet);
    other.Keep();
  }
  pages_.push_back(ReadAll(other.Export()));
  kept_.clear();
}

void SheetOutput::Finish() {
  const SheetOutput job = std::exchange(*this, SheetOutput());
  if (!job.pages_.empty()) WriteFile(ToUtf8(job.destination_.pdfFile), JoinPdf(job.pages_));
}

}  // namespace tessara
