// Any bytes as a table of commas.

#include "fuzz/cards_run.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tessara::fuzz::ReadAndWriteAgain(tessara::FileFormat::kCsv, data, size);
  return 0;
}
