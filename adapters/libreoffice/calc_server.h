#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>
#include <memory>
#include <string>

#include "adapters/libreoffice/calc_workbook.h"
#include "adapters/libreoffice/loader/office_module.h"
#include "adapters/libreoffice/office_session.h"
#include "adapters/libreoffice/sheet_output.h"

namespace tessara {

/// LibreOffice Calc as the spreadsheet server, hidden, apart from any LibreOffice of the user's.
/// It runs while a workbook is open, and from Prepare to Bind or Dismiss.
class CalcServer : public OfficeModule {
 public:
  explicit CalcServer(std::string officeProgramFolder);
  ~CalcServer() override;
  CalcServer(const CalcServer&) = delete;
  CalcServer& operator=(const CalcServer&) = delete;

  std::shared_ptr<Workbook> Bind(const Text& templatePath) override;
  void SetDestination(const PrintDestination& destination) override;
  void FinishDestination() override;
  void Prepare(const Text& templatePath, const std::stop_token& stop) override;
  void Dismiss() override { prepared_.reset(); }

 private:
  /// Another workbook of the last template.
  std::shared_ptr<CalcWorkbook> Open();
  void Export();
  /// The prepared one, or else a new one.
  std::shared_ptr<OfficeSession> TakeSession();

  std::string officeProgramFolder_;
  Text templatePath_;
  OfficeSession::Context local_;
  std::weak_ptr<OfficeSession> session_;
  std::shared_ptr<OfficeSession> prepared_;
  std::shared_ptr<SheetOutput> output_ = std::make_shared<SheetOutput>();
};

}  // namespace tessara
