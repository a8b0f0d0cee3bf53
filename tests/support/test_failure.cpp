#include "tests/support/test_failure.h"

#include <doctest/doctest.h>

REGISTER_EXCEPTION_TRANSLATOR(const tessara::test::TestFailure& failure) {
  return failure.what.c_str();
}
