// Any bytes as a text of the extended format.

#include "fuzz/import_run.h"
#include "import/extended_import.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tessara::fuzz::ImportRun run(data, size);
  tessara::ImportExtended(u"text", run.Context());
  run.CheckOutcome();
  return 0;
}
