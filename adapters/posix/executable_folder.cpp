#include "adapters/posix/executable_folder.h"

#include <system_error>

namespace tessara {

std::filesystem::path ExecutableFolder() {
  std::error_code unknown;
  return std::filesystem::read_symlink("/proc/self/exe", unknown).parent_path();
}

}  // namespace tessara
