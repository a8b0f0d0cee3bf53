#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "machine/spreadsheet.h"

namespace tessara::test {

/// Runs before each operation, with its name.
using Watcher = std::function<void(const std::string& operation)>;

class WatchedSheet : public Worksheet {
 public:
  WatchedSheet(std::shared_ptr<Worksheet> sheet, Watcher& before)
      : sheet_(std::move(sheet)), before_(before) {}

  void SetFontName(const Text& range, const Text& name) override {
    before_("font name");
    sheet_->SetFontName(range, name);
  }
  void SetFontSize(const Text& range, std::int16_t points) override {
    before_("font size");
    sheet_->SetFontSize(range, points);
  }
  void SetCell(std::int16_t row, std::int16_t column, const Text& value) override {
    before_("cell value");
    sheet_->SetCell(row, column, value);
  }
  void PrintOut() override {
    before_("print");
    sheet_->PrintOut();
  }

 private:
  std::shared_ptr<Worksheet> sheet_;
  Watcher& before_;
};

class WatchedBook : public Workbook {
 public:
  WatchedBook(std::shared_ptr<Workbook> book, Watcher& before)
      : book_(std::move(book)), before_(before) {}

  std::shared_ptr<Worksheet> ActiveSheet() override {
    before_("active sheet");
    return std::make_shared<WatchedSheet>(book_->ActiveSheet(), before_);
  }
  void SetDisplayAlerts(bool show) override {
    before_("prompt switch");
    book_->SetDisplayAlerts(show);
  }
  void Close() override {
    before_("close");
    book_->Close();
  }

 private:
  std::shared_ptr<Workbook> book_;
  Watcher& before_;
};

/// Passes everything on to another server. It outlives its workbooks.
class WatchedServer : public SpreadsheetServer {
 public:
  explicit WatchedServer(SpreadsheetServer& server) : server_(server) {}

  Watcher before = [](const std::string&) {};

  void Probe(const Text& templatePath) override { server_.Probe(templatePath); }
  void Prepare(const Text& templatePath, std::chrono::milliseconds after) override {
    server_.Prepare(templatePath, after);
  }
  void Dismiss() override { server_.Dismiss(); }
  std::shared_ptr<Workbook> Bind(const Text& templatePath) override {
    before("bind");
    return std::make_shared<WatchedBook>(server_.Bind(templatePath), before);
  }
  void SetDestination(const PrintDestination& destination) override {
    server_.SetDestination(destination);
  }
  void FinishDestination() override { server_.FinishDestination(); }

 private:
  SpreadsheetServer& server_;
};

}  // namespace tessara::test
