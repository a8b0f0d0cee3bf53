#include "adapters/libreoffice/sheet_layout.h"

#include <algorithm>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeMovement.hpp>
#include <com/sun/star/table/CellVertJustify2.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>
#include <com/sun/star/text/WritingMode2.hpp>
#include <limits>

#include "adapters/libreoffice/uno_text.h"
#include "base/characters.h"
#include "machine/print_surface.h"

namespace tessara {

namespace {

namespace uno = com::sun::star::uno;
using com::sun::star::beans::XPropertySet;
using com::sun::star::container::XNamed;
using com::sun::star::frame::XStorable;
using com::sun::star::text::XText;
namespace WritingMode2 = com::sun::star::text::WritingMode2;
namespace sheet = com::sun::star::sheet;
namespace table = com::sun::star::table;

/// A font property stands apart for western, Asian and complex scripts.
constexpr const char* kScripts[] = {"", "Asian", "Complex"};

/// The text as the cell shows it: without the prefix that marks a text, its line breaks the
/// server's own, a tab as blanks, since a cell has none, and nothing that the server takes for no
/// text.
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
  return WellFormed(shown);
}

/// What all cells are given at once may have one line each.
bool IsOneLine(const Text& text) {
  return std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit >= u' '; });
}

/// True for a text that needs no measuring: a few western letters, two or three lines of the widest
/// ones, fit into every cell of a card.
bool IsShort(const Text& text) {
  constexpr std::size_t kFewLetters = 40;
  constexpr char16_t kLastWestern = 0x24F;
  const auto isPlain = [](char16_t unit) { return unit >= u' ' && unit <= kLastWestern; };
  return text.size() <= kFewLetters && std::all_of(text.begin(), text.end(), isPlain);
}

/// Below what is printed: a cell that is copied there tells how high its text is, one row for each
/// column.
constexpr sal_Int32 kMeasuringRow = 9;

/// A place among the sheets of a document.
constexpr sal_Int16 kAtTheEnd = std::numeric_limits<sal_Int16>::max();

/// In hundredths of a millimetre.
sal_Int32 HeightOf(const uno::Reference<XPropertySet>& row) {
  return row->getPropertyValue("Height").get<sal_Int32>();
}

}  // namespace

SheetLayout::SheetLayout(const std::shared_ptr<OfficeSession>& session, const Document& document,
                         const Sheet& sheet)
    : session_(session), document_(document), sheet_(sheet) {}

std::shared_ptr<OfficeSession> SheetLayout::Session() const {
  auto session = session_.lock();
  if (session == nullptr) throw RunTimeError(ErrorNumber::kAutomationError);
  return session;
}

void SheetLayout::Show(const SheetContent& content) {
  Session()->Ask([&] {
    PutAside();
    const bool otherFonts = ShowFonts(content.fonts);
    Write(content.texts);
    for (const auto& [place, text] : content.texts) {
      const bool isNew = !cells_.contains(place);
      Cell& cell = CellAt(place);
      const bool changes = isNew || cell.shown != text;
      cell.shown = text;
      if (changes) Direct(cell);
      if (changes || otherFonts) Align(place, cell);
    }
  });
}

void SheetLayout::Write(const SheetContent::Texts& texts) {
  FitBlock(texts);
  for (const auto& [place, text] : texts) {
    const rtl::OUString value = IsOneLine(text) ? UnoText(Shown(text)) : rtl::OUString();
    values_.getArray()[place.row - 1].getArray()[place.column - 1] <<= value;
  }
  if (block_.is()) block_->setDataArray(values_);
  for (const auto& [place, text] : texts) {
    if (!IsOneLine(text)) CellAt(place).text->setString(UnoText(Shown(text)));
  }
}

void SheetLayout::FitBlock(const SheetContent::Texts& texts) {
  CellPlace corner{};
  for (const auto& [place, text] : texts) {
    corner = {std::max(corner.row, place.row), std::max(corner.column, place.column)};
  }
  if (corner == corner_) return;
  corner_ = corner;
  block_.set(sheet_->getCellRangeByPosition(0, 0, corner.column - 1, corner.row - 1),
             uno::UNO_QUERY_THROW);
  values_ = block_->getDataArray();
}

void SheetLayout::PutAside() {
  if (state_ == State::kKept) CopySheet();
  if (state_ == State::kExported) DropCopies();
  state_ = State::kChanging;
}

void SheetLayout::CopySheet() {
  const rtl::OUString copy = UnoText(u"Printed " + DecimalText(static_cast<int>(copies_.size())));
  document_->getSheets()->copyByName(name_, copy, kAtTheEnd);
  copies_.push_back(copy);
}

void SheetLayout::DropCopies() {
  const auto sheets = document_->getSheets();
  for (const rtl::OUString& copy : copies_) sheets->removeByName(copy);
  copies_.clear();
}

/// Asks the server in any case: none that has died has the sheet.
void SheetLayout::Keep() {
  Session()->Ask([&] { name_ = Reference<XNamed>(sheet_, uno::UNO_QUERY_THROW)->getName(); });
  state_ = State::kKept;
}

bool SheetLayout::ShowFonts(const std::vector<FontSetting>& fonts) {
  if (fonts == fonts_) return false;
  for (const FontSetting& font : fonts) {
    const Properties cells(sheet_->getCellRangeByName(UnoText(font.range)), uno::UNO_QUERY_THROW);
    for (const char* script : kScripts) {
      cells->setPropertyValue(UnoText(font.property + script), font.value);
    }
  }
  fonts_ = fonts;
  return true;
}

SheetLayout::Cell& SheetLayout::CellAt(const CellPlace& place) {
  const auto found = cells_.find(place);
  if (found != cells_.end()) return found->second;
  const auto cell = sheet_->getCellByPosition(place.column - 1, place.row - 1);
  const Reference<XText> text(cell, uno::UNO_QUERY_THROW);
  const Properties look(cell, uno::UNO_QUERY_THROW);
  return cells_.emplace(place, Cell{text, look, {}, {}, false}).first->second;
}

/// The server itself writes every text from left to right, whatever its first letter.
void SheetLayout::Direct(Cell& cell) {
  const bool rightToLeft = IsRightToLeft(cell.shown);
  if (cell.rightToLeft == rightToLeft) return;
  const sal_Int16 mode = rightToLeft ? WritingMode2::RL_TB : WritingMode2::LR_TB;
  cell.look->setPropertyValue("WritingMode", uno::Any(mode));
  cell.rightToLeft = rightToLeft;
}

/// In the middle of its cell a text with more lines than fit would lose the first ones too.
void SheetLayout::Align(const CellPlace& place, Cell& cell) {
  const sal_Int32 alignment =
      Fits(place, cell.shown) ? table::CellVertJustify2::CENTER : table::CellVertJustify2::TOP;
  if (cell.alignment == alignment) return;
  cell.look->setPropertyValue("VertJustify", uno::Any(alignment));
  cell.alignment = alignment;
}

bool SheetLayout::Fits(const CellPlace& place, const Text& text) const {
  if (IsShort(text)) return true;
  const auto column = place.column - 1;
  const Reference<sheet::XCellRangeAddressable> cell(
      sheet_->getCellRangeByPosition(column, place.row - 1, column, place.row - 1),
      uno::UNO_QUERY_THROW);
  const table::CellRangeAddress address = cell->getRangeAddress();
  const Reference<sheet::XCellRangeMovement> copies(sheet_, uno::UNO_QUERY_THROW);
  const sal_Int32 measuringRow = kMeasuringRow + column;
  copies->copyRange({address.Sheet, column, measuringRow}, address);
  const Properties row = RowAt(measuringRow);
  row->setPropertyValue("OptimalHeight", uno::Any(true));
  return HeightOf(row) <= HeightOf(RowAt(place.row - 1));
}

/// By 0 for the first row.
SheetLayout::Properties SheetLayout::RowAt(sal_Int32 row) const {
  const Reference<table::XColumnRowRange> range(sheet_, uno::UNO_QUERY_THROW);
  return {range->getRows()->getByIndex(row), uno::UNO_QUERY_THROW};
}

std::filesystem::path SheetLayout::Export() {
  const auto session = Session();
  std::filesystem::path file = session->Folder() / "pages.pdf";
  session->Ask([&] {
    if (!copies_.empty()) PutBehindCopies();
    StoreAsPdf(file);
  });
  state_ = State::kExported;
  return file;
}

/// Sooner it would cost more: what stands in front of other sheets moves them all.
void SheetLayout::PutBehindCopies() {
  const auto sheets = document_->getSheets();
  if (state_ == State::kKept) {
    sheets->moveByName(name_, kAtTheEnd);
  } else {
    sheets->removeByName(name_);
  }
}

void SheetLayout::StoreAsPdf(const std::filesystem::path& file) const {
  const auto pdf =
      MakeProperties({Property("UseTaggedPDF", false), Property("ExportBookmarks", false)});
  const Reference<XStorable> document(document_, uno::UNO_QUERY_THROW);
  document->storeToURL(UnoText(FileUrl(file.string())),
                       MakeProperties({Property("FilterName", rtl::OUString("calc_pdf_Export")),
                                       Property("FilterData", pdf)}));
}

}  // namespace tessara
