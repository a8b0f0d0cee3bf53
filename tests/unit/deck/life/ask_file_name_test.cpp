#include "deck/life/ask_file_name.h"

#include <doctest/doctest.h>

#include "deck/life/dialog_places.h"
#include "tests/support/test_fixture.h"

namespace tessara::test {

TEST_CASE("the file dialog gets its filter and asks for nothing before overwriting") {
  for (const FileDialogMode mode : {FileDialogMode::kOpen, FileDialogMode::kSave}) {
    TestFixture fixture;
    FakeMachine& fakes = fixture.fakes;
    fakes.files.folders.insert(u"/decks");
    fakes.dialogs.files = {u"/decks/a.tsr"};
    CHECK(AskFileName(mode, u"Text File|*.txt", fixture.app) == u"/decks/a.tsr");
    REQUIRE(fakes.dialogs.fileRequests.size() == 1);
    const FileDialogRequest& request = fakes.dialogs.fileRequests[0];
    CHECK(request.mode == mode);
    CHECK(request.filter == u"Text File|*.txt");
    CHECK(request.filterIndex == 1);
    CHECK(request.flags == 4100);
    CHECK(fakes.desktop.pointers == std::vector{MousePointer::kDefault});
  }
}

TEST_CASE("a cancelled file dialog gives empty text") {
  TestFixture fixture;
  fixture.fakes.dialogs.files = {u""};
  CHECK(AskFileName(FileDialogMode::kOpen, kDeckFilter, fixture.app).empty());
}

TEST_CASE("the window that holds the file dialog is there for as long as the dialog is") {
  TestFixture fixture;
  fixture.fakes.dialogs.files = {u"/decks/a.tsr"};
  std::vector<std::string> loaded;
  fixture.fakes.dialogs.whileAsked = [&] {
    for (const Form* form : fixture.windows.LoadedForms()) loaded.push_back(form->Name());
  };
  (void)AskFileName(FileDialogMode::kOpen, kDeckFilter, fixture.app);
  CHECK(loaded == std::vector<std::string>{"frmSaveBox"});
  CHECK(fixture.windows.LoadedForms().empty());
  CHECK(fixture.windows.ActiveForm() == nullptr);
}

TEST_CASE("a program that ends while the file dialog is up leaves no window behind") {
  TestFixture fixture;
  fixture.fakes.dialogs.files = {u""};
  fixture.fakes.dialogs.whileAsked = [&] {
    fixture.windows.EndProgram(1);
    fixture.windows.LeaveIfEnded();
  };
  fixture.windows.Run([&] { (void)AskFileName(FileDialogMode::kOpen, kDeckFilter, fixture.app); });
  CHECK(fixture.windows.LoadedForms().empty());
}

TEST_CASE("a save dialog goes on until a file can be made at the place, an open dialog takes any") {
  const Text nowhere = u"/gone/a.tsr";
  TestFixture fixture;
  fixture.fakes.files.folders.insert(u"/decks");
  fixture.fakes.dialogs.files = {nowhere, u"/decks/a", nowhere};
  CHECK(AskFileName(FileDialogMode::kSave, kDeckFilter, fixture.app) == u"/decks/a");
  CHECK(fixture.fakes.dialogs.refusals == std::vector{SaveRefusal(nowhere, fixture.fakes.files)});
  CHECK(AskFileName(FileDialogMode::kOpen, kDeckFilter, fixture.app) == nowhere);
  CHECK(fixture.fakes.dialogs.refusals.size() == 1);
}

TEST_CASE("the bare pattern is no place to save to and is not refused as one") {
  TestFixture fixture;
  fixture.fakes.dialogs.files = {u"*.tsr"};
  CHECK(AskFileName(FileDialogMode::kSave, kDeckFilter, fixture.app) == u"*.tsr");
  CHECK(fixture.fakes.dialogs.refusals.empty());
}

TEST_CASE("the next dialog begins in the folder of the file chosen last, a cancel apart") {
  TestFixture fixture;
  fixture.fakes.files.Put(u"/decks/birds/a.tsr", "");
  fixture.fakes.dialogs.files = {u"/decks/birds/a.tsr", u"", u""};
  for (int dialog = 0; dialog < 3; ++dialog) {
    (void)AskFileName(FileDialogMode::kOpen, kDeckFilter, fixture.app);
  }
  const std::vector<FileDialogRequest>& asked = fixture.fakes.dialogs.fileRequests;
  CHECK(asked[0].initialFolder == fixture.fakes.desktop.documentsFolder);
  CHECK(asked[1].initialFolder == u"/decks/birds");
  CHECK(asked[2].initialFolder == u"/decks/birds");
}

TEST_CASE("empty text and the bare pattern are no answer") {
  CHECK(NoAnswer(u""));
  CHECK(NoAnswer(u"*.tsr"));
  CHECK_FALSE(NoAnswer(u"*.TSR"));
  CHECK_FALSE(NoAnswer(u"/decks/*.tsr"));
  CHECK_FALSE(NoAnswer(u"a"));
}

}  // namespace tessara::test
