#include "adapters/libreoffice/calc_workbook.h"

#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/sheet/XSpreadsheetView.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <utility>

#include "adapters/libreoffice/calc_worksheet.h"
#include "base/utf8.h"

namespace tessara {

namespace {

namespace uno = com::sun::star::uno;
using com::sun::star::frame::XModel;
using com::sun::star::sheet::XSpreadsheetView;
using com::sun::star::util::XCloseable;

}  // namespace

CalcWorkbook::CalcWorkbook(std::shared_ptr<OfficeSession> session, const Text& path,
                           std::shared_ptr<SheetOutput> output)
    : session_(std::move(session)), output_(std::move(output)) {
  document_ =
      session_->Ask([&] { return Document(session_->Open(ToUtf8(path)), uno::UNO_QUERY_THROW); });
}

CalcWorkbook::~CalcWorkbook() {
  CloseQuietly();
}

std::shared_ptr<Worksheet> CalcWorkbook::ActiveSheet() {
  return std::make_shared<CalcWorksheet>(LayOut(), output_);
}

std::shared_ptr<SheetLayout> CalcWorkbook::LayOut() {
  if (session_ == nullptr) throw RunTimeError(ErrorNumber::kAutomationError);
  return session_->Ask([this] {
    const uno::Reference<XModel> model(document_, uno::UNO_QUERY_THROW);
    const uno::Reference<XSpreadsheetView> view(model->getCurrentController(),
                                                uno::UNO_QUERY_THROW);
    return std::make_shared<SheetLayout>(session_, document_, view->getActiveSheet());
  });
}

void CalcWorkbook::Close() {
  CloseQuietly();
}

void CalcWorkbook::CloseQuietly() {
  if (session_ == nullptr) return;
  try {
    session_->Ask([this] {
      constexpr bool kMayBeClosedLater = true;
      uno::Reference<XCloseable>(document_, uno::UNO_QUERY_THROW)->close(kMayBeClosedLater);
    });
  } catch (const RunTimeError&) {
    // It is gone already.
  }
  document_.clear();
  session_.reset();
}

}  // namespace tessara
