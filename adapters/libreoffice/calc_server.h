#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>
#include <memory>
#include <string>

#include "adapters/libreoffice/office_session.h"
#include "adapters/libreoffice/sheet_output.h"
#include "machine/spreadsheet.h"

namespace tessara {

/// LibreOffice Calc as the spreadsheet server, hidden, apart from any LibreOffice of the user's.
/// It runs while a workbook is open.
class CalcServer : public SpreadsheetServer {
 public:
  explicit CalcServer(std::string officeProgramFolder);
  ~CalcServer() override;
  CalcServer(const CalcServer&) = delete;
  CalcServer& operator=(const CalcServer&) = delete;

  /// The caller has looked for server and template.
  void Probe(const Text& templatePath) override { (void)templatePath; }
  std::shared_ptr<Workbook> Bind(const Text& templatePath) override;
  void SetDestination(const PrintDestination& destination) override;
  void FinishDestination() override;

 private:
  std::string officeProgramFolder_;
  OfficeSession::Context local_;
  std::weak_ptr<OfficeSession> session_;
  std::shared_ptr<SheetOutput> output_ = std::make_shared<SheetOutput>();
};

}  // namespace tessara
