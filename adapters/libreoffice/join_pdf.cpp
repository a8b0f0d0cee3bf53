#include "adapters/libreoffice/join_pdf.h"

#include <memory>
#include <qpdf/qpdf-c.h>
#include <type_traits>

#include "base/run_time_error.h"

namespace tessara {

namespace {

struct Cleanup {
  void operator()(qpdf_data document) const { qpdf_cleanup(&document); }
};
using Document = std::unique_ptr<std::remove_pointer_t<qpdf_data>, Cleanup>;

void Check(QPDF_ERROR_CODE result) {
  if ((result & QPDF_ERRORS) != 0) throw RunTimeError(ErrorNumber::kPrinterError);
}

Document MakeDocument() {
  Document document(qpdf_init());
  qpdf_silence_errors(document.get());
  qpdf_set_suppress_warnings(document.get(), QPDF_TRUE);
  return document;
}

Document Read(const std::string& bytes) {
  Document document = MakeDocument();
  Check(qpdf_read_memory(document.get(), "sheet", bytes.data(), bytes.size(), nullptr));
  return document;
}

void AddPages(qpdf_data joined, qpdf_data source) {
  const int pages = qpdf_get_num_pages(source);
  if (pages < 0) throw RunTimeError(ErrorNumber::kPrinterError);
  for (int page = 0; page < pages; ++page) {
    const qpdf_oh object = qpdf_get_page_n(source, static_cast<std::size_t>(page));
    Check(qpdf_add_page(joined, source, object, QPDF_FALSE));
  }
}

std::string Write(qpdf_data document) {
  Check(qpdf_init_write_memory(document));
  Check(qpdf_write(document));
  return {reinterpret_cast<const char*>(qpdf_get_buffer(document)),
          qpdf_get_buffer_length(document)};
}

}  // namespace

std::string JoinPdf(const std::vector<std::string>& documents) {
  const Document joined = MakeDocument();
  Check(qpdf_empty_pdf(joined.get()));
  // A page is read from its document only when the whole is written.
  std::vector<Document> sources;
  for (const std::string& bytes : documents) {
    AddPages(joined.get(), sources.emplace_back(Read(bytes)).get());
  }
  return Write(joined.get());
}

}  // namespace tessara
