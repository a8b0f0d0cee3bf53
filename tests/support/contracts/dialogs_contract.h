#pragma once

#include <doctest/doctest.h>
#include <functional>
#include <optional>
#include <vector>

#include "base/run_time_error.h"
#include "machine/dialogs.h"
#include "tests/support/error_of.h"

namespace tessara::test {

/// How a user answers the dialogs that come next, each told before it comes.
struct DialogUser {
  std::function<void(const Text& path)> answerFile;                 ///< an empty path is a cancel
  std::function<void(const std::optional<Text>& text)> answerText;  ///< nothing is a cancel
};

/// What every file dialog keeps to. The folder has the file "verbs.tsr".
inline void CheckFileDialogContract(Dialogs& dialogs, const DialogUser& user, const Text& folder) {
  FileDialogRequest request;
  request.filter = u"Study Cards|*.tsr";
  request.flags = kHideReadOnly | kFileMustExist;
  request.initialFolder = folder;
  user.answerFile(folder + u"/verbs.tsr");
  CHECK(dialogs.AskFile(request) == folder + u"/verbs.tsr");
  user.answerFile(u"");
  CHECK(dialogs.AskFile(request).empty());

  // A place that is refused is asked for again, until one is good or the user gives up.
  request.mode = FileDialogMode::kSave;
  const Text bad = folder + u"/bad.tsr";
  const Text good = folder + u"/good.tsr";
  std::vector<Text> tried;
  request.refusal = [&](const Text& path) {
    tried.push_back(path);
    return path == bad ? Text(u"Not there.") : Text();
  };
  user.answerFile(bad);
  user.answerFile(good);
  CHECK(dialogs.AskFile(request) == good);
  CHECK(tried == std::vector<Text>{bad, good});
  user.answerFile(bad);
  user.answerFile(u"");
  CHECK(dialogs.AskFile(request).empty());
  CHECK(tried == std::vector<Text>{bad, good, bad});
}

/// What every dialog for a text keeps to: an empty text is a text.
inline void CheckTextDialogContract(Dialogs& dialogs, const DialogUser& user) {
  for (const auto& text : {std::optional<Text>(u"12"), std::optional<Text>(u""),
                           std::optional<Text>(u"two <b>&"), std::optional<Text>()}) {
    user.answerText(text);
    CHECK(dialogs.AskText(u"Enter a number:", u"Go To Card", u"1") == text);
  }
}

/// What every printer dialog keeps to. `answer` tells what is chosen; nothing is a cancel.
inline void CheckPrinterDialogContract(
    Dialogs& dialogs, const std::function<void(const std::optional<PrinterChoice>&)>& answer,
    const Text& queue, const Text& pdfFile) {
  for (const PrinterChoice& choice :
       {PrinterChoice{{queue, u""}, 3}, PrinterChoice{{u"", pdfFile}, 1}}) {
    answer(choice);
    const PrinterChoice got = dialogs.AskPrinter();
    CHECK(got.destination.printer == choice.destination.printer);
    CHECK(got.destination.pdfFile == choice.destination.pdfFile);
    CHECK(got.copies == choice.copies);
  }
  answer(std::nullopt);
  CHECK(ErrorOf([&] { (void)dialogs.AskPrinter(); }) ==
        static_cast<int>(ErrorNumber::kDialogCancelled));
}

}  // namespace tessara::test
