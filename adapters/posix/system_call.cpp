#include "adapters/posix/system_call.h"

namespace tessara {

void WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto written =
        Checked(Uninterrupted([&] { return write(descriptor, bytes.data(), bytes.size()); }));
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

}  // namespace tessara
