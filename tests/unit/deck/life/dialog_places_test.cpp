#include "deck/life/dialog_places.h"

#include <doctest/doctest.h>

#include "tests/support/fakes/fake_machine.h"

namespace tessara::test {

TEST_CASE(
    "a dialog begins in the program's folder where the user can write there, else elsewhere") {
  struct Case {
    const char* what;
    bool writable;
    TextView last;
    TextView folder;
  };
  const Case cases[] = {
      {"a program of the user's own", true, u"/decks", u"/opt/tessara"},
      {"an installed program, at first", false, u"", u"/home/ann/Documents"},
      {"an installed program, later", false, u"/decks", u"/decks"},
      {"a folder that is gone", false, u"/decks/gone", u"/home/ann/Documents"},
  };
  for (const Case& c : cases) {
    CAPTURE(c.what);
    FakeMachine fakes;
    fakes.files.folders.insert({u"/opt/tessara", u"/decks"});
    if (!c.writable) fakes.files.withoutPermission.insert(u"/opt/tessara");
    ProgramState state;
    state.dialogs.folderUsedLast = c.last;
    CHECK(DialogFolder(fakes.Get(), state) == c.folder);
  }
}

TEST_CASE("the folder used last is that of the file, and what names no folder changes nothing") {
  ProgramState state;
  const std::pair<TextView, TextView> steps[] = {
      {u"/decks/birds/a.tsr", u"/decks/birds"},
      {u"", u"/decks/birds"},
      {u"*.tsr", u"/decks/birds"},
      {u"/a.tsr", u"/"},
      {u"C:\\decks\\a.tsr", u"C:\\decks"},
  };
  for (const auto& [path, folder] : steps) {
    NoteFolderOf(Text(path), state);
    CHECK(state.dialogs.folderUsedLast == folder);
  }
}

}  // namespace tessara::test
