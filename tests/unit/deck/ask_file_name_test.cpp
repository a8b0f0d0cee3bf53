#include "deck/ask_file_name.h"

#include <doctest/doctest.h>

#include "tests/support/fake_machine.h"

namespace tessara::test {

TEST_CASE(
    "the file dialog starts in the program's folder and asks for nothing before overwriting") {
  for (const FileDialogMode mode : {FileDialogMode::kOpen, FileDialogMode::kSave}) {
    FakeMachine fakes;
    fakes.dialogs.files = {u"/decks/a.tsr"};
    const Machine machine = fakes.Get();
    CHECK(AskFileName(mode, u"Text File|*.txt", machine) == u"/decks/a.tsr");
    REQUIRE(fakes.dialogs.fileRequests.size() == 1);
    const FileDialogRequest& request = fakes.dialogs.fileRequests[0];
    CHECK(request.mode == mode);
    CHECK(request.filter == u"Text File|*.txt");
    CHECK(request.filterIndex == 1);
    CHECK(request.flags == 4100);
    CHECK(request.initialFolder == machine.programFolder);
    CHECK(fakes.desktop.pointers == std::vector{MousePointer::kDefault});
  }
}

TEST_CASE("a cancelled file dialog gives empty text") {
  FakeMachine fakes;
  fakes.dialogs.files = {u""};
  CHECK(AskFileName(FileDialogMode::kOpen, kDeckFilter, fakes.Get()).empty());
}

TEST_CASE("empty text and the bare pattern are no answer") {
  CHECK(NoAnswer(u""));
  CHECK(NoAnswer(u"*.tsr"));
  CHECK_FALSE(NoAnswer(u"*.TSR"));
  CHECK_FALSE(NoAnswer(u"/decks/*.tsr"));
  CHECK_FALSE(NoAnswer(u"a"));
}

}  // namespace tessara::test
