#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "adapters/posix/copies/posix_safety_copies.h"
#include "adapters/posix/new_file.h"
#include "adapters/posix/posix_file_system.h"
#include "base/folder_entries.h"
#include "base/utf8.h"
#include "shell/program.h"
#include "tests/support/fakes/fake_machine.h"
#include "tests/support/fakes/headless_renderer.h"
#include "tests/support/scratch_folder.h"

namespace tessara::test {

/// The names in a folder, sorted; none where there is no folder.
inline std::vector<std::string> NamesIn(const std::filesystem::path& folder) {
  std::vector<std::string> names;
  std::error_code missing;
  for (const auto& entry : EntriesOf(folder, missing)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

inline std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The whole program over real files in a folder that outlives it: "verbs.tsr" is the deck,
/// "copies" holds what saves have kept.
struct DiskFixture {
  static constexpr const char* kDeckName = "verbs.tsr";

  const ScratchFolder& folder;
  PosixFileSystem files;
  PosixSafetyCopies copies{folder / "copies"};
  FakeMachine fakes;
  Machine machine;
  HeadlessRenderer renderer;
  Program program{machine};
  ProgramState& state = program.State();

  /// A test can put its own file system in front of the real one.
  explicit DiskFixture(const ScratchFolder& scratch, FileSystem* inFront = nullptr)
      : folder(scratch), machine(WithDisk(inFront)) {
    program.Windows().SetRenderer(renderer);
    fakes.settings.values = {{u"ShowSplash", u"0"}, {u"FirstLoad", u"False"}};
  }

  [[nodiscard]] Text DeckPath() const { return folder.TextPath(FromUtf8(kDeckName)); }
  DeckWindow& Deck() { return program.DeckWindowOf().Loaded(); }
  void Run(const std::function<void()>& command) { program.Windows().Run(command); }

  /// Starts with the deck: the first save writes over its file in place.
  void StartWithDeck() { program.Main(DeckPath()); }
  /// Starts empty and opens the deck: a save deletes its file first.
  void StartAndOpenDeck() {
    program.Main(u"");
    fakes.dialogs.files.push_back(DeckPath());
    Run([this] { Deck().OpenDeck(); });
  }
  /// Puts another text on every card, as a builder does.
  void ChangeCards() {
    for (int row = 1; row <= state.deck.cardCount; ++row)
      state.deck.cardGrid.Set(row, kCardText, u"changed");
    state.deck.changed = true;
  }
  void Save() {
    Run([this] { Deck().SaveDeck(); });
  }

 private:
  Machine WithDisk(FileSystem* inFront) {
    fakes.fileSystem = inFront == nullptr ? &files : inFront;
    fakes.safetyCopies = &copies;
    return fakes.Get();
  }
};

/// The bytes of every file that saves have kept, by name; spare files hold no deck.
inline std::vector<std::string> KeptIn(const ScratchFolder& folder) {
  std::vector<std::string> kept;
  for (const std::string& name : NamesIn(folder / "copies")) {
    if (NewFile::IsSpare(name)) continue;
    kept.push_back(BytesOf(folder / "copies" / name));
  }
  return kept;
}

}  // namespace tessara::test
