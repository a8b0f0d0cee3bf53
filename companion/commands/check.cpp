#include "companion/commands/check.h"

#include <algorithm>
#include <cstdio>

#include "companion/cards/complaints.h"
#include "companion/commands/input.h"
#include "companion/commands/reporter.h"
#include "companion/formats/deck_format.h"
#include "companion/formats/texts/import_text_format.h"

namespace tessara {

namespace {

/// A line on standard output for each finding.
class FindingsOnOutput : public Findings {
 public:
  void Report(const Place& place, Severity, const std::string& what) override {
    std::printf("%s\n", MessageAt(place, what).c_str());
    any_ = true;
  }
  [[nodiscard]] bool Any() const { return any_; }

 private:
  bool any_ = false;
};

void CheckSource(FileFormat format, const Source& source, const CodePage& codePage,
                 Findings& findings) {
  if (format == FileFormat::kDeck) return CheckDeck(source, codePage, findings);
  if (format == FileFormat::kText) return CheckImportText(source, codePage, findings);
  throw Refused({&source.name}, "it is neither a deck nor an import text");
}

int CheckFile(const std::string& file, const std::string& from, const CodePage& codePage) {
  try {
    const FileFormat format = FormatOf(file, from);
    const Source source = ReadInput(file);
    FindingsOnOutput findings;
    CheckSource(format, source, codePage, findings);
    return findings.Any() ? kHasFindings : kClean;
  } catch (const Refused& refusal) {
    Reporter::Say(refusal.what());
    return kUnreadable;
  }
}

}  // namespace

int Check(const std::vector<std::string>& files, const std::string& from,
          const CodePage& codePage) {
  int status = kClean;
  for (const std::string& file : files) status = std::max(status, CheckFile(file, from, codePage));
  if (std::fflush(stdout) != 0) throw Refused({}, "standard output cannot be written");
  return status;
}

}  // namespace tessara
