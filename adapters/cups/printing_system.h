#pragma once

#include <chrono>
#include <cups/cups.h>
#include <memory>

namespace tessara {

/// Most that the printing system may keep the program waiting for each of its answers.
inline constexpr std::chrono::seconds kQueuePatience{10};

struct CloseConnection {
  void operator()(http_t* connection) const { httpClose(connection); }
};
/// Each late answer on it is given up.
using PrintConnection = std::unique_ptr<http_t, CloseConnection>;

/// A connection to a printing system that has answered on it, all within `patience`. Null where
/// there is none, or it keeps silent: whoever asks without a limit could wait for minutes.
[[nodiscard]] PrintConnection ConnectToPrintingSystem(
    std::chrono::milliseconds patience = kQueuePatience);

/// A name under which there is none and never will be.
inline constexpr const char* kNoPrintingSystem = "/dev/null/none";

/// Hidden, what asks for printers on this thread hears at once that there are none.
void HidePrintingSystem(bool hidden);

}  // namespace tessara
