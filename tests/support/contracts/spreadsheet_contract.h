#pragma once

#include <doctest/doctest.h>
#include <functional>

#include "machine/spreadsheet.h"
#include "tests/support/error_of.h"

namespace tessara::test {

/// What every spreadsheet server keeps to: the template can be opened, and what the server refuses
/// is error 440.
inline void CheckSpreadsheetContract(SpreadsheetServer& server, const Text& templatePath) {
  constexpr int kRefused = 440;
  CHECK_NOTHROW(server.Probe(templatePath));
  const std::shared_ptr<Workbook> book = server.Bind(templatePath);
  const std::shared_ptr<Worksheet> sheet = book->ActiveSheet();
  CHECK_NOTHROW(sheet->SetCell(1, 1, u"text"));
  CHECK_NOTHROW(sheet->SetCell(1, 1, u""));
  CHECK(ErrorOf([&] { sheet->SetCell(0, 1, u"text"); }) == kRefused);
  CHECK(ErrorOf([&] { sheet->SetCell(1, 0, u"text"); }) == kRefused);
  book->Close();
  CHECK_NOTHROW(book->Close());
  CHECK(ErrorOf([&] { (void)book->ActiveSheet(); }) == kRefused);
  const std::function<void()> asked[] = {
      [&] { sheet->SetCell(1, 1, u"text"); }, [&] { sheet->SetFontName(u"A1", u"Arial"); },
      [&] { sheet->SetFontSize(u"A1", 10); }, [&] { sheet->PrintOut(); }};
  for (const auto& ask : asked) CHECK(ErrorOf(ask) == kRefused);
}

}  // namespace tessara::test
