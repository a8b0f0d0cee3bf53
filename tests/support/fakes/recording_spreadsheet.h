#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "base/utf8.h"
#include "machine/spreadsheet.h"
#include "tests/support/call_record.h"

namespace tessara::test {

/// A spreadsheet server that keeps every call, and what each printed sheet held.
class RecordingSpreadsheet : public SpreadsheetServer {
 public:
  /// Texts by cell name; empty cells are left out.
  using Cells = std::map<std::string, Text>;

  CallRecord record;
  Cells cells;
  std::vector<Cells> sheets;

  /// What is asked beside the jobs: "after 300 ms", "dismissed".
  std::vector<std::string> readiness;

  void Prepare(const Text& templatePath, std::chrono::milliseconds after) override {
    readiness.push_back(ToUtf8(templatePath) + " after " + std::to_string(after.count()) + " ms");
  }
  void Dismiss() override { readiness.emplace_back("dismissed"); }
  void Probe(const Text& templatePath) override { record.Add("Probe " + ToUtf8(templatePath)); }
  std::shared_ptr<Workbook> Bind(const Text& templatePath) override {
    record.Add("Bind " + ToUtf8(templatePath));
    cells.clear();
    return std::make_shared<Book>(*this);
  }
  void SetDestination(const PrintDestination& destination) override {
    record.Add("Destination " + DestinationName(destination));
  }
  void FinishDestination() override { record.Add("Finish"); }

 private:
  static void RefuseUnless(bool allowed) {
    if (!allowed) throw RunTimeError(ErrorNumber::kAutomationError);
  }

  class Sheet : public Worksheet {
   public:
    Sheet(RecordingSpreadsheet& server, std::shared_ptr<bool> open)
        : server_(server), open_(std::move(open)) {}
    void SetFontName(const Text& range, const Text& name) override {
      RefuseUnless(*open_);
      server_.record.Add("Font " + ToUtf8(range) + " " + ToUtf8(name));
    }
    void SetFontSize(const Text& range, std::int16_t points) override {
      RefuseUnless(*open_);
      server_.record.Add("Size " + ToUtf8(range) + " " + std::to_string(points));
    }
    void SetCell(std::int16_t row, std::int16_t column, const Text& value) override {
      RefuseUnless(*open_ && row > 0 && column > 0);
      const std::string name = static_cast<char>('A' + column - 1) + std::to_string(row);
      server_.record.Add(name + " = " + ToUtf8(value));
      server_.cells[name] = value;
      if (value.empty()) server_.cells.erase(name);
    }
    void PrintOut() override {
      RefuseUnless(*open_);
      server_.record.Add("Print");
      server_.sheets.push_back(server_.cells);
    }

   private:
    RecordingSpreadsheet& server_;
    std::shared_ptr<bool> open_;
  };

  class Book : public Workbook {
   public:
    explicit Book(RecordingSpreadsheet& server) : server_(server) {}
    std::shared_ptr<Worksheet> ActiveSheet() override {
      RefuseUnless(*open_);
      server_.record.Add("ActiveSheet");
      return std::make_shared<Sheet>(server_, open_);
    }
    void SetDisplayAlerts(bool show) override {
      server_.record.Add(show ? "Alerts on" : "Alerts off");
    }
    void Close() override {
      *open_ = false;
      server_.record.Add("Close");
    }

   private:
    RecordingSpreadsheet& server_;
    std::shared_ptr<bool> open_ = std::make_shared<bool>(true);
  };
};

}  // namespace tessara::test
