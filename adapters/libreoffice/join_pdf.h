#pragma once

#include <string>
#include <vector>

namespace tessara {

/// One PDF document with the pages of all, in order. Raises error 482 where one is damaged.
[[nodiscard]] std::string JoinPdf(const std::vector<std::string>& documents);

}  // namespace tessara
