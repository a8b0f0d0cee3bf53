#pragma once

#include <com/sun/star/uno/Any.hxx>
#include <memory>

#include "adapters/libreoffice/sheet_content.h"
#include "adapters/libreoffice/sheet_layout.h"
#include "adapters/libreoffice/sheet_output.h"
#include "machine/spreadsheet.h"

namespace tessara {

/// A sheet of an open workbook; after the workbook's end every operation raises error 440. What is
/// written is given to the server with the print, all at once: what it refuses is told then.
class CalcWorksheet : public Worksheet {
 public:
  CalcWorksheet(std::shared_ptr<SheetLayout> layout, std::shared_ptr<SheetOutput> output);

  void SetFontName(const Text& range, const Text& name) override;
  void SetFontSize(const Text& range, std::int16_t points) override;
  void SetCell(std::int16_t row, std::int16_t column, const Text& value) override;
  void PrintOut() override;

 private:
  /// Raises error 440 where it is closed.
  void RequireWorkbook() const;
  void SetFont(const Text& range, const char* property, const com::sun::star::uno::Any& value);

  std::shared_ptr<SheetLayout> layout_;
  std::shared_ptr<SheetOutput> output_;
  SheetContent content_;
};

}  // namespace tessara
