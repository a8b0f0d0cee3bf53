#include "base/run_time_error.h"

#include <doctest/doctest.h>

namespace tessara::test {

TEST_CASE("a run-time error carries its number and its description") {
  const RunTimeError error(ErrorNumber::kSubscriptOutOfRange);
  CHECK(error.Number() == ErrorNumber::kSubscriptOutOfRange);
  CHECK(error.Description() == u"Subscript out of range");
}

TEST_CASE("every number has a description of its own") {
  struct Case {
    int number;
    TextView description;
  };
  const Case cases[] = {
      {5, u"Invalid procedure call or argument"},
      {6, u"Overflow"},
      {7, u"Out of memory"},
      {9, u"Subscript out of range"},
      {13, u"Type mismatch"},
      {51, u"Internal error"},
      {52, u"Bad file name or number"},
      {53, u"File not found"},
      {54, u"Bad file mode"},
      {55, u"File already open"},
      {57, u"Device I/O error"},
      {61, u"Disk full"},
      {62, u"Input past end of file"},
      {67, u"Too many files"},
      {70, u"Permission denied"},
      {71, u"Disk not ready"},
      {75, u"Path/File access error"},
      {76, u"Path not found"},
      {91, u"Object variable or With block variable not set"},
      {340, u"Control array element doesn't exist"},
      {380, u"Invalid property value"},
      {384, u"A form can't be moved or sized while minimized or maximized"},
      {424, u"Object required"},
      {432, u"File name or class name not found during Automation operation"},
      {440, u"Automation error"},
      {482, u"Printer error"},
      {32755, u"Cancel was selected."},
      {35600, u"Index out of bounds"},
      {35601, u"Element not found"},
  };
  for (const Case& c : cases) {
    CHECK(RunTimeError(static_cast<ErrorNumber>(c.number)).Description() == c.description);
  }
}

}  // namespace tessara::test
