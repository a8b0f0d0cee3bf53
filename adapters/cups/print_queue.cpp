#include "adapters/cups/print_queue.h"

#include <cups/cups.h>
#include <memory>

#include "base/run_time_error.h"

namespace tessara {

namespace {

struct CloseConnection {
  void operator()(http_t* connection) const { httpClose(connection); }
};
using Connection = std::unique_ptr<http_t, CloseConnection>;

/// Called when an answer is late: there is no more waiting for it.
int GiveUp(http_t* /*connection*/, void* /*data*/) {
  return 0;
}

Connection Connect(std::chrono::seconds patience) {
  constexpr int kBlocking = 1;
  const auto milliseconds = std::chrono::milliseconds(patience).count();
  Connection connection(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(),
                                     kBlocking, static_cast<int>(milliseconds), nullptr));
  if (connection == nullptr) throw RunTimeError(ErrorNumber::kPrinterError);
  httpSetTimeout(connection.get(), static_cast<double>(patience.count()), GiveUp, nullptr);
  return connection;
}

struct DeleteResponse {
  void operator()(ipp_t* response) const { ippDelete(response); }
};
using Response = std::unique_ptr<ipp_t, DeleteResponse>;

/// The look for a queue goes other ways, and waits anew on each, where it gets no answer on this
/// one: whether there is any, be it an error, is asked first.
void RequireAnswer(http_t* system) {
  const Response response(cupsDoRequest(system, ippNewRequest(IPP_OP_CUPS_GET_DEFAULT), "/"));
  if (response == nullptr) throw RunTimeError(ErrorNumber::kPrinterError);
}

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
  const Connection system = Connect(patience);
  RequireAnswer(system.get());
  const Destination destination = FindQueue(system.get(), queue);
  if (destination == nullptr) throw RunTimeError(ErrorNumber::kPrinterError);
  for (const QueueOption& option : options) Set(*destination, option);
  const int job = cupsPrintFile2(system.get(), destination->name, pdfPath.c_str(), "Tessara",
                                 destination->num_options, destination->options);
  if (job == 0) throw RunTimeError(ErrorNumber::kPrinterError);
}

}  // namespace tessara
