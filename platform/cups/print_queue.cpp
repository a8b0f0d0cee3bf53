#include "platform/cups/print_queue.h"

#include <cups/cups.h>
#include <memory>

#include "platform/run_time_error.h"

namespace tessara {

namespace {

struct FreeDestination {
  void operator()(cups_dest_t* destination) const { cupsFreeDests(1, destination); }
};
using Destination = std::unique_ptr<cups_dest_t, FreeDestination>;

void Set(cups_dest_t& destination, const QueueOption& option) {
  destination.num_options =
      option.value == nullptr
          ? cupsRemoveOption(option.name, destination.num_options, &destination.options)
          : cupsAddOption(option.name, option.value, destination.num_options, &destination.options);
}

}  // namespace

void PrintOnQueue(const std::string& queue, const std::string& pdfPath,
                  std::span<const QueueOption> options) {
  const Destination destination(cupsGetNamedDest(CUPS_HTTP_DEFAULT, queue.c_str(), nullptr));
  if (destination == nullptr) throw RunTimeError(ErrorNumber::kPrinterError);
  for (const QueueOption& option : options) Set(*destination, option);
  const int job = cupsPrintFile(destination->name, pdfPath.c_str(), "Tessara",
                                destination->num_options, destination->options);
  if (job == 0) throw RunTimeError(ErrorNumber::kPrinterError);
}

}  // namespace tessara
