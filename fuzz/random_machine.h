#pragma once

#include <memory>
#include <optional>

#include "fuzz/byte_source.h"
#include "tests/support/fakes/fake_machine.h"

namespace tessara::fuzz {

/// Paths that dialogs answer with; the last ones are no files.
inline const Text kPaths[] = {
    u"/d/a.tsr",  u"/d/b.tsr",  u"/d/c.d.tsr", u"/d/ext.txt", u"/d/std.txt",
    u"/d/no.tsr", u"/no/a.tsr", u"/d",         u"*.tsr",      u"*.txt",
    u""};

/// Message boxes that are answered at random, with an answer that their buttons have.
class RandomMessages : public MessageBoxes {
 public:
  explicit RandomMessages(ByteSource& bytes) : bytes_(bytes) {}
  Text lastText;

  MessageAnswer Show(const Text& text, int flags, const Text&) override {
    constexpr int kButtons = 15;
    lastText = text;
    switch (flags & kButtons) {
      case kOkOnly:
        return MessageAnswer::kOk;
      case kOkCancel:
        return bytes_.Next() % 2 == 0 ? MessageAnswer::kOk : MessageAnswer::kCancel;
      default:
        return bytes_.Next() % 2 == 0 ? MessageAnswer::kYes : MessageAnswer::kNo;
    }
  }

 private:
  ByteSource& bytes_;
};

/// Dialogs that are answered at random.
class RandomDialogs : public Dialogs {
 public:
  explicit RandomDialogs(ByteSource& bytes) : bytes_(bytes) {}

  Text AskFile(const FileDialogRequest&) override { return bytes_.OneOf(kPaths); }
  std::optional<Text> AskText(const Text&, const Text&, const Text& defaultText) override {
    switch (bytes_.Below(4)) {
      case 0:
        return std::nullopt;
      case 1:
        return defaultText;
      case 2:
        return DecimalText(bytes_.Next() - 10);
      default:
        return bytes_.TakeText(8);
    }
  }
  PrinterChoice AskPrinter() override {
    const std::uint8_t choice = bytes_.Next();
    if (choice < 80) throw RunTimeError(ErrorNumber::kDialogCancelled);
    return {{u"", u"/d/out.pdf"}, choice % 4};
  }

 private:
  ByteSource& bytes_;
};

/// A page of plain measures that fails at times.
class RandomSurface : public PrintSurface {
 public:
  explicit RandomSurface(ByteSource& bytes) : bytes_(bytes) {}

  void SetDestination(const PrintDestination&) override {}
  void SetCopies(int) override { MayFail(); }
  void SetFontName(const Text&) override {}
  void SetFontSize(double) override {}
  void SetBold(bool) override {}
  void SetItalic(bool) override {}
  void PrintLine(const Text&) override { y_ = y_ > kHeight ? kLine : y_ + kLine; }
  void DrawLine(double, double, double, double) override { MayFail(); }
  [[nodiscard]] double CurrentY() const override { return y_; }
  [[nodiscard]] double PageWidth() const override { return 11000; }
  [[nodiscard]] double PageHeight() const override { return kHeight; }
  [[nodiscard]] double TextWidth(const Text& text) const override {
    return 100.0 * static_cast<double>(text.size());
  }
  [[nodiscard]] double TextHeight(const Text&) const override { return kLine; }
  void NewPage() override { y_ = 0; }
  void EndDocument() override { MayFail(); }
  void DropDocument() override { y_ = 0; }

 private:
  static constexpr double kHeight = 15000;
  static constexpr double kLine = 200;

  void MayFail() {
    if (bytes_.Next() > 240) throw RunTimeError(ErrorNumber::kPrinterError);
  }

  ByteSource& bytes_;
  double y_ = 0;
};

/// A spreadsheet server that fails at times.
class RandomSpreadsheet : public SpreadsheetServer {
 public:
  explicit RandomSpreadsheet(ByteSource& bytes) : bytes_(bytes) {}

  void Probe(const Text&) override {}
  void Prepare(const Text&, std::chrono::milliseconds) override {}
  void Dismiss() override {}
  std::shared_ptr<Workbook> Bind(const Text&) override {
    MayFail();
    return std::make_shared<Book>(*this);
  }
  void SetDestination(const PrintDestination&) override {}
  void FinishDestination() override { MayFail(); }

 private:
  class Sheet : public Worksheet {
   public:
    explicit Sheet(RandomSpreadsheet& server) : server_(server) {}
    void SetFontName(const Text&, const Text&) override {}
    void SetFontSize(const Text&, std::int16_t) override {}
    void SetCell(std::int16_t, std::int16_t, const Text&) override {}
    void PrintOut() override { server_.MayFail(); }

   private:
    RandomSpreadsheet& server_;
  };
  class Book : public Workbook {
   public:
    explicit Book(RandomSpreadsheet& server) : server_(server) {}
    std::shared_ptr<Worksheet> ActiveSheet() override { return std::make_shared<Sheet>(server_); }
    void SetDisplayAlerts(bool) override {}
    void Close() override {}

   private:
    RandomSpreadsheet& server_;
  };

  void MayFail() {
    if (bytes_.Next() > 240) throw RunTimeError(ErrorNumber::kAutomationError);
  }

  ByteSource& bytes_;
};

/// A machine whose every answer is the fuzzer's. Its disk has the folder /d.
struct RandomMachine {
  RandomMessages messages;
  RandomDialogs dialogs;
  RandomSurface surface;
  test::FakePrinter printer{surface};
  RandomSpreadsheet spreadsheet;
  test::FakeMachine fakes;

  explicit RandomMachine(ByteSource& bytes)
      : messages(bytes), dialogs(bytes), surface(bytes), spreadsheet(bytes) {
    fakes.files.folders.insert(u"/d");
    fakes.settings.values = {{u"ShowSplash", u"0"}, {u"FirstLoad", u"False"}};
  }

  [[nodiscard]] Machine Get() {
    return {messages,     dialogs,     fakes.settings,      fakes.files,
            fakes.copies, fakes.clock, fakes.desktop,       fakes.documentTypes,
            spreadsheet,  printer,     CodePage::Western(), u"/opt/tessara"};
  }
};

}  // namespace tessara::fuzz
