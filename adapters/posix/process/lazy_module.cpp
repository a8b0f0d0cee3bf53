#include "adapters/posix/process/lazy_module.h"

#include <dlfcn.h>
#include <filesystem>
#include <system_error>

#include "base/utf8.h"

namespace tessara {

LazyModule::LazyModule(const Text& folder, const char* fileName)
    : path_(ToUtf8(folder) + "/" + fileName) {}

bool LazyModule::Exists() const {
  std::error_code unknown;
  return std::filesystem::exists(path_, unknown);
}

void* LazyModule::Address(const char* name) const {
  void* const module = dlopen(path_.c_str(), RTLD_NOW | RTLD_LOCAL);
  return module == nullptr ? nullptr : dlsym(module, name);
}

}  // namespace tessara
