#include <doctest/doctest.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "tests/unit/import/import_fixture.h"

namespace tessara::test {

namespace {

std::string BytesOfFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  REQUIRE_MESSAGE(file.is_open(), path.string());
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The deck as a save writes it, without its information record.
std::string CardRecords(ImportFixture& fixture) {
  const Text path = u"/texts/deck.tsr";
  fixture.fileNumber.OpenRandom(path, OpenMode::kReadAndWrite, kRecordSize);
  WriteRecords(fixture.state, fixture.fileNumber, CodePage::Western());
  fixture.fileNumber.Close();
  return fixture.files.Bytes(path).substr(kRecordSize);
}

}  // namespace

TEST_CASE("the sample texts import to the cards of the sample decks, byte for byte") {
  struct Case {
    std::string name;
    void (ImportFixture::*import)(std::string bytes);
    int fewestCards;
  };
  for (const Case& c :
       {Case{"capitals", &ImportFixture::Standard, 190},
        Case{"science", &ImportFixture::Extended, 40}, Case{"words", &ImportFixture::Standard, 40},
        Case{"scripts", &ImportFixture::Extended, 28}}) {
    CAPTURE(c.name);
    ImportFixture fixture;
    (fixture.*
     c.import)(BytesOfFile(std::filesystem::path(TESSARA_SAMPLE_TEXTS) / (c.name + ".txt")));
    CHECK(fixture.messages.shown.empty());
    CHECK(fixture.state.deck.cardCount >= c.fewestCards);
    const std::string deck =
        BytesOfFile(std::filesystem::path(TESSARA_SAMPLE_DECKS) / (c.name + ".tsr"));
    CHECK(CardRecords(fixture) == deck.substr(kRecordSize));
  }
}

}  // namespace tessara::test
