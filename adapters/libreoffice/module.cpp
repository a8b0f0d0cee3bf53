#include <com/sun/star/uno/Exception.hpp>
#include <type_traits>

#include "adapters/libreoffice/calc_server.h"
#include "adapters/libreoffice/loader/office_module.h"
#include "base/run_time_error.h"

extern "C" __attribute__((visibility("default"))) tessara::OfficeModule* tessara_make_office_module(
    const char* officeProgramFolder) {
  try {
    return new tessara::CalcServer(officeProgramFolder);
  } catch (const com::sun::star::uno::Exception&) {
    throw tessara::RunTimeError(tessara::ErrorNumber::kAutomationClassNotFound);
  }
}

static_assert(std::is_same_v<decltype(&tessara_make_office_module), tessara::MakeOfficeModule>);
