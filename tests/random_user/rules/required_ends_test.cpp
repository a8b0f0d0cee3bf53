#include "tests/random_user/required_ends.h"

#include <doctest/doctest.h>

using namespace tessara::test;

TEST_CASE("an end is required only after what leads to it") {
  struct Case {
    const char* report;
    Story story;
    bool required;
  };
  Story setUp;
  setUp.choosesBackDrop = true;
  Story farRow;
  farRow.lastFile = "far row.tsr";
  Story secondImport;
  secondImport.lastFile = "cards.txt";
  secondImport.importBroke = true;
  Story openAfterImport = secondImport;
  openAfterImport.lastFile = "birds.tsr";
  const Case cases[] = {
      {"Run-time error '35600':\n\nIndex out of bounds", setUp, true},
      {"Run-time error '35600':\n\nIndex out of bounds", {}, false},
      {"Run-time error '9':\n\nSubscript out of range", farRow, true},
      {"Run-time error '9':\n\nSubscript out of range", setUp, false},
      {"Run-time error '55':\n\nFile already open", secondImport, true},
      {"Run-time error '55':\n\nFile already open", openAfterImport, false},
      {"Run-time error '13':\n\nType mismatch", secondImport, false},
  };
  for (const Case& each : cases) {
    CAPTURE(each.report);
    CHECK(IsRequiredEnd(each.report, each.story) == each.required);
  }
}
