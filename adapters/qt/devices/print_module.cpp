#include "adapters/qt/devices/print_module.h"

#include "base/run_time_error.h"

namespace tessara {

PrintModuleSource::PrintModuleSource(const Text& folder)
    : file_(folder, "libtessara_qt_print.so") {}

PrintModule& PrintModuleSource::Module() {
  if (module_ == nullptr) {
    const auto make = file_.Find<MakePrintModule>(kMakePrintModule);
    if (make == nullptr) throw RunTimeError(ErrorNumber::kPrinterError);
    module_.reset(make());
  }
  return *module_;
}

}  // namespace tessara
