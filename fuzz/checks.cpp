// Any bytes as a deck or an import text that is checked, by the first of them; and the text as one
// that is read.

#include "companion/formats/deck_format.h"
#include "companion/formats/texts/import_text_format.h"
#include "fuzz/cards_run.h"

namespace tessara::fuzz {

namespace {

class NoFindings : public Findings {
  void Report(const Place&, Severity, const std::string&) override {}
};

}  // namespace

}  // namespace tessara::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessara;
  if (size == 0) return 0;
  fuzz::NoFindings findings;
  const Source source{"file", std::string(reinterpret_cast<const char*>(data) + 1, size - 1)};
  if (data[0] % 2 == 0) {
    CheckDeck(source, CodePage::Western(), findings);
  } else {
    CheckImportText(source, CodePage::Western(), findings);
    fuzz::ReadAndWriteAgain(FileFormat::kText, data + 1, size - 1);
  }
  return 0;
}
