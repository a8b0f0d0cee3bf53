#pragma once

#include "base/text.h"
#include "machine/dialogs.h"

namespace tessara {

inline constexpr char16_t kTab = u'\t';
/// What a tab is in print, which has no stops for it.
inline constexpr TextView kTabOnPaper = u"    ";

/// A page to write on, line by line. All lengths are twips unless told otherwise.
/// A document begins with the first thing written or asked about its page, and ends with
/// EndDocument, which sends it and raises the errors of writing a file too; setting destination and
/// copies begins none. Every operation but one may raise error 482 (printer).
class PrintSurface {
 public:
  virtual ~PrintSurface() = default;
  /// Where the documents begun from now on go.
  virtual void SetDestination(const PrintDestination& destination) = 0;
  virtual void SetCopies(int copies) = 0;
  virtual void SetFontName(const Text& name) = 0;
  virtual void SetFontSize(double points) = 0;
  virtual void SetBold(bool bold) = 0;
  virtual void SetItalic(bool italic) = 0;
  /// Writes at the current position and moves to the start of the next line. A text with line
  /// breaks takes several lines. Past the bottom of the page a new page begins by itself.
  virtual void PrintLine(const Text& text) = 0;
  /// A straight black line.
  virtual void DrawLine(double x1, double y1, double x2, double y2) = 0;
  [[nodiscard]] virtual double CurrentY() const = 0;
  [[nodiscard]] virtual double PageWidth() const = 0;
  [[nodiscard]] virtual double PageHeight() const = 0;
  /// Width of the widest line of the text in the current font.
  [[nodiscard]] virtual double TextWidth(const Text& text) const = 0;
  /// Height of all lines of the text in the current font.
  [[nodiscard]] virtual double TextHeight(const Text& text) const = 0;
  virtual void NewPage() = 0;
  virtual void EndDocument() = 0;
  /// Drops the document that an error broke off, if one has begun: nothing of it is printed. Raises
  /// nothing.
  virtual void DropDocument() = 0;
};

/// The printer's surface comes into being when something is first asked of it: few starts of the
/// program print.
class Printer {
 public:
  virtual ~Printer() = default;
  /// Raises error 482 where there is nothing to print with.
  [[nodiscard]] virtual PrintSurface& Surface() = 0;
};

}  // namespace tessara
