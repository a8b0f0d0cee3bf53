#pragma once

#include <string>

namespace tessara {

/// Sends a PDF file to a print queue, at its own size and on one side of the paper. Raises error
/// 482 where there is no such queue or it takes no job.
void PrintOnQueue(const std::string& queue, const std::string& pdfPath);

}  // namespace tessara
