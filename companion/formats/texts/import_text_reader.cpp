
#include <array>
#include <memory>

#include "companion/cards/complaints.h"
#include "companion/formats/texts/import_text_format.h"
#include "companion/formats/texts/opened_text.h"
#include "deck/file/deck_file.h"
#include "import/extended_import.h"
#include "import/line_kinds.h"
#include "import/standard_import.h"

namespace tessara {

namespace {

/// Tells what gets lost, and notes whether the text is taken at all.
class FindingsAsLosses : public Findings {
 public:
  explicit FindingsAsLosses(Losses& losses) : losses_(losses) {}

  void Report(const Place& place, Severity severity, const std::string& what) override {
    if (severity == Severity::kRemark) return;
    losses_.Tell(place, what);
    refused_ = refused_ || severity == Severity::kError;
  }
  [[nodiscard]] bool AreRefused() const { return refused_; }

 private:
  Losses& losses_;
  bool refused_ = false;
};

/// Notes where each card begins.
class LinesOfCards : public ImportListener {
 public:
  void MeetCard(std::int16_t card, std::size_t line) override {
    lines_.at(static_cast<std::size_t>(card)) = line;
  }
  void Meet(const ImportFinding&) override {}
  [[nodiscard]] bool GoesOn() const override { return false; }
  [[nodiscard]] std::size_t LineOf(int card) const {
    return lines_[static_cast<std::size_t>(card)];
  }

 private:
  std::array<std::size_t, kRows> lines_{};
};

/// A question without an answer has no type in the table.
void TakeType(DeckRecord& record) {
  if (record.cardType.empty()) record.cardType = LetterOf(CardType::kMultipleChoice);
}

}  // namespace

CardsReader ReaderOf(const Source& source, const CodePage& codePage) {
  OpenedText text(source, codePage);
  LineReader& lines = text.Lines();
  const Text format = lines.AtEnd() ? Text() : lines.ReadLine();
  if (IsWord(format, kExtendedWord)) return ReadExtendedCards;
  return IsWord(format, kStandardWord) ? ReadStandardCards : nullptr;
}

CardSet ReadImportText(const Source& source, const Conversion& conversion) {
  FindingsAsLosses findings(conversion.losses);
  CheckImportText(source, conversion.codePage, findings);
  if (findings.AreRefused()) throw Refused({&source.name}, "the program does not import it");
  const CardsReader reader = ReaderOf(source, conversion.codePage);
  OpenedText text(source, conversion.codePage);
  const auto state = std::make_unique<ProgramState>();
  LinesOfCards places;
  CardsReading reading(text.Lines(), *state, places);
  static_cast<void>(reader(reading));
  CardSet set;
  set.kind = reader == ReadExtendedCards ? kExtendedDeck : kStandardDeck;
  for (int row = 1; row <= kMostCards; ++row) {
    if (state->deck.cardPresent.At(row) == 0) continue;
    const Place place{&source.name, places.LineOf(row), static_cast<std::size_t>(row)};
    SourceCard card{RecordOfRow(*state, row), place};
    TakeType(card.record);
    AddCard(set, std::move(card));
  }
  return set;
}

}  // namespace tessara
