// Any bytes as a text of the standard format.

#include "fuzz/import_run.h"
#include "import/standard_import.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tessara::fuzz::ImportRun run(data, size);
  tessara::ImportStandard(u"text", run.Context());
  run.CheckOutcome();
  return 0;
}
