#include "base/conversion.h"

#include <doctest/doctest.h>
#include <string>
#include <vector>

#include "base/utf8.h"
#include "tests/support/error_of.h"

namespace tessara::test {

namespace {

constexpr int kMismatch = 13;
constexpr int kOverflow = 6;

struct NumberCase {
  TextView text;
  double value;
  int error = 0;
};

const NumberCase kNumbers[] = {
    {u"7", 7},
    {u" 7 ", 7},
    {u"+7", 7},
    {u"-7", -7},
    {u"7.", 7},
    {u".5", 0.5},
    {u"7.5", 7.5},
    {u"1e2", 100},
    {u"1E+2", 100},
    {u"1d2", 100},
    {u"15D-1", 1.5},
    {u"1e-999", 0},
    {u"&H10", 16},
    {u"&hff", 255},
    {u"&HFFFF", -1},
    {u"&H8000", -32768},
    {u"&H10000", 65536},
    {u"&O17", 15},
    {u" &o7 ", 7},
    {u"", 0, kMismatch},
    {u" ", 0, kMismatch},
    {u".", 0, kMismatch},
    {u"+", 0, kMismatch},
    {u"abc", 0, kMismatch},
    {u"1a", 0, kMismatch},
    {u"1 2", 0, kMismatch},
    {u"- 7", 0, kMismatch},
    {u"1,000", 0, kMismatch},
    {u"$5", 0, kMismatch},
    {u"1e", 0, kMismatch},
    {u"1e+", 0, kMismatch},
    {u"e5", 0, kMismatch},
    {u"&H", 0, kMismatch},
    {u"&HG", 0, kMismatch},
    {u"&O8", 0, kMismatch},
    {u"&X1", 0, kMismatch},
    {u"&H-1", 0, kMismatch},
    {u"7\t", 0, kMismatch},
    {u"inf", 0, kMismatch},
    {u"nan", 0, kMismatch},
    {u"\u0663", 0, kMismatch},
    {u"1e999", 0, kOverflow},
    {u"&HFFFFFFFFFFFFFFFFF", 0, kOverflow},
};

}  // namespace

TEST_CASE("numbers are read by their grammar, whole text or error") {
  for (const NumberCase& c : kNumbers) {
    const std::string text = ToUtf8(c.text);
    CAPTURE(text);
    CHECK(ErrorOf([&] { return NumberOf(c.text); }) == c.error);
    if (c.error == 0) CHECK(NumberOf(c.text) == doctest::Approx(c.value));
  }
}

TEST_CASE("a text is numeric exactly where it reads as a number") {
  for (const NumberCase& c : kNumbers) CHECK(IsNumeric(c.text) == (c.error == 0));
}

TEST_CASE("16-bit integers round halves to even and overflow beyond their range") {
  struct Case {
    TextView text;
    int value;
    int error = 0;
  };
  const Case cases[] = {
      {u"0.5", 0},       {u"1.5", 2},           {u"2.5", 2},      {u"7.5", 8},
      {u"3.14", 3},      {u"-0.5", 0},          {u"-1.5", -2},    {u"32767.4", 32767},
      {u"32767", 32767}, {u"-32768.5", -32768}, {u"32768", 0, 6}, {u"32767.5", 0, 6},
      {u"-32769", 0, 6}, {u"99999", 0, 6},      {u"1e9", 0, 6},   {u"x", 0, 13},
  };
  for (const Case& c : cases) {
    const std::string text = ToUtf8(c.text);
    CAPTURE(text);
    CHECK(ErrorOf([&] { return IntegerOf(c.text); }) == c.error);
    if (c.error == 0) CHECK(IntegerOf(c.text) == c.value);
  }
}

TEST_CASE("booleans are the two words in any case, or numbers") {
  struct Case {
    TextView text;
    bool value;
    int error = 0;
  };
  const Case cases[] = {{u"True", true},  {u"FALSE", false},   {u" true ", true},
                        {u"0", false},    {u"-1", true},       {u"2.5", true},
                        {u"", false, 13}, {u"yes", false, 13}, {u"Wahr", false, 13}};
  for (const Case& c : cases) {
    CHECK(ErrorOf([&] { return BooleanOf(c.text); }) == c.error);
    if (c.error == 0) CHECK(BooleanOf(c.text) == c.value);
  }
}

TEST_CASE("points print without decimals where whole and with one at a half") {
  CHECK(PointsText(3) == u"3");
  CHECK(PointsText(2.5) == u"2.5");
  CHECK(PointsText(0.5) == u"0.5");
  CHECK(PointsText(0) == u"0");
}

TEST_CASE("percentages print whole, a half rounded up") {
  struct Case {
    double value;
    TextView text;
  };
  const Case cases[] = {{0, u"0"},
                        {12.5, u"13"},
                        {200.0 / 3, u"67"},
                        {100.0 / 3, u"33"},
                        {100, u"100"},
                        {99.5, u"100"},
                        {0.4, u"0"},
                        {23.0 / 40 * 100, u"58"},
                        {57.4999999999999, u"57"}};
  for (const Case& c : cases) CHECK(WholeNumberText(c.value) == c.text);
}

TEST_CASE("a number is too small or too large by its value, not by how it is written") {
  const Text zeros(400, u'0');
  struct Case {
    Text text;
    bool tooLarge;
  };
  for (const Case& c : {Case{u"0." + zeros + u"1", false}, Case{u"-." + zeros + u"1e-9", false},
                        Case{u"0." + zeros + u"1e9", false}, Case{u"1" + zeros, true},
                        Case{u"-1" + zeros + u".5", true}, Case{u"1" + zeros + u"e-5", true},
                        Case{u"1e99999999999999999999", true},
                        Case{u"1e-99999999999999999999", false}, Case{u"1e" + zeros + u"999", true},
                        Case{u"1e1" + zeros, true}, Case{u"1e-1" + zeros, false}}) {
    CAPTURE(ToUtf8(c.text));
    if (c.tooLarge) {
      CHECK(ErrorOf([&] { return NumberOf(c.text); }) == 6);
    } else {
      CHECK(NumberOf(c.text) == 0);
    }
  }
  CHECK(NumberOf(u"0." + zeros + u"1e401") == 1);
  CHECK(NumberOf(u"1" + zeros + u"e-400") == 1);
  CHECK(NumberOf(u"0e99999999999999999999") == 0);
}

}  // namespace tessara::test
