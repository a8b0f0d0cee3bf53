#include "platform/libreoffice/print_queue.h"

#include <cups/cups.h>
#include <memory>

#include "platform/run_time_error.h"

namespace tessara {

namespace {

struct FreeDestination {
  void operator()(cups_dest_t* destination) const { cupsFreeDests(1, destination); }
};
using Destination = std::unique_ptr<cups_dest_t, FreeDestination>;

}  // namespace

void PrintOnQueue(const std::string& queue, const std::string& pdfPath) {
  const Destination destination(cupsGetNamedDest(CUPS_HTTP_DEFAULT, queue.c_str(), nullptr));
  if (destination == nullptr) throw RunTimeError(ErrorNumber::kPrinterError);
  // The user's own options for the queue, but for what would move the cards or turn the paper.
  destination->num_options =
      cupsAddOption("print-scaling", "none", destination->num_options, &destination->options);
  destination->num_options =
      cupsAddOption("sides", "one-sided", destination->num_options, &destination->options);
  const int job = cupsPrintFile(destination->name, pdfPath.c_str(), "Tessara",
                                destination->num_options, destination->options);
  if (job == 0) throw RunTimeError(ErrorNumber::kPrinterError);
}

}  // namespace tessara
