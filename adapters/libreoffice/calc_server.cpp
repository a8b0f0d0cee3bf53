#include "adapters/libreoffice/calc_server.h"

#include <com/sun/star/lang/XComponent.hpp>
#include <cppuhelper/bootstrap.hxx>
#include <rtl/bootstrap.hxx>
#include <utility>

#include "adapters/libreoffice/calc_workbook.h"
#include "adapters/libreoffice/uno_text.h"
#include "base/skip_errors.h"

namespace tessara {

namespace {

namespace uno = com::sun::star::uno;
using com::sun::star::lang::XComponent;

/// This process's own side of a connection, which knows all interfaces of the server's.
OfficeSession::Context MakeLocalContext(const std::string& officeProgramFolder) {
  rtl::Bootstrap::set("URE_MORE_TYPES",
                      UnoText(FileUrl(officeProgramFolder + "/types/offapi.rdb")));
  return cppu::defaultBootstrap_InitialComponentContext();
}

}  // namespace

CalcServer::CalcServer(std::string officeProgramFolder)
    : officeProgramFolder_(std::move(officeProgramFolder)),
      local_(MakeLocalContext(officeProgramFolder_)) {}

CalcServer::~CalcServer() {
  try {
    const uno::Reference<XComponent> component(local_, uno::UNO_QUERY);
    if (component.is()) component->dispose();
  } catch (const uno::Exception&) {
    // The program ends: nothing is left to do about it.
  }
}

std::shared_ptr<Workbook> CalcServer::Bind(const Text& templatePath) {
  templatePath_ = templatePath;
  return Open();
}

std::shared_ptr<CalcWorkbook> CalcServer::Open() {
  auto session = session_.lock();
  // A job that failed while it opened still holds its workbook, and so a server that has died.
  if (session == nullptr || session->Lost()) {
    session = TakeSession();
    session_ = session;
  }
  return std::make_shared<CalcWorkbook>(std::move(session), templatePath_, output_);
}

std::shared_ptr<OfficeSession> CalcServer::TakeSession() {
  auto session = std::exchange(prepared_, nullptr);
  const bool usable = session != nullptr && !session->Lost();
  return usable ? session : std::make_shared<OfficeSession>(officeProgramFolder_, local_);
}

void CalcServer::Prepare(const Text& templatePath, const std::stop_token& stop) {
  const auto session = std::make_shared<OfficeSession>(officeProgramFolder_, local_);
  const std::stop_callback end(stop, [&session] { session->End(); });
  // What the server loads for its first page is there for the next one.
  CalcWorkbook(session, templatePath, output_).LayOut()->Export();
  prepared_ = session;
}

void CalcServer::SetDestination(const PrintDestination& destination) {
  output_->SetDestination(destination);
}

void CalcServer::FinishDestination() {
  try {
    Export();
  } catch (const RunTimeError&) {
    SkipErrors([this] { output_->Finish(); });
    throw;
  }
  output_->Finish();
}

void CalcServer::Export() {
  const bool exported = SkipErrors([this] { output_->Export(); });
  // The server has died with the sheets that it had: another one gets them again.
  if (!exported) output_->ExportBy(*Open()->LayOut());
}

}  // namespace tessara
