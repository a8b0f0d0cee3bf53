#pragma once

#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <memory>

#include "adapters/libreoffice/office_session.h"
#include "adapters/libreoffice/sheet_layout.h"
#include "adapters/libreoffice/sheet_output.h"
#include "machine/spreadsheet.h"

namespace tessara {

/// An open template. It holds the server until it is closed.
class CalcWorkbook : public Workbook {
 public:
  /// Raises error 440 where the server can't open the file as a spreadsheet.
  CalcWorkbook(std::shared_ptr<OfficeSession> session, const Text& path,
               std::shared_ptr<SheetOutput> output);
  ~CalcWorkbook() override;
  CalcWorkbook(const CalcWorkbook&) = delete;
  CalcWorkbook& operator=(const CalcWorkbook&) = delete;

  std::shared_ptr<Worksheet> ActiveSheet() override;
  /// The active sheet as the server lays it out.
  std::shared_ptr<SheetLayout> LayOut();
  /// A hidden document never asks anything, so there is nothing to switch.
  void SetDisplayAlerts(bool show) override { (void)show; }
  void Close() override;

 private:
  void CloseQuietly();

  using Document = com::sun::star::uno::Reference<com::sun::star::sheet::XSpreadsheetDocument>;

  std::shared_ptr<OfficeSession> session_;
  Document document_;
  std::shared_ptr<SheetOutput> output_;
};

}  // namespace tessara
