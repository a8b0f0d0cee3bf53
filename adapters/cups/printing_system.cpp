#include "adapters/cups/printing_system.h"

#include <algorithm>

namespace tessara {

namespace {

using SteadyClock = std::chrono::steady_clock;
using std::chrono::milliseconds;

/// Called when an answer is late: there is no more waiting for it.
int GiveUp(http_t* /*connection*/, void* /*data*/) {
  return 0;
}

PrintConnection Connect(milliseconds patience) {
  constexpr int kBlocking = 1;
  return PrintConnection(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(),
                                      kBlocking, static_cast<int>(patience.count()), nullptr));
}

void SetPatience(http_t* system, milliseconds patience) {
  httpSetTimeout(system, std::chrono::duration<double>(patience).count(), GiveUp, nullptr);
}

struct DeleteResponse {
  void operator()(ipp_t* response) const { ippDelete(response); }
};
using Response = std::unique_ptr<ipp_t, DeleteResponse>;

/// Be the answer an error.
bool Answers(http_t* system) {
  return Response(cupsDoRequest(system, ippNewRequest(IPP_OP_CUPS_GET_DEFAULT), "/")) != nullptr;
}

}  // namespace

PrintConnection ConnectToPrintingSystem(milliseconds patience) {
  // So long the library first waits for the leave to send its question.
  constexpr milliseconds kWaitsBefore{1000};
  constexpr milliseconds kShortest{100};
  const auto start = SteadyClock::now();
  PrintConnection system = Connect(patience);
  if (system == nullptr) return nullptr;
  const auto taken = std::chrono::duration_cast<milliseconds>(SteadyClock::now() - start);
  SetPatience(system.get(), std::max(patience - taken - kWaitsBefore, kShortest));
  if (!Answers(system.get())) return nullptr;
  SetPatience(system.get(), patience);
  return system;
}

void HidePrintingSystem(bool hidden) {
  cupsSetServer(hidden ? kNoPrintingSystem : nullptr);
}

}  // namespace tessara
