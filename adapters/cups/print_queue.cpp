#include "adapters/cups/print_queue.h"

#include <cups/cups.h>
#include <memory>

#include "adapters/cups/printing_system.h"
#include "base/run_time_error.h"

namespace tessara {

namespace {

struct FreeDestination {
  void operator()(cups_dest_t* destination) const { cupsFreeDests(1, destination); }
};
using Destination = std::unique_ptr<cups_dest_t, FreeDestination>;

/// "cards/draft" is the queue "cards" with the settings that its user has named "draft".
Destination FindQueue(http_t* system, const std::string& queue) {
  const std::size_t slash = queue.find('/');
  const bool named = slash != std::string::npos;
  const std::string settings = named ? queue.substr(slash + 1) : "";
  return Destination(
      cupsGetNamedDest(system, queue.substr(0, slash).c_str(), named ? settings.c_str() : nullptr));
}

void Set(cups_dest_t& destination, const QueueOption& option) {
  destination.num_options =
      option.value == nullptr
          ? cupsRemoveOption(option.name, destination.num_options, &destination.options)
          : cupsAddOption(option.name, option.value, destination.num_options, &destination.options);
}

}  // namespace

void PrintOnQueue(const std::string& queue, const std::string& pdfPath,
                  std::span<const QueueOption> options, std::chrono::seconds patience) {
  const PrintConnection system = ConnectToPrintingSystem(patience);
  if (system == nullptr) throw RunTimeError(ErrorNumber::kPrinterError);
  const Destination destination = FindQueue(system.get(), queue);
  if (destination == nullptr) throw RunTimeError(ErrorNumber::kPrinterError);
  for (const QueueOption& option : options) Set(*destination, option);
  const int job = cupsPrintFile2(system.get(), destination->name, pdfPath.c_str(), "Tessara",
                                 destination->num_options, destination->options);
  if (job == 0) throw RunTimeError(ErrorNumber::kPrinterError);
}

}  // namespace tessara
