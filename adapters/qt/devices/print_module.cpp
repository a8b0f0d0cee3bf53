#include "adapters/qt/devices/print_module.h"

#include "adapters/qt/text/qt_text.h"
#include "base/run_time_error.h"

namespace tessara {

PrintModuleSource::PrintModuleSource(const Text& folder)
    : library_(ToQString(folder) + QLatin1String("/libtessara_qt_print.so")) {}

PrintModule& PrintModuleSource::Module() {
  if (module_ == nullptr) {
    const auto make = reinterpret_cast<MakePrintModule>(library_.resolve(kMakePrintModule));
    if (make == nullptr) throw RunTimeError(ErrorNumber::kPrinterError);
    module_.reset(make());
  }
  return *module_;
}

}  // namespace tessara
