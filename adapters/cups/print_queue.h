#pragma once

#include <chrono>
#include <span>
#include <string>

#include "adapters/cups/printing_system.h"

namespace tessara {

/// A setting of a print job: "sides" is "one-sided". Without a value it is not set at all.
struct QueueOption {
  const char* name;
  const char* value = nullptr;
};

/// Sends a PDF file to a print queue, named as CUPS names a destination ("queue" or
/// "queue/instance"), with the user's own options for it but for those given here. Raises error 482
/// where there is no such queue, it takes no job, or the printing system does not answer.
void PrintOnQueue(const std::string& queue, const std::string& pdfPath,
                  std::span<const QueueOption> options,
                  std::chrono::seconds patience = kQueuePatience);

}  // namespace tessara
