#pragma once

#include <doctest/doctest.h>
#include <functional>
#include <vector>

#include "machine/print_surface.h"
#include "tests/support/error_of.h"

namespace tessara::test {

/// What every print surface keeps to whose documents go to a queue. `printed` waits for so many
/// jobs, and gives the number of pages of each that has come out since it was last asked.
inline void CheckPrintQueueContract(PrintSurface& surface, const Text& queue,
                                    const std::function<std::vector<int>(int jobs)>& printed) {
  surface.SetDestination({queue, u""});
  surface.SetCopies(1);
  surface.SetFontName(u"Arial");
  surface.SetFontSize(10);
  // A document is a job, when it ends.
  surface.PrintLine(u"first page");
  surface.NewPage();
  surface.PrintLine(u"second page");
  surface.EndDocument();
  CHECK(printed(1) == std::vector<int>{2});
  // One that is dropped is none, now or later.
  surface.PrintLine(u"broken off");
  surface.DropDocument();
  surface.PrintLine(u"only page");
  surface.EndDocument();
  CHECK(printed(1) == std::vector<int>{1});
  // That there is no such queue is told by the document, and takes nothing from the next one.
  surface.SetDestination({u"no such queue", u""});
  CHECK(ErrorOf([&] { surface.PrintLine(u"nowhere"); }) == 482);
  surface.DropDocument();
  surface.SetDestination({queue, u""});
  surface.PrintLine(u"here");
  surface.EndDocument();
  CHECK(printed(1) == std::vector<int>{1});
}

}  // namespace tessara::test
