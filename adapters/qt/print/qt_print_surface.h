#pragma once

#include <QBuffer>
#include <QFont>
#include <QLineF>
#include <QPdfWriter>
#include <memory>
#include <vector>

#include "machine/print_surface.h"

class QFontMetricsF;
class QPainter;

namespace tessara {

/// Writes for a print queue or into a PDF file. A document is kept until it ends and printed then,
/// all at once: a dropped one leaves no trace, neither in the printer's queue nor on the disk. The
/// documents of one destination follow each other in its file, and stay there when a later one
/// finds no room; in a queue each is a job.
class QtPrintSurface : public PrintSurface {
 public:
  void SetDestination(const PrintDestination& destination) override;
  void SetCopies(int copies) override;
  void SetFontName(const Text& name) override;
  void SetFontSize(double points) override;
  void SetBold(bool bold) override;
  void SetItalic(bool italic) override;
  void PrintLine(const Text& text) override;
  void DrawLine(double x1, double y1, double x2, double y2) override;
  [[nodiscard]] double CurrentY() const override { return y_; }
  [[nodiscard]] double PageWidth() const override;
  [[nodiscard]] double PageHeight() const override;
  [[nodiscard]] double TextWidth(const Text& text) const override;
  [[nodiscard]] double TextHeight(const Text& text) const override;
  void NewPage() override;
  void EndDocument() override;
  void DropDocument() override;

 private:
  struct Line {
    QString text;
    QFont font;
    double top = 0;
  };
  struct Page {
    std::vector<Line> lines;
    std::vector<QLineF> rules;
  };

  struct Document {
    QBuffer bytes;
    QPdfWriter writer{&bytes};

    Document() { bytes.open(QIODevice::WriteOnly); }
  };

  [[nodiscard]] bool ToQueue() const;
  /// Draws the document, on the page of its destination; made at the document's first operation.
  [[nodiscard]] QPdfWriter& Writer() const;
  [[nodiscard]] QFontMetricsF Metrics() const;
  [[nodiscard]] double LineHeight() const;
  [[nodiscard]] Page& CurrentPage();
  /// All pages as a PDF file.
  [[nodiscard]] QByteArray PaintPages() const;
  void Send(const QByteArray& pdf) const;
  void WriteEndedAgain();
  static void Paint(const Page& page, QPainter& painter);

  PrintDestination destination_;
  int copies_ = 1;
  mutable std::unique_ptr<Document> document_;
  QFont font_;
  std::vector<Page> pages_;
  std::size_t ended_ = 0;  ///< how many of the pages are of documents that the file has already
  double y_ = 0;           ///< twips from the top of the page's drawing area
};

}  // namespace tessara
