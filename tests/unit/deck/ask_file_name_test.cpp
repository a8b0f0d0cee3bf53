#include "deck/ask_file_name.h"

#include <doctest/doctest.h>

#include "tests/support/test_desk.h"

namespace tessara::test {

TEST_CASE(
    "the file dialog starts in the program's folder and asks for nothing before overwriting") {
  for (const FileDialogMode mode : {FileDialogMode::kOpen, FileDialogMode::kSave}) {
    TestDesk desk;
    FakeMachine& fakes = desk.fakes;
    fakes.dialogs.files = {u"/decks/a.tsr"};
    CHECK(AskFileName(mode, u"Text File|*.txt", desk.app) == u"/decks/a.tsr");
    REQUIRE(fakes.dialogs.fileRequests.size() == 1);
    const FileDialogRequest& request = fakes.dialogs.fileRequests[0];
    CHECK(request.mode == mode);
    CHECK(request.filter == u"Text File|*.txt");
    CHECK(request.filterIndex == 1);
    CHECK(request.flags == 4100);
    CHECK(request.initialFolder == desk.machine.programFolder);
    CHECK(fakes.desktop.pointers == std::vector{MousePointer::kDefault});
  }
}

TEST_CASE("a cancelled file dialog gives empty text") {
  TestDesk desk;
  desk.fakes.dialogs.files = {u""};
  CHECK(AskFileName(FileDialogMode::kOpen, kDeckFilter, desk.app).empty());
}

TEST_CASE("the window that holds the file dialog is there for as long as the dialog is") {
  TestDesk desk;
  desk.fakes.dialogs.files = {u"/decks/a.tsr"};
  std::vector<std::string> loaded;
  desk.fakes.dialogs.whileAsked = [&] {
    for (const Form* form : desk.windows.LoadedForms()) loaded.push_back(form->Name());
  };
  (void)AskFileName(FileDialogMode::kOpen, kDeckFilter, desk.app);
  CHECK(loaded == std::vector<std::string>{"frmSaveBox"});
  CHECK(desk.windows.LoadedForms().empty());
  CHECK(desk.windows.ActiveForm() == nullptr);
}

TEST_CASE("a program that ends while the file dialog is up leaves no window behind") {
  TestDesk desk;
  desk.fakes.dialogs.files = {u""};
  desk.fakes.dialogs.whileAsked = [&] {
    desk.windows.EndProgram(1);
    desk.windows.LeaveIfEnded();
  };
  desk.windows.Run([&] { (void)AskFileName(FileDialogMode::kOpen, kDeckFilter, desk.app); });
  CHECK(desk.windows.LoadedForms().empty());
}

TEST_CASE("empty text and the bare pattern are no answer") {
  CHECK(NoAnswer(u""));
  CHECK(NoAnswer(u"*.tsr"));
  CHECK_FALSE(NoAnswer(u"*.TSR"));
  CHECK_FALSE(NoAnswer(u"/decks/*.tsr"));
  CHECK_FALSE(NoAnswer(u"a"));
}

}  // namespace tessara::test
