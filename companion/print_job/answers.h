#pragma once

#include <optional>
#include <utility>

#include "machine/dialogs.h"
#include "machine/message_box.h"

namespace tessara {

/// Answers each box of a print job with the way on, and remembers the last one.
class AnsweredBoxes : public MessageBoxes {
 public:
  MessageAnswer Show(const Text& text, int flags, const Text& title) override {
    lastText_ = text;
    lastTitle_ = title;
    return (flags & kYesNo) != 0 ? MessageAnswer::kYes : MessageAnswer::kOk;
  }
  [[nodiscard]] const Text& LastText() const { return lastText_; }
  [[nodiscard]] const Text& LastTitle() const { return lastTitle_; }

 private:
  Text lastText_;
  Text lastTitle_;
};

/// Answers the printer dialog with a PDF file; cancels all others.
class AnsweredDialogs : public Dialogs {
 public:
  explicit AnsweredDialogs(Text pdfFile) : pdfFile_(std::move(pdfFile)) {}

  Text AskFile(const FileDialogRequest&) override { return {}; }
  std::optional<Text> AskText(const Text&, const Text&, const Text&) override {
    return std::nullopt;
  }
  PrinterChoice AskPrinter() override { return {{u"", pdfFile_}, 1}; }

 private:
  Text pdfFile_;
};

}  // namespace tessara
