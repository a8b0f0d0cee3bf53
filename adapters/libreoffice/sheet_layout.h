#pragma once

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/text/XText.hpp>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "adapters/libreoffice/office_session.h"
#include "adapters/libreoffice/sheet_content.h"

namespace tessara {

/// A sheet of an open workbook as the server lays it out. Each question to the server takes a
/// while: it is asked for what has changed alone. All operations raise error 440 where the workbook
/// is closed, and what OfficeSession::Ask raises.
class SheetLayout {
 public:
  using Sheet = com::sun::star::uno::Reference<com::sun::star::sheet::XSpreadsheet>;
  using Document = com::sun::star::uno::Reference<com::sun::star::sheet::XSpreadsheetDocument>;

  SheetLayout(const std::shared_ptr<OfficeSession>& session, const Document& document,
              const Sheet& sheet);

  [[nodiscard]] std::shared_ptr<OfficeSession> Session() const;
  void Show(const SheetContent& content);
  /// The sheet as it now is stays for the export, behind those kept before.
  void Keep();
  /// A PDF file in the server's folder: a page for each sheet kept, which then are kept no longer;
  /// without any, the sheet as it now is. After a Show that failed nothing more can be shown.
  std::filesystem::path Export();

 private:
  template <class Interface>
  using Reference = com::sun::star::uno::Reference<Interface>;
  using Properties = Reference<com::sun::star::beans::XPropertySet>;

  struct Cell {
    Reference<com::sun::star::text::XText> text;
    Properties look;
    Text shown;                          ///< as the program has given it
    std::optional<sal_Int32> alignment;  ///< none: the template's
    bool rightToLeft = false;
  };

  /// Before the sheet changes.
  void PutAside();
  void CopySheet();
  void DropCopies();
  /// Where it is none of those kept it goes.
  void PutBehindCopies();

  void Write(const SheetContent::Texts& texts);
  /// Makes the block hold all these.
  void FitBlock(const SheetContent::Texts& texts);
  Cell& CellAt(const CellPlace& place);
  /// False where they are shown already.
  bool ShowFonts(const std::vector<FontSetting>& fonts);
  static void Direct(Cell& cell);
  void Align(const CellPlace& place, Cell& cell);
  [[nodiscard]] bool Fits(const CellPlace& place, const Text& text) const;
  [[nodiscard]] Properties RowAt(sal_Int32 row) const;
  void StoreAsPdf(const std::filesystem::path& file) const;

  /// What has become of the sheet as it now is.
  enum class State { kChanging, kKept, kExported };

  std::weak_ptr<OfficeSession> session_;
  Document document_;
  Sheet sheet_;
  rtl::OUString name_;  ///< of the sheet, once it is kept
  /// The cells from the sheet's first one to the corner, with what they hold.
  Reference<com::sun::star::sheet::XCellRangeData> block_;
  com::sun::star::uno::Sequence<com::sun::star::uno::Sequence<com::sun::star::uno::Any>> values_;
  CellPlace corner_{};
  std::map<CellPlace, Cell> cells_;
  std::vector<FontSetting> fonts_;
  State state_ = State::kChanging;
  std::vector<rtl::OUString> copies_;  ///< names of the sheets kept, but for the last one
};

}  // namespace tessara
