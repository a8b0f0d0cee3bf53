#include <algorithm>
#include <doctest/doctest.h>
#include <string>

#include "tests/unit/import/import_fixture.h"

namespace tessara::test {

namespace {

const std::string kStandardText =
    "STD\r\n1.\r\n*>F\r\nfront one\r\n*>B\r\nback one\r\n\r\n"
    "2.\r\n*>F\r\nfront two\r\nmore\r\n*>B\r\nback two\r\n\r\n"
    "3.\r\n*>F\r\nfront\r\n*>B\r\nback\r\n*END*\r\n";

const std::string kExtendedText =
    "EXT\r\n1.A statement\r\n=T\r\n\r\n"
    "2.A question\r\nA.one\r\nB.two\r\nC.three\r\nD.four\r\n=c\r\n\r\n"
    "3.Another\r\n=F\r\n";

using Import = void (ImportFixture::*)(std::string);

/// What must be true after any import: a deck on show or no card, and a file that is open after
/// an unforeseen error only.
bool EndsInOrder(const std::string& bytes, Import import) {
  ImportFixture fixture;
  (fixture.*import)(bytes);
  const bool unforeseen =
      std::any_of(fixture.messages.shown.begin(), fixture.messages.shown.end(),
                  [](const FakeMessages::Shown& box) { return box.title == u"Import Error"; });
  const bool shown = fixture.shown.size() == 1 && fixture.state.deck.changed;
  return (shown || fixture.Dropped()) && fixture.fileNumber.IsOpen() == unforeseen &&
         fixture.state.deck.cardCount >= 0 && fixture.state.deck.cardCount < kRows;
}

struct Subject {
  const std::string& text;
  Import import;
};
const Subject kSubjects[] = {{kStandardText, &ImportFixture::Standard},
                             {kExtendedText, &ImportFixture::Extended}};

}  // namespace

TEST_CASE("a text that is cut anywhere is a deck of its first cards or none") {
  for (const auto& [text, import] : kSubjects) {
    for (std::size_t length = 0; length <= text.size(); ++length) {
      CAPTURE(length);
      CHECK(EndsInOrder(text.substr(0, length), import));
    }
  }
}

TEST_CASE("any byte changed to any of the bytes that mean something is a deck or none") {
  constexpr std::string_view kBytes("\0\r\n .0139=*>FBTAZ\x80\xC3\xFF", 20);
  for (const auto& [text, import] : kSubjects) {
    for (std::size_t at = 0; at < text.size(); ++at) {
      for (const char byte : kBytes) {
        CAPTURE(at);
        std::string damaged = text;
        damaged[at] = byte;
        CHECK(EndsInOrder(damaged, import));
      }
    }
  }
}

TEST_CASE("any byte left out or doubled is a deck or none") {
  for (const auto& [text, import] : kSubjects) {
    for (std::size_t at = 0; at < text.size(); ++at) {
      CAPTURE(at);
      CHECK(EndsInOrder(std::string(text).erase(at, 1), import));
      CHECK(EndsInOrder(std::string(text).insert(at, 1, text[at]), import));
    }
  }
}

TEST_CASE("a text of the other format is a deck or none") {
  CHECK(EndsInOrder(kExtendedText, &ImportFixture::Standard));
  CHECK(EndsInOrder(kStandardText, &ImportFixture::Extended));
}

}  // namespace tessara::test
