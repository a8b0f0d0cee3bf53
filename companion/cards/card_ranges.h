#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace tessara {

/// The numbers that ranges like "1-20,25" name, from 1 up to `count`, in their order and each once.
/// Nothing where the text names no numbers or one that is not there.
[[nodiscard]] std::optional<std::vector<int>> CardNumbersIn(std::string_view ranges, int count);

}  // namespace tessara
