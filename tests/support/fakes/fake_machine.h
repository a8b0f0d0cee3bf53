#pragma once

#include <functional>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "base/code_page.h"
#include "base/run_time_error.h"
#include "machine/clock.h"
#include "machine/desktop.h"
#include "machine/document_types.h"
#include "machine/machine.h"
#include "machine/print_surface.h"
#include "machine/safety_copies.h"
#include "machine/settings_store.h"
#include "machine/spreadsheet.h"
#include "tests/support/fakes/fake_dialogs.h"
#include "tests/support/fakes/fake_messages.h"
#include "tests/support/fakes/memory_files.h"

namespace tessara::test {

class FakeSettings : public SettingsStore {
 public:
  std::map<Text, Text> values;
  mutable std::vector<Text> readKeys;  ///< in the order of their reading
  std::vector<std::pair<Text, Text>> writes;

  [[nodiscard]] Text Read(const Text& key, const Text& defaultValue) const override {
    readKeys.push_back(key);
    const auto found = values.find(key);
    return found == values.end() ? defaultValue : found->second;
  }
  void Write(const Text& key, const Text& value) override {
    writes.emplace_back(key, value);
    values[key] = value;
  }
};

/// Notes the files that are to be kept, each with the bytes that it had then, and the decks.
class FakeCopies : public SafetyCopies {
 public:
  explicit FakeCopies(const MemoryFiles& files) : files_(files) {}

  using Deck = std::pair<Text, std::string>;

  std::vector<Deck> kept;
  std::vector<Loss> losses;  ///< what the saves were about to do, one for each
  std::vector<Deck> notSaved;
  std::optional<Deck> unsaved;  ///< the open deck
  int unsavedWrites = 0;
  std::vector<Deck> leftUnsaved;
  std::vector<LeftDeck> leftBefore;  ///< by programs that have ended
  bool full = false;                 ///< nothing that has no file can be kept

  void Keep(const Text& path, Loss loss) noexcept override {
    losses.push_back(loss);
    if (files_.Has(path)) kept.emplace_back(path, files_.Bytes(path));
  }
  Text KeepNotSaved(const Text& fileName, std::string_view deck) noexcept override {
    if (full) return {};
    notSaved.emplace_back(fileName, deck);
    unsaved.reset();
    return u"/copies/" + fileName;
  }
  void KeepUnsaved(const Text& fileName, std::string_view deck) noexcept override {
    ++unsavedWrites;
    if (!full) unsaved.emplace(unsaved ? unsaved->first : fileName, deck);
  }
  void DropUnsaved() noexcept override { unsaved.reset(); }
  void LeaveUnsaved() noexcept override {
    if (unsaved) leftUnsaved.push_back(*unsaved);
    unsaved.reset();
  }
  std::vector<LeftDeck> TakeLeftDecks() noexcept override { return std::exchange(leftBefore, {}); }

 private:
  const MemoryFiles& files_;
};

class FakeClock : public Clock {
 public:
  Date today{2026, 1, 5};
  [[nodiscard]] Date Today() const override { return today; }
};

class FakeDesktop : public Desktop {
 public:
  bool previousInstance = false;
  Text documentsFolder = u"/home/ann/Documents";
  int openResult = kOpenSucceeded;
  int screenWidth = 1024;
  int screenHeight = 768;
  int yields = 0;
  std::function<void()> whileYielding;  ///< runs in each yield
  std::vector<Text> opened;
  std::vector<Text> helpShown;
  std::vector<std::pair<Text, Text>> notices;  ///< title and text
  std::vector<MousePointer> pointers;

  bool PreviousInstance() override { return previousInstance; }
  int Open(const Text& target) override {
    opened.push_back(target);
    return openResult;
  }
  [[nodiscard]] Text DocumentsFolder() const override { return documentsFolder; }
  void ShowHelp(const Text& path) override { helpShown.push_back(path); }
  void Notify(const Text& title, const Text& text) override { notices.emplace_back(title, text); }
  void SetMousePointer(MousePointer pointer) override { pointers.push_back(pointer); }
  void Yield() override {
    ++yields;
    if (whileYielding) whileYielding();
  }
  [[nodiscard]] int ScreenWidth() const override { return screenWidth; }
  [[nodiscard]] int ScreenHeight() const override { return screenHeight; }
};

class FakeDocumentTypes : public DocumentTypes {
 public:
  std::vector<DocumentType> declared;

  void Declare(const DocumentType& type) override { declared.push_back(type); }
};

/// A machine without a spreadsheet server.
class NoSpreadsheet : public SpreadsheetServer {
 public:
  void Probe(const Text&) override { throw RunTimeError(ErrorNumber::kAutomationClassNotFound); }
  void Prepare(const Text&, std::chrono::milliseconds) override {}
  void Dismiss() override {}
  std::shared_ptr<Workbook> Bind(const Text&) override {
    throw RunTimeError(ErrorNumber::kAutomationClassNotFound);
  }
  void SetDestination(const PrintDestination&) override {}
  void FinishDestination() override {}
};

/// A machine without a printer.
class NoPrintSurface : public PrintSurface {
 public:
  void SetDestination(const PrintDestination&) override {}
  void SetCopies(int) override { Fail(); }
  void SetFontName(const Text&) override { Fail(); }
  void SetFontSize(double) override { Fail(); }
  void SetBold(bool) override { Fail(); }
  void SetItalic(bool) override { Fail(); }
  void PrintLine(const Text&) override { Fail(); }
  void DrawLine(double, double, double, double) override { Fail(); }
  [[nodiscard]] double CurrentY() const override { return 0; }
  [[nodiscard]] double PageWidth() const override { return 0; }
  [[nodiscard]] double PageHeight() const override { return 0; }
  [[nodiscard]] double TextWidth(const Text&) const override { return 0; }
  [[nodiscard]] double TextHeight(const Text&) const override { return 0; }
  void NewPage() override { Fail(); }
  void EndDocument() override { Fail(); }
  void DropDocument() override {}

 private:
  static void Fail() { throw RunTimeError(ErrorNumber::kPrinterError); }
};

/// The printer whose surface is there from the start.
class FakePrinter : public Printer {
 public:
  explicit FakePrinter(PrintSurface& surface) : surface_(surface) {}
  PrintSurface& Surface() override { return surface_; }

 private:
  PrintSurface& surface_;
};

/// A whole machine of fakes. A test replaces what it is about, for example the spreadsheet
/// server, by making a Machine of its own from these parts.
struct FakeMachine {
  FakeMessages messages;
  FakeDialogs dialogs;
  FakeSettings settings;
  MemoryFiles files;
  FakeCopies copies{files};
  FakeClock clock;
  FakeDesktop desktop;
  FakeDocumentTypes documentTypes;
  NoSpreadsheet noSpreadsheet;
  NoPrintSurface noSurface;
  FileSystem* fileSystem = &files;
  SafetyCopies* safetyCopies = &copies;
  Dialogs* chooser = &dialogs;
  SpreadsheetServer* spreadsheet = &noSpreadsheet;
  FakePrinter noPrinter{noSurface};
  Printer* printer = &noPrinter;

  [[nodiscard]] Machine Get() {
    return {
        messages, *chooser,      settings,     *fileSystem, *safetyCopies,       clock,
        desktop,  documentTypes, *spreadsheet, *printer,    CodePage::Western(), u"/opt/tessara"};
  }
};

}  // namespace tessara::test
