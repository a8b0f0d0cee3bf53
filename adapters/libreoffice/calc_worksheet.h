#pragma once

#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/uno/Any.hxx>
#include <memory>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "adapters/libreoffice/office_session.h"
#include "adapters/libreoffice/sheet_output.h"
#include "machine/spreadsheet.h"

namespace tessara {

/// A sheet of an open workbook; after the workbook's end every operation raises error 440.
class CalcWorksheet : public Worksheet {
 public:
  using Sheet = com::sun::star::uno::Reference<com::sun::star::sheet::XSpreadsheet>;
  using Document = com::sun::star::uno::Reference<com::sun::star::sheet::XSpreadsheetDocument>;

  CalcWorksheet(const std::shared_ptr<OfficeSession>& session, const Document& document,
                const Sheet& sheet, std::shared_ptr<SheetOutput> output);

  void SetFontName(const Text& range, const Text& name) override;
  void SetFontSize(const Text& range, std::int16_t points) override;
  void SetCell(std::int16_t row, std::int16_t column, const Text& value) override;
  void PrintOut() override;

 private:
  /// Raises error 440 where the workbook is closed.
  [[nodiscard]] std::shared_ptr<OfficeSession> Session() const;
  void SetFont(const Text& range, const char* property, const com::sun::star::uno::Any& value);
  void ApplyFonts();

  /// Row and column count from 1.
  struct CellPlace {
    std::int16_t row;
    std::int16_t column;
    bool operator<(const CellPlace& other) const {
      return std::tie(row, column) < std::tie(other.row, other.column);
    }
  };
  void Align(const CellPlace& place);

  struct FontSetting {
    Text range;
    std::string property;
    com::sun::star::uno::Any value;
    bool operator==(const FontSetting&) const = default;
  };

  std::weak_ptr<OfficeSession> session_;
  Document document_;
  Sheet sheet_;
  std::shared_ptr<SheetOutput> output_;
  /// The fonts are asked for with every card, yet seldom change. They are kept, without those
  /// that a later one covers, and given to the server with the print if they differ.
  std::vector<FontSetting> fonts_;
  std::vector<FontSetting> fontsOfServer_;
  std::set<CellPlace> written_;
};

}  // namespace tessara
