#pragma once

#include "fuzz/one_file.h"
#include "fuzz/require.h"
#include "fuzz/saved_deck.h"
#include "import/import_common.h"

namespace tessara::fuzz {

/// One import of the fuzzer's bytes, and what must be true behind each.
class ImportRun : private MessageBoxes {
 public:
  ImportRun(const std::uint8_t* data, std::size_t size) : files_(data, size) {}

  ImportContext Context() {
    return {state_,
            fileNumber_,
            *this,
            CodePage::Western(),
            {2026, 1, 5},
            [](std::int16_t) {},
            [this](DeckKind) { shown_ = true; }};
  }

  void CheckOutcome() const {
    Require(state_.deck.cardCount >= 0 && state_.deck.cardCount < kRows);
    Require(fileNumber_.IsOpen() == unforeseen_);
    Require(shown_ == state_.deck.changed);
    Require(shown_ == (state_.deck.cardPresent.At(kInfoRow) == 1));
    for (int row = 1; row <= kMostCards; ++row) CheckRow(row);
    if (shown_) RequireSaved(state_);
  }

 private:
  void CheckRow(int row) const {
    const bool present = state_.deck.cardPresent.At(row) != 0;
    Require(shown_ || !present);
    Require(!present || state_.deck.Cell(row, kRowNumber) == DecimalText(row));
  }
  MessageAnswer Show(const Text&, int, const Text& title) override {
    unforeseen_ = unforeseen_ || title == u"Import Error";
    return MessageAnswer::kOk;
  }

  OneFile files_;
  FileNumber fileNumber_{files_};
  ProgramState state_;
  bool shown_ = false;
  bool unforeseen_ = false;
};

}  // namespace tessara::fuzz
