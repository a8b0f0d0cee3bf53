#pragma once

#include <vector>

#include "tests/printing/printed_pdf.h"

namespace tessara::test {

/// Millimetres by which a back may miss its front.
constexpr double kTolerance = 0.5;

/// Checks that the pages are the fronts and then the backs of so many cards, which read "F1" and
/// "B1" and so on, each back behind its front when the sheet is turned.
void CheckSheets(const std::vector<PrintedPage>& pages, int cards, bool flip);

}  // namespace tessara::test
