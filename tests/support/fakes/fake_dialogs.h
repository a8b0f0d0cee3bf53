#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "base/run_time_error.h"
#include "machine/dialogs.h"
#include "tests/support/test_failure.h"

namespace tessara::test {

/// Dialogs that are answered beforehand; an empty answer of the file dialog is a cancel, and the
/// next answer follows one that is refused.
class FakeDialogs : public Dialogs {
 public:
  struct TextRequest {
    Text prompt;
    Text title;
    Text defaultText;
  };

  std::deque<Text> files;
  std::deque<std::optional<Text>> texts;
  /// Nothing is a cancel.
  std::deque<std::optional<PrinterChoice>> printers;
  std::vector<FileDialogRequest> fileRequests;
  /// As where a place that was good is bad by the time of the save.
  bool takesEveryPlace = false;
  std::vector<Text> refusals;  ///< what the file dialogs told
  /// Runs while a file dialog is up.
  std::function<void()> whileAsked;
  std::vector<TextRequest> textRequests;

  Text AskFile(const FileDialogRequest& request) override {
    fileRequests.push_back(request);
    if (whileAsked) whileAsked();
    for (;;) {
      Text path = Next(files, "file");
      const Text refusal =
          request.refusal && !takesEveryPlace && !path.empty() ? request.refusal(path) : Text();
      if (refusal.empty()) return path;
      refusals.push_back(refusal);
    }
  }
  std::optional<Text> AskText(const Text& prompt, const Text& title,
                              const Text& defaultText) override {
    textRequests.push_back({prompt, title, defaultText});
    return Next(texts, "text");
  }
  PrinterChoice AskPrinter() override {
    const auto choice = Next(printers, "printer");
    if (!choice) throw RunTimeError(ErrorNumber::kDialogCancelled);
    return *choice;
  }

 private:
  template <class T>
  static T Next(std::deque<T>& answers, const char* kind) {
    if (answers.empty()) throw TestFailure{std::string("no answer for a dialog: ") + kind};
    T answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

}  // namespace tessara::test
