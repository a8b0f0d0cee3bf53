#include <doctest/doctest.h>
#include <vector>

#include "base/run_time_error.h"
#include "tests/unit/printing/print_fixture.h"

namespace tessara {
namespace {

using test::PrintFixture;
using Pointers = std::vector<MousePointer>;

TEST_CASE("from the press of the print button to the job's end the wait pointer is up") {
  const Pointers waiting{MousePointer::kHourglass};
  const Pointers waited{MousePointer::kHourglass, MousePointer::kDefault};
  for (const bool flat : {false, true}) {
    CAPTURE(flat);
    PrintFixture fixture;
    fixture.OpenTicked(1).flatSheet.SetTicked(flat);
    fixture.ChoosePrinter();
    int boxes = 0;
    fixture.fakes.messages.whileShown = [&](const test::FakeMessages::Shown&) {
      ++boxes;
      CHECK(fixture.fakes.desktop.pointers == waiting);
    };
    fixture.Open().print.Press();
    CHECK(boxes > 0);
    CHECK(fixture.fakes.desktop.pointers == waited);
  }
}

TEST_CASE("a job that is cancelled in the printer dialog sets the pointer back") {
  PrintFixture fixture;
  fixture.CancelPrinter();
  fixture.OpenTicked(1).print.Press();
  REQUIRE_FALSE(fixture.fakes.desktop.pointers.empty());
  CHECK(fixture.fakes.desktop.pointers.back() == MousePointer::kDefault);
}

}  // namespace
}  // namespace tessara
