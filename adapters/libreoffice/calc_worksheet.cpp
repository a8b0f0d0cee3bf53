#include "adapters/libreoffice/calc_worksheet.h"

#include <utility>

#include "adapters/libreoffice/uno_text.h"

namespace tessara {

namespace uno = com::sun::star::uno;

CalcWorksheet::CalcWorksheet(std::shared_ptr<SheetLayout> layout,
                             std::shared_ptr<SheetOutput> output)
    : layout_(std::move(layout)), output_(std::move(output)) {}

void CalcWorksheet::RequireWorkbook() const {
  (void)layout_->Session();
}

void CalcWorksheet::SetFontName(const Text& range, const Text& name) {
  SetFont(range, "CharFontName", uno::Any(UnoText(name)));
}

void CalcWorksheet::SetFontSize(const Text& range, std::int16_t points) {
  SetFont(range, "CharHeight", uno::Any(static_cast<float>(points)));
}

void CalcWorksheet::SetFont(const Text& range, const char* property, const uno::Any& value) {
  RequireWorkbook();
  std::erase_if(content_.fonts, [&](const FontSetting& earlier) {
    return earlier.range == range && earlier.property == property;
  });
  content_.fonts.push_back({range, property, value});
}

void CalcWorksheet::SetCell(std::int16_t row, std::int16_t column, const Text& value) {
  RequireWorkbook();
  if (row < 1 || column < 1) throw RunTimeError(ErrorNumber::kAutomationError);
  content_.texts[{row, column}] = value;
}

void CalcWorksheet::PrintOut() {
  layout_->Show(content_);
  output_->Print(layout_, content_);
}

}  // namespace tessara
