#include <doctest/doctest.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "tests/unit/import/import_desk.h"

namespace tessara::test {

namespace {

std::string BytesOfFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  REQUIRE_MESSAGE(file.is_open(), path.string());
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The deck as a save writes it, without its information record.
std::string CardRecords(ImportDesk& desk) {
  const Text path = u"/texts/deck.tsr";
  desk.fileNumber.OpenRandom(path, OpenMode::kReadAndWrite, kRecordSize);
  WriteRecords(desk.state, desk.fileNumber, CodePage::Western());
  desk.fileNumber.Close();
  return desk.files.Bytes(path).substr(kRecordSize);
}

}  // namespace

TEST_CASE("the sample texts import to the cards of the sample decks, byte for byte") {
  struct Case {
    std::string name;
    void (ImportDesk::*import)(std::string bytes);
    int fewestCards;
  };
  for (const Case& c :
       {Case{"capitals", &ImportDesk::Standard, 190}, Case{"science", &ImportDesk::Extended, 40},
        Case{"words", &ImportDesk::Standard, 40}, Case{"scripts", &ImportDesk::Extended, 28}}) {
    CAPTURE(c.name);
    ImportDesk desk;
    (desk.*c.import)(BytesOfFile(std::filesystem::path(TESSARA_SAMPLE_TEXTS) / (c.name + ".txt")));
    CHECK(desk.messages.shown.empty());
    CHECK(desk.state.deck.cardCount >= c.fewestCards);
    const std::string deck =
        BytesOfFile(std::filesystem::path(TESSARA_SAMPLE_DECKS) / (c.name + ".tsr"));
    CHECK(CardRecords(desk) == deck.substr(kRecordSize));
  }
}

}  // namespace tessara::test
