// What the loadable module offers to the program.

#include <type_traits>

#include "adapters/qt/devices/print_module.h"
#include "adapters/qt/print/print_dialog.h"
#include "adapters/qt/print/qt_print_surface.h"

namespace tessara {

namespace {

class QtPrintModule : public PrintModule {
 public:
  std::optional<PrinterChoice> AskPrinter(QWidget* parent) override { return dialog_.Ask(parent); }
  PrintSurface& Surface() override { return surface_; }

 private:
  PrintDialog dialog_;
  QtPrintSurface surface_;
};

}  // namespace

}  // namespace tessara

extern "C" Q_DECL_EXPORT tessara::PrintModule* tessara_make_print_module() {
  return new tessara::QtPrintModule;
}

static_assert(std::is_same_v<decltype(&tessara_make_print_module), tessara::MakePrintModule>);
