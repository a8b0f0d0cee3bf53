#pragma once

#include <span>
#include <string>

namespace tessara {

/// A setting of a print job: "sides" is "one-sided". Without a value it is not set at all.
struct QueueOption {
  const char* name;
  const char* value = nullptr;
};

/// Sends a PDF file to a print queue, with the user's own options for the queue but for
/// those given here. Raises error 482 where there is no such queue or it takes no job.
void PrintOnQueue(const std::string& queue, const std::string& pdfPath,
                  std::span<const QueueOption> options);

}  // namespace tessara
