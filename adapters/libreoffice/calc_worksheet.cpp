#include "adapters/libreoffice/calc_worksheet.h"

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeMovement.hpp>
#include <com/sun/star/table/CellVertJustify2.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>
#include <com/sun/star/text/XText.hpp>
#include <utility>

#include "adapters/libreoffice/file_url.h"
#include "adapters/libreoffice/uno_text.h"
#include "machine/tab_on_paper.h"

namespace tessara {

namespace {

namespace uno = com::sun::star::uno;
using com::sun::star::beans::XPropertySet;
using com::sun::star::frame::XStorable;
using com::sun::star::text::XText;
namespace sheet = com::sun::star::sheet;
namespace table = com::sun::star::table;

/// A font property stands apart for western, Asian and complex scripts.
constexpr const char* kScripts[] = {"", "Asian", "Complex"};

/// The text as the cell shows it: without the prefix that marks a text, its line breaks the
/// server's own, a tab as blanks, since a cell has none.
Text Shown(const Text& value) {
  const std::size_t begin = value.starts_with(u'\'') ? 1 : 0;
  Text shown;
  for (std::size_t at = begin; at < value.size(); ++at) {
    const bool pair = value.compare(at, kLineBreak.size(), kLineBreak) == 0;
    if (value[at] == kTab) {
      shown += kTabOnPaper;
    } else if (!pair) {
      shown += value[at] == kCarriageReturn ? kLineFeed : value[at];
    }
  }
  return shown;
}

/// Below what is printed: a cell that is copied there tells how high its text is, one row for each
/// column.
constexpr sal_Int32 kMeasuringRow = 9;

/// By 0 for the first row.
uno::Reference<XPropertySet> RowOf(const CalcWorksheet::Sheet& cells, sal_Int32 row) {
  const uno::Reference<table::XColumnRowRange> range(cells, uno::UNO_QUERY_THROW);
  return {range->getRows()->getByIndex(row), uno::UNO_QUERY_THROW};
}

/// In hundredths of a millimetre.
sal_Int32 HeightOf(const uno::Reference<XPropertySet>& row) {
  return row->getPropertyValue("Height").get<sal_Int32>();
}

/// How high the row of a cell would have to be for all of its lines.
sal_Int32 HeightOfText(const CalcWorksheet::Sheet& cells, const table::CellRangeAddress& cell) {
  const uno::Reference<sheet::XCellRangeMovement> copies(cells, uno::UNO_QUERY_THROW);
  const sal_Int32 measuringRow = kMeasuringRow + cell.StartColumn;
  copies->copyRange({cell.Sheet, cell.StartColumn, measuringRow}, cell);
  const uno::Reference<XPropertySet> row = RowOf(cells, measuringRow);
  row->setPropertyValue("OptimalHeight", uno::Any(true));
  return HeightOf(row);
}

}  // namespace

CalcWorksheet::CalcWorksheet(const std::shared_ptr<OfficeSession>& session,
                             const Document& document, const Sheet& sheet,
                             std::shared_ptr<SheetOutput> output)
    : session_(session), document_(document), sheet_(sheet), output_(std::move(output)) {}

std::shared_ptr<OfficeSession> CalcWorksheet::Session() const {
  auto session = session_.lock();
  if (session == nullptr) throw RunTimeError(ErrorNumber::kAutomationError);
  return session;
}

void CalcWorksheet::SetFontName(const Text& range, const Text& name) {
  SetFont(range, "CharFontName", uno::Any(UnoText(name)));
}

void CalcWorksheet::SetFontSize(const Text& range, std::int16_t points) {
  SetFont(range, "CharHeight", uno::Any(static_cast<float>(points)));
}

void CalcWorksheet::SetFont(const Text& range, const char* property, const uno::Any& value) {
  if (session_.expired()) throw RunTimeError(ErrorNumber::kAutomationError);
  std::erase_if(fonts_, [&](const FontSetting& earlier) {
    return earlier.range == range && earlier.property == property;
  });
  fonts_.push_back({range, property, value});
}

void CalcWorksheet::ApplyFonts() {
  if (fonts_ == fontsOfServer_) return;
  for (const FontSetting& font : fonts_) {
    const uno::Reference<XPropertySet> cells(sheet_->getCellRangeByName(UnoText(font.range)),
                                             uno::UNO_QUERY_THROW);
    for (const char* script : kScripts) {
      cells->setPropertyValue(UnoText(font.property + script), font.value);
    }
  }
  fontsOfServer_ = fonts_;
}

void CalcWorksheet::SetCell(std::int16_t row, std::int16_t column, const Text& value) {
  Session()->Ask([&] {
    const uno::Reference<XText> cell(sheet_->getCellByPosition(column - 1, row - 1),
                                     uno::UNO_QUERY_THROW);
    cell->setString(UnoText(Shown(value)));
  });
  written_.insert({row, column});
}

/// In the middle of its cell a text with more lines than fit would lose the first ones too.
void CalcWorksheet::Align(const CellPlace& place) {
  const auto range = sheet_->getCellRangeByPosition(place.column - 1, place.row - 1,
                                                    place.column - 1, place.row - 1);
  const uno::Reference<sheet::XCellRangeAddressable> addressable(range, uno::UNO_QUERY_THROW);
  const bool fits = HeightOfText(sheet_, addressable->getRangeAddress()) <=
                    HeightOf(RowOf(sheet_, place.row - 1));
  const sal_Int32 justify = fits ? table::CellVertJustify2::CENTER : table::CellVertJustify2::TOP;
  const uno::Reference<XPropertySet> properties(range, uno::UNO_QUERY_THROW);
  properties->setPropertyValue("VertJustify", uno::Any(justify));
}

void CalcWorksheet::PrintOut() {
  const auto session = Session();
  const std::string page = (session->Folder() / "page.pdf").string();
  session->Ask([&] {
    ApplyFonts();
    for (const CellPlace& place : written_) Align(place);
    const Properties pdf =
        MakeProperties({Property("UseTaggedPDF", false), Property("ExportBookmarks", false)});
    const uno::Reference<XStorable> document(document_, uno::UNO_QUERY_THROW);
    document->storeToURL(UnoText(FileUrl(page)),
                         MakeProperties({Property("FilterName", rtl::OUString("calc_pdf_Export")),
                                         Property("FilterData", pdf)}));
  });
  output_->Print(page);
}

}  // namespace tessara
