#include "platform/qt/print/qt_print_surface.h"

#include <QFile>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinterInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <utility>

#include "platform/cups/print_queue.h"
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

/// The page that a queue prints on by default. Raises error 482 where there is no such queue.
QPageLayout LayoutOfQueue(const Text& queue) {
  const QPrinterInfo info = QPrinterInfo::printerInfo(ToQString(queue));
  if (info.isNull()) throw RunTimeError(ErrorNumber::kPrinterError);
  QPrinter printer(info, QPrinter::HighResolution);
  printer.setPageSize(info.defaultPageSize());  // not of itself
  return printer.pageLayout();
}

}  // namespace

void QtPrintSurface::SetDestination(const PrintDestination& destination) {
  destination_ = destination;
  DropDocument();
}

bool QtPrintSurface::ToQueue() const {
  return destination_.pdfFile.empty();
}

QPrinter& QtPrintSurface::Printer() const {
  if (printer_ != nullptr) return *printer_;
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setOutputFormat(QPrinter::PdfFormat);
  if (ToQueue()) printer->setPageLayout(LayoutOfQueue(destination_.printer));
  printer_ = std::move(printer);
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
    if (ToQueue()) {
      SendPages();
    } else {
      PaintPages(ToQString(destination_.pdfFile));
    }
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

/// Qt's own way to a queue does not tell whether the queue has taken the job.
void QtPrintSurface::SendPages() const {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("listing.pdf"));
  PaintPages(file);
  PrintOnQueue(ToUtf8(destination_.printer), QFile::encodeName(file).toStdString(), {});
}

void QtPrintSurface::PaintPages(const QString& file) const {
  Printer().setOutputFileName(file);
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
  if (QFileInfo(file).isFile()) QFile::remove(file);  // a device stays
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
