#pragma once

#include <chrono>
#include <cstdint>
#include <memory>

#include "base/text.h"
#include "machine/dialogs.h"

namespace tessara {

/// A sheet of an open workbook.
class Worksheet {
 public:
  virtual ~Worksheet() = default;
  virtual void SetFontName(const Text& range, const Text& name) = 0;
  virtual void SetFontSize(const Text& range, std::int16_t points) = 0;
  /// Row and column count from 1. The text stands literally; a leading apostrophe does not show.
  virtual void SetCell(std::int16_t row, std::int16_t column, const Text& value) = 0;
  /// Prints the sheet once to the job's destination.
  virtual void PrintOut() = 0;
};

/// An open workbook.
class Workbook {
 public:
  virtual ~Workbook() = default;
  virtual std::shared_ptr<Worksheet> ActiveSheet() = 0;
  /// The switch for the server's own questions.
  virtual void SetDisplayAlerts(bool show) = 0;
  /// Closes without saving and without asking. Closing a dead server is silent.
  virtual void Close() = 0;
};

/// The spreadsheet server. All operations raise run-time errors: 432 where the server or the
/// template can't be found, 440 for what the server refuses or where it died.
class SpreadsheetServer {
 public:
  virtual ~SpreadsheetServer() = default;
  /// Looks for a server and a readable spreadsheet at the path, without starting the server.
  /// Raises what Bind would raise where either is missing.
  virtual void Probe(const Text& templatePath) = 0;
  /// A job may come: after a while the server starts in the background, so that Bind has less to
  /// wait for. Returns at once and raises nothing; what is missing Bind tells.
  virtual void Prepare(const Text& templatePath, std::chrono::milliseconds after) = 0;
  /// No job comes: a server that was prepared and has not been bound ends, in the background; one
  /// that has not been started yet does not start.
  virtual void Dismiss() = 0;
  /// Opens the template, starting the server where it does not run.
  virtual std::shared_ptr<Workbook> Bind(const Text& templatePath) = 0;
  /// Where the sheets printed from now on go: beside the operations of the sheet.
  virtual void SetDestination(const PrintDestination& destination) = 0;
  /// The job is over: a PDF file's pages are joined, also those before an error. Raises the
  /// errors of writing a file and 482, and forgets the job's sheets all the same.
  virtual void FinishDestination() = 0;
};

}  // namespace tessara
