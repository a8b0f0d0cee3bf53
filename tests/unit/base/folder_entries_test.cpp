#include "base/folder_entries.h"

#include <algorithm>
#include <doctest/doctest.h>
#include <string>
#include <vector>

#include "tests/support/refused_call.h"
#include "tests/support/scratch_folder.h"

namespace tessara::test {

namespace {

using Names = std::vector<std::string>;

Names NamesOf(const FolderEntries& entries) {
  Names names;
  for (const auto& entry : entries) names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

/// A folder with two files, one of them in a folder of its own.
struct TwoFiles {
  ScratchFolder folder{kInMemory};
  TwoFiles() {
    std::filesystem::create_directory(folder / "below");
    folder.Write("below/b", "b");
    folder.Write("a", "a");
  }
};

}  // namespace

TEST_CASE("what lies in a folder is listed, and what lies below it where that is asked for") {
  const TwoFiles files;
  std::error_code error;
  CHECK(NamesOf(EntriesOf(files.folder.Path(), error)) == Names{"a", "below"});
  CHECK(NamesOf(EntriesBelow(files.folder.Path(), error)) == Names{"a", "b", "below"});
  CHECK_FALSE(error);
}

TEST_CASE("a folder that is not there has no entries, and says why") {
  const TwoFiles files;
  for (const auto list : {EntriesOf, EntriesBelow}) {
    std::error_code error;
    CHECK(list(files.folder / "none", error).empty());
    CHECK(error == std::errc::no_such_file_or_directory);
    CHECK(list(files.folder / "a", error).empty());
    CHECK(error == std::errc::not_a_directory);
  }
}

TEST_CASE("whichever call of a listing is refused, it throws nothing") {
  const TwoFiles files;
  for (const auto list : {EntriesOf, EntriesBelow}) {
    const auto walk = [&] {
      std::error_code error;
      return list(files.folder.Path(), error).size() <= 3 ? 0 : 1;
    };
    const int calls = RefuseEachInTurn([] {}, walk, [](int result) { CHECK(result == 0); });
    CHECK(calls >= 3);
  }
}

}  // namespace tessara::test
