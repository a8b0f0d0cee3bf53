#include "adapters/libreoffice/office_session.h"

#include <chrono>
#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/bridge/UnoUrlResolver.hpp>
#include <com/sun/star/connection/NoConnectException.hpp>
#include <com/sun/star/document/MacroExecMode.hpp>
#include <com/sun/star/document/UpdateDocMode.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <rtl/bootstrap.hxx>
#include <thread>
#include <utility>

#include "adapters/libreoffice/server_sockets.h"
#include "adapters/libreoffice/uno_text.h"

namespace tessara {

namespace {

namespace uno = com::sun::star::uno;
namespace document = com::sun::star::document;
using com::sun::star::bridge::UnoUrlResolver;
using com::sun::star::connection::NoConnectException;
using com::sun::star::frame::Desktop;

constexpr std::chrono::milliseconds kBetweenTries{20};

}  // namespace

OfficeSession::OfficeSession(std::string officeProgramFolder, const Context& local)
    : process_(std::move(officeProgramFolder)), watchdog_(process_), local_(local) {}

OfficeSession::Component OfficeSession::Open(const std::string& path) {
  if (!desktop_.is()) desktop_ = Connect();
  return desktop_->loadComponentFromURL(
      UnoText(FileUrl(path)), "_blank", 0,
      MakeProperties({Property("Hidden", true), Property("AsTemplate", true),
                      Property("MacroExecutionMode", document::MacroExecMode::NEVER_EXECUTE),
                      Property("UpdateDocMode", document::UpdateDocMode::NO_UPDATE)}));
}

OfficeSession::Loader OfficeSession::Connect() {
  return {Desktop::create(WaitForPipe()), uno::UNO_QUERY_THROW};
}

/// The pipe is there a while after the process. The watchdog ends a server that never opens one.
OfficeSession::Context OfficeSession::WaitForPipe() {
  const std::filesystem::path& folder = Folder();
  rtl::Bootstrap::set(UnoText(std::string(kSocketPath)), UnoText(SocketFolder(folder).string()));
  const rtl::OUString url =
      UnoText("uno:pipe,name=" + PipeName(folder) + ";urp;StarOffice.ComponentContext");
  const auto resolver = UnoUrlResolver::create(local_);
  while (process_.Running()) {
    try {
      if (OwnsPipe(folder)) return {resolver->resolve(url), uno::UNO_QUERY_THROW};
    } catch (const NoConnectException&) {
      // Made, and not listened on yet.
    }
    std::this_thread::sleep_for(kBetweenTries);
  }
  throw RunTimeError(ErrorNumber::kAutomationError);
}

}  // namespace tessara
