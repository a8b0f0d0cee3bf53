// The framework itself is compiled here and nowhere else: it takes seconds.
#define DOCTEST_CONFIG_IMPLEMENT
#include <doctest/doctest.h>

#include "tests/support/test_failure.h"

REGISTER_EXCEPTION_TRANSLATOR(const tessara::test::TestFailure& failure) {
  return failure.what.c_str();
}
