#include "platform/qt/print/qt_print_surface.h"

#include <QFile>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "platform/qt/qt_text.h"
#include "platform/run_time_error.h"

namespace tessara {

namespace {

constexpr double kTwipsPerPoint = 20;
constexpr double kTwipsPerInch = 1440;

QStringList LinesOf(const Text& text) {
  return LinesForQt(text).replace(u'\r', u'\n').split(u'\n');
}

double TwipsPerDot(const QPrinter& printer) {
  return kTwipsPerInch / printer.resolution();
}

std::unique_ptr<QPrinter> PrinterFor(const PrintDestination& destination) {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  if (destination.pdfFile.empty()) {
    printer->setPrinterName(ToQString(destination.printer));
    if (printer->outputFormat() != QPrinter::NativeFormat || !printer->isValid()) return nullptr;
  } else {
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(ToQString(destination.pdfFile));
  }
  return printer;
}

}  // namespace

void QtPrintSurface::SetDestination(const PrintDestination& destination) {
  destination_ = destination;
  DropDocument();
}

QPrinter& QtPrintSurface::Printer() const {
  if (printer_ == nullptr) printer_ = PrinterFor(destination_);
  if (printer_ == nullptr) throw RunTimeError(ErrorNumber::kPrinterError);
  return *printer_;
}

void QtPrintSurface::SetCopies(int copies) {
  Printer().setCopyCount(copies);
}
void QtPrintSurface::SetFontName(const Text& name) {
  font_.setFamily(ToQString(name));
}
void QtPrintSurface::SetFontSize(double points) {
  font_.setPointSizeF(points);
}
void QtPrintSurface::SetBold(bool bold) {
  font_.setBold(bold);
}
void QtPrintSurface::SetItalic(bool italic) {
  font_.setItalic(italic);
}

QFontMetricsF QtPrintSurface::Metrics() const {
  return {font_, &Printer()};
}

double QtPrintSurface::LineHeight() const {
  return Metrics().lineSpacing() * TwipsPerDot(Printer());
}

QtPrintSurface::Page& QtPrintSurface::CurrentPage() {
  if (pages_.empty()) pages_.emplace_back();
  return pages_.back();
}

void QtPrintSurface::PrintLine(const Text& text) {
  const double height = LineHeight();
  for (const QString& line : LinesOf(text)) {
    if (y_ + height > PageHeight()) NewPage();
    if (!line.isEmpty()) CurrentPage().lines.push_back({line, font_, y_});
    y_ += height;
  }
}

void QtPrintSurface::DrawLine(double x1, double y1, double x2, double y2) {
  CurrentPage().rules.emplace_back(x1, y1, x2, y2);
}

double QtPrintSurface::PageWidth() const {
  return Printer().pageLayout().paintRect(QPageLayout::Point).width() * kTwipsPerPoint;
}

double QtPrintSurface::PageHeight() const {
  return Printer().pageLayout().paintRect(QPageLayout::Point).height() * kTwipsPerPoint;
}

double QtPrintSurface::TextWidth(const Text& text) const {
  const QFontMetricsF metrics = Metrics();
  double widest = 0;
  for (const QString& line : LinesOf(text)) {
    widest = std::max(widest, metrics.horizontalAdvance(line));
  }
  return widest * TwipsPerDot(Printer());
}

double QtPrintSurface::TextHeight(const Text& text) const {
  return static_cast<double>(LinesOf(text).size()) * LineHeight();
}

void QtPrintSurface::NewPage() {
  (void)CurrentPage();
  pages_.emplace_back();
  y_ = 0;
}

void QtPrintSurface::EndDocument() {
  try {
    PaintPages();
  } catch (const RunTimeError&) {
    DropDocument();
    throw;
  }
  DropDocument();
}

void QtPrintSurface::DropDocument() {
  pages_.clear();
  y_ = 0;
  printer_.reset();
}

void QtPrintSurface::PaintPages() const {
  QPainter painter;
  if (!painter.begin(&Printer())) throw RunTimeError(ErrorNumber::kPrinterError);
  const double scale = 1 / TwipsPerDot(Printer());
  painter.scale(scale, scale);
  for (std::size_t at = 0; at < pages_.size(); ++at) {
    if (at > 0) Printer().newPage();
    Paint(pages_[at], painter);
  }
  const bool written = painter.end() && Printer().printerState() != QPrinter::Error;
  if (written) return;
  if (!destination_.pdfFile.empty()) QFile::remove(ToQString(destination_.pdfFile));
  throw RunTimeError(ErrorNumber::kPrinterError);
}

void QtPrintSurface::Paint(const Page& page, QPainter& painter) {
  constexpr double kRuleWidth = 10;
  const double twipsPerDot = 1 / painter.transform().m11();
  painter.setPen(QPen(Qt::black, kRuleWidth));
  for (const QLineF& rule : page.rules) painter.drawLine(rule);
  // Text is measured and drawn in the printer's own dots.
  painter.save();
  painter.resetTransform();
  for (const Line& line : page.lines) {
    const QFontMetricsF metrics(line.font, painter.device());
    painter.setFont(line.font);
    painter.drawText(QPointF(0, line.top / twipsPerDot + metrics.ascent()), line.text);
  }
  painter.restore();
}

}  // namespace tessara
