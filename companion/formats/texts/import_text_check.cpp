
#include <memory>

#include "companion/formats/texts/import_text_format.h"
#include "companion/formats/texts/opened_text.h"
#include "import/cards_reading.h"

namespace tessara {

namespace {

struct EventWords {
  Severity severity;
  const char* words;
};

constexpr EventWords kUnfinishedBefore = {Severity::kError,
                                          "no empty line finishes the card before it"};

EventWords WordsOf(ImportEvent event) {
  switch (event) {
    case ImportEvent::kBadFirstCard:
      return {Severity::kError, "the first card's number is not 1"};
    case ImportEvent::kBadSequence:
      return {Severity::kError, "its number is not one above the last finished card's"};
    case ImportEvent::kLineOutsideCard:
      return {Severity::kError, "a card's number is due here"};
    case ImportEvent::kSideMissing:
      return {Severity::kError, R"(it ends without both of the lines "*>F" and "*>B")"};
    case ImportEvent::kBadChoiceOrder:
      return {Severity::kError, "the letters of its choices go backward"};
    case ImportEvent::kBadAnswer:
      return {Severity::kError, "the last character of its answer is none of T, F, A, B, C, D"};
    case ImportEvent::kUnforeseen:
      return {Severity::kError, "its number cannot be read, or is no card's"};
    case ImportEvent::kStrayLine:
      return {Severity::kLoss, "reading ends at this line, which is of no kind"};
    case ImportEvent::kDeckFull:
      return {Severity::kLoss, "a deck holds 200 cards: what follows is not kept"};
    case ImportEvent::kBehindEnd:
      return {Severity::kLoss, "what stands behind the line \"*END*\" is not read"};
    case ImportEvent::kTypeLine:
      return {Severity::kLoss, "a line that names a format is passed over"};
    case ImportEvent::kTextBeforeTag:
      return {Severity::kLoss, R"(text before the first "*>F" or "*>B" is passed over)"};
    case ImportEvent::kNumberRepeated:
      return {Severity::kLoss, "its number stands there again and is passed over"};
    case ImportEvent::kEmptyCard:
      return {Severity::kLoss, "there is nothing behind its number"};
    case ImportEvent::kLineBeforeCard:
      return {Severity::kLoss, "a line before the first card is passed over"};
    case ImportEvent::kUnknownLetter:
      return {Severity::kLoss, "a choice that is none of A to D is passed over"};
    case ImportEvent::kChoiceRepeated:
      return {Severity::kLoss, "a choice takes the place of an earlier one"};
    case ImportEvent::kAnswerRepeated:
      return {Severity::kLoss, "an answer takes the place of an earlier one"};
    case ImportEvent::kTextTooLong:
      return {Severity::kLoss, "a text is cut: it is longer than an import reads"};
    case ImportEvent::kNoAnswer:
      return {Severity::kRemark, "it has no answer"};
    case ImportEvent::kNoBack:
      return {Severity::kRemark, "it has no back"};
  }
  return {Severity::kRemark, ""};
}

/// Hands on all that a reader meets.
class FindingsListener : public ImportListener {
 public:
  FindingsListener(const Source& source, Findings& findings)
      : source_(source), findings_(findings) {}

  void MeetCard(std::int16_t, std::size_t) override { ++cards_; }
  void Meet(const ImportFinding& finding) override {
    const EventWords words =
        IsUnfinishedBefore(finding) ? kUnfinishedBefore : WordsOf(finding.event);
    const auto card = static_cast<std::size_t>(finding.card > 0 ? finding.card : 0);
    findings_.Report({&source_.name, finding.line, card}, words.severity, words.words);
  }
  [[nodiscard]] bool GoesOn() const override { return true; }
  [[nodiscard]] bool HasCards() const { return cards_ > 0; }

 private:
  /// Where a card was read but none is finished, the next one is taken for the first.
  [[nodiscard]] bool IsUnfinishedBefore(const ImportFinding& finding) const {
    return finding.event == ImportEvent::kBadFirstCard && HasCards();
  }

  const Source& source_;
  Findings& findings_;
  std::size_t cards_ = 0;
};

}  // namespace

void CheckImportText(const Source& source, const CodePage& codePage, Findings& findings) {
  const auto reader = ReaderOf(source, codePage);
  if (reader == nullptr) {
    findings.Report({&source.name, 1}, Severity::kError, "the first line is neither STD nor EXT");
    return;
  }
  OpenedText text(source, codePage);
  const auto state = std::make_unique<ProgramState>();
  FindingsListener listener(source, findings);
  CardsReading reading(text.Lines(), *state, listener);
  // All that it would return has been told.
  static_cast<void>(reader(reading));
  if (!listener.HasCards()) findings.Report({&source.name}, Severity::kError, "it holds no cards");
}

}  // namespace tessara
