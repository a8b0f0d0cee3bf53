#pragma once

#include <string>
#include <utility>

#include "import/import_text_file.h"
#include "tests/support/deck_fixture.h"
#include "tests/unit/import/import_fixture.h"

namespace tessara::test {

inline const FakeMessages::Shown kUnknownFormat{
    u"EXT or STD was not indicated as a file type at the top of the import file. Import has been "
    u"aborted.",
    kStopIcon, u"Error In Import File"};

/// The command as the frame runs it, in an event.
struct CommandFixture : DeckFixture {
  void Import(std::string bytes) {
    fakes.files.Put(kTextPath, std::move(bytes));
    ImportPath(kTextPath);
  }
  void ImportPath(const Text& path) {
    fakes.dialogs.files.push_back(path);
    windows.Run([this] { ImportTextFile(app, fileNumber, deck); });
  }
  Boxes Told() { return fakes.messages.Take(); }
};

}  // namespace tessara::test
