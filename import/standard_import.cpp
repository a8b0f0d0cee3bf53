#include "import/standard_import.h"

#include "base/conversion.h"
#include "deck/card_type.h"
#include "import/line_kinds.h"

namespace tessara {

namespace {

/// Takes the lines of a file one by one; a line lies in the state's ImportLine.
class StandardReader {
 public:
  explicit StandardReader(const ImportContext& context)
      : state_(context.state), context_(context) {}

  /// False where the line is an error, which has been told.
  bool TakeLine() {
    const TextView line = state_.import.line;
    if (IsCardNumberLine(line)) return TakeNumberLine();
    if (state_.import.standardCard == state_.import.previousStandardCard)
      return RefuseLineOutsideCard();
    if (TakeTag()) return true;
    if (line.empty()) return FinishCard();
    AddText();
    return true;
  }

  /// Stores a card that the file ends in; its front must have been begun, its back need not.
  void FinishLastCard() {
    if (!seenFront_) return;
    StoreCard();
    state_.import.standardCard = 0;
  }

 private:
  enum class Side { kNone, kFront, kBack };

  bool TakeNumberLine() {
    const TextView line = state_.import.line;
    state_.import.standardCard = IntegerOf(line.substr(0, line.size() - 1));
    if (!CheckStdSequence(state_.import.standardCard, state_.import.previousStandardCard,
                          context_.messages)) {
      return false;
    }
    state_.deck.cardCount = state_.import.standardCard;
    context_.setCardTotal(state_.deck.cardCount);
    return true;
  }

  bool RefuseLineOutsideCard() {
    ShowErrorInFile(u"Error occurred after card # " + DecimalText(state_.import.standardCard) +
                        u". Import aborted.",
                    context_.messages);
    return false;
  }

  bool TakeTag() {
    const bool front = IsWord(state_.import.line, u"*>F");
    const bool back = IsWord(state_.import.line, u"*>B");
    seenFront_ = seenFront_ || front;
    seenBack_ = seenBack_ || back;
    if (front) side_ = Side::kFront;
    if (back) side_ = Side::kBack;
    return front || back;
  }

  void AddText() {
    if (side_ == Side::kFront) AddBounded(front_, state_.import.line);
    if (side_ == Side::kBack) AddBounded(back_, state_.import.line);
  }

  bool FinishCard() {
    if (!seenFront_ || !seenBack_) {
      ShowErrorInFile(u"Error at card # " + DecimalText(state_.import.standardCard) +
                          u" in import file. Import has been cancelled.",
                      context_.messages);
      return false;
    }
    StoreCard();
    state_.import.previousStandardCard = state_.import.standardCard;
    return true;
  }

  void StoreCard() {
    StoreStdCard(state_.import.standardCard, front_, back_, state_);
    front_.clear();
    back_.clear();
    seenFront_ = false;
    seenBack_ = false;
  }

  ProgramState& state_;
  const ImportContext& context_;
  Side side_ = Side::kNone;  ///< survives the end of a card
  // Of the card being read.
  bool seenFront_ = false;
  bool seenBack_ = false;
  Text front_;
  Text back_;
};

/// Takes lines up to the end line, the end of the file, the card behind a full deck, or an error:
/// false.
bool TakeLines(LineReader& lines, StandardReader& reader, ProgramState& state) {
  while (!lines.AtEnd()) {
    if (state.deck.cardCount == kMostCards + 1) {
      state.deck.cardCount = kMostCards;
      return true;
    }
    // Swapped, so that the memory of a long line goes with it.
    lines.ReadLine().swap(state.import.line);
    if (IsWord(state.import.line, u"*END*")) return true;
    if (!IsTypeLine(state.import.line) && !reader.TakeLine()) return false;
  }
  return true;
}

}  // namespace

void ImportStandard(const Text& fileName, const ImportContext& context) {
  try {
    if (!ReadImportFile(fileName, context, ReadStandardCards)) return;
    ShowImportedDeck(kStandardDeck, context);
    context.state.import.standardCard = 0;
    context.state.import.previousStandardCard = 0;
    // The word never reaches a file: a save takes the type from the information window.
    MarkAsImported(u"Santdard", context);
  } catch (const RunTimeError& error) {
    ImportErrorBox(error, context);
    context.messages.Show(context.state.import.line, kOkOnly, u"Line Containing Error:");
  }
}

bool ReadStandardCards(LineReader& lines, const ImportContext& context) {
  StandardReader reader(context);
  const bool good = TakeLines(lines, reader, context.state);
  // After an error too: a number beyond the table then raises error 9.
  reader.FinishLastCard();
  return good;
}

bool IsCardNumberLine(TextView line) {
  return HasEarlyDot(line) && IsNumeric(line);
}

bool CheckStdSequence(std::int16_t card, std::int16_t previous, MessageBoxes& messages) {
  return CheckCardSequence(card, previous, messages);
}

bool StoreStdCard(std::int16_t card, const Text& front, const Text& back, ProgramState& state) {
  state.deck.cardGrid.Set(card, kCardText, front);
  state.deck.cardGrid.Set(card, kBackText, back);
  state.deck.cardGrid.Set(card, kRowNumber, DecimalText(card));
  state.deck.cardPresent.Set(card, 1);
  state.deck.cardGrid.Set(card, kCardType, Text(LetterOf(CardType::kText)));
  return true;
}

}  // namespace tessara
