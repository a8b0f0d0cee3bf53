#include <com/sun/star/uno/Exception.hpp>

#include "adapters/libreoffice/calc_server.h"
#include "base/run_time_error.h"

/// What the loading program asks for by its name. Raises error 432 where the server's libraries
/// are there but can't be used.
extern "C" __attribute__((visibility("default"))) tessara::OfficeModule* tessara_make_office_module(
    const char* officeProgramFolder) {
  try {
    return new tessara::CalcServer(officeProgramFolder);
  } catch (const com::sun::star::uno::Exception&) {
    throw tessara::RunTimeError(tessara::ErrorNumber::kAutomationClassNotFound);
  }
}
