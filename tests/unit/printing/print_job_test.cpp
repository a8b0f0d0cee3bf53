#include <doctest/doctest.h>
#include <vector>

#include "base/run_time_error.h"
#include "tests/unit/printing/print_desk.h"

namespace tessara {
namespace {

using test::PrintDesk;
using Pointers = std::vector<MousePointer>;

TEST_CASE("from the press of the print button to the job's end the wait pointer is up") {
  const Pointers waiting{MousePointer::kHourglass};
  const Pointers waited{MousePointer::kHourglass, MousePointer::kDefault};
  for (const bool flat : {false, true}) {
    CAPTURE(flat);
    PrintDesk desk;
    desk.OpenTicked(1).flatSheet.SetTicked(flat);
    desk.ChoosePrinter();
    int boxes = 0;
    desk.fakes.messages.whileShown = [&](const test::FakeMessages::Shown&) {
      ++boxes;
      CHECK(desk.fakes.desktop.pointers == waiting);
    };
    desk.Open().print.Press();
    CHECK(boxes > 0);
    CHECK(desk.fakes.desktop.pointers == waited);
  }
}

TEST_CASE("a job that is cancelled in the printer dialog sets the pointer back") {
  PrintDesk desk;
  desk.CancelPrinter();
  desk.OpenTicked(1).print.Press();
  REQUIRE_FALSE(desk.fakes.desktop.pointers.empty());
  CHECK(desk.fakes.desktop.pointers.back() == MousePointer::kDefault);
}

}  // namespace
}  // namespace tessara
