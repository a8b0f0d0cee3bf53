#include "adapters/qt/print/qt_print_surface.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>
#include <sys/mman.h>
#include <utility>

#include "adapters/cups/print_queue.h"
#include "adapters/cups/printing_system.h"
#include "adapters/posix/system_call.h"
#include "adapters/posix/write_file.h"
#include "adapters/qt/print/colour_glyphs.h"
#include "adapters/qt/text/qt_text.h"
#include "base/run_time_error.h"
#include "base/skip_errors.h"
#include "base/utf8.h"
#include "machine/print_surface.h"

namespace tessara {

namespace {

constexpr double kTwipsPerPoint = 20;
constexpr double kTwipsPerInch = 1440;

/// Of a file's pages: where most printers do not reach. A queue knows its own.
constexpr QMarginsF kMargins(6, 6, 6, 6);

QStringList LinesOf(const Text& text) {
  const QString lines = LinesForQt(text).replace(u'\r', u'\n');
  return QString(lines).replace(kTab, ToQString(kTabOnPaper)).split(u'\n');
}

double TwipsPerDot(const QPdfWriter& writer) {
  return kTwipsPerInch / writer.resolution();
}

/// The page that a queue prints on by default. Raises error 482 where there is no such queue,
/// or the printing system does not answer.
QPageLayout LayoutOfQueue(const Text& queue) {
  // Qt would wait for its answer without a limit.
  if (ConnectToPrintingSystem() == nullptr) throw RunTimeError(ErrorNumber::kPrinterError);
  const QPrinterInfo info = QPrinterInfo::printerInfo(ToQString(queue));
  if (info.isNull()) throw RunTimeError(ErrorNumber::kPrinterError);
  QPrinter printer(info, QPrinter::HighResolution);
  printer.setPageSize(info.defaultPageSize());  // not of itself
  return printer.pageLayout();
}

}  // namespace

void QtPrintSurface::SetDestination(const PrintDestination& destination) {
  destination_ = destination;
  ended_ = 0;
  DropDocument();
}

bool QtPrintSurface::ToQueue() const {
  return destination_.pdfFile.empty();
}

QPdfWriter& QtPrintSurface::Writer() const {
  if (document_ == nullptr) {
    auto document = std::make_unique<Document>();
    if (ToQueue()) {
      document->writer.setPageLayout(LayoutOfQueue(destination_.printer));
    } else {
      document->writer.setPageMargins(kMargins, QPageLayout::Millimeter);
    }
    document_ = std::move(document);
  }
  return document_->writer;
}

void QtPrintSurface::SetCopies(int copies) {
  copies_ = copies;
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
  return {font_, &Writer()};
}

double QtPrintSurface::LineHeight() const {
  return Metrics().lineSpacing() * TwipsPerDot(Writer());
}

QtPrintSurface::Page& QtPrintSurface::CurrentPage() {
  if (pages_.size() == ended_) pages_.emplace_back();
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
  return Writer().pageLayout().paintRect(QPageLayout::Point).width() * kTwipsPerPoint;
}

double QtPrintSurface::PageHeight() const {
  return Writer().pageLayout().paintRect(QPageLayout::Point).height() * kTwipsPerPoint;
}

double QtPrintSurface::TextWidth(const Text& text) const {
  const QFontMetricsF metrics = Metrics();
  double widest = 0;
  for (const QString& line : LinesOf(text)) {
    widest = std::max(widest, metrics.horizontalAdvance(line));
  }
  return widest * TwipsPerDot(Writer());
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
    Send(PaintPages());
  } catch (const RunTimeError&) {
    DropDocument();
    WriteEndedAgain();
    throw;
  }
  // A file has them all; a queue has taken this one.
  if (!ToQueue()) ended_ = pages_.size();
  DropDocument();
}

/// A file that can only be written in place is gone with what it had no room for; what it held
/// before still finds room.
void QtPrintSurface::WriteEndedAgain() {
  if (ended_ == 0) return;
  SkipErrors([this] { Send(PaintPages()); });
  document_.reset();
}

void QtPrintSurface::DropDocument() {
  pages_.resize(ended_);
  y_ = 0;
  document_.reset();
  // One that was broken off may have been in the middle of a heading.
  font_.setBold(false);
  font_.setItalic(false);
}

/// Qt's own ways to a queue and into a file do not tell whether all has got there.
void QtPrintSurface::Send(const QByteArray& pdf) const {
  if (!ToQueue()) {
    WriteFile(ToUtf8(destination_.pdfFile), pdf.toStdString());
    return;
  }
  // In memory: a program that is killed meanwhile leaves no file.
  const Descriptor file(memfd_create("Tessara", MFD_CLOEXEC));
  if (file.Get() == kFailed) throw RunTimeError(ErrorNumber::kPrinterError);
  const std::string path = "/proc/self/fd/" + std::to_string(file.Get());
  WriteFile(path, pdf.toStdString());
  const std::string copies = std::to_string(copies_);
  const QueueOption options[] = {{"copies", copies.c_str()}};
  PrintOnQueue(ToUtf8(destination_.printer), path, options);
}

QByteArray QtPrintSurface::PaintPages() const {
  QPdfWriter& writer = Writer();
  QPainter painter;
  if (!painter.begin(&writer)) throw RunTimeError(ErrorNumber::kPrinterError);
  // As on screen each line goes by its first letter, not by the desktop.
  painter.setLayoutDirection(Qt::LayoutDirectionAuto);
  const double scale = 1 / TwipsPerDot(writer);
  painter.scale(scale, scale);
  for (std::size_t at = 0; at < pages_.size(); ++at) {
    if (at > 0) writer.newPage();
    Paint(pages_[at], painter);
  }
  painter.end();
  return document_->bytes.data();
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
    const QPointF start(0, line.top / twipsPerDot + metrics.ascent());
    painter.drawText(start, line.text);
    DrawColourGlyphs(painter, start, line.text);
  }
  painter.restore();
}

}  // namespace tessara
