#include "import/TextImport2.h"

#include "import/line_kinds.h"
#include "platform/conversion.h"

namespace tessara {

namespace {

/// Takes the lines of a file one by one; a line lies in the state's ImportLine.
class StandardReader {
 public:
  explicit StandardReader(const ImportContext& context)
      : state_(context.state), context_(context) {}

  /// False where the line is an error, which has been told.
  bool TakeLine() {
    const TextView line = state_.ImportLine;
    if (IsCardNumberLine(line)) return TakeNumberLine();
    if (state_.ImportStdCard == state_.ImportStdPrev) return RefuseLineOutsideCard();
    if (TakeTag()) return true;
    if (line.empty()) return FinishCard();
    AddText();
    return true;
  }

  /// Stores a card that the file ends in; its front must have been begun, its back need not.
  void FinishLastCard() {
    if (!seenFront_) return;
    StoreCard();
    state_.ImportStdCard = 0;
  }

 private:
  enum class Side { kNone, kFront, kBack };

  bool TakeNumberLine() {
    const TextView line = state_.ImportLine;
    state_.ImportStdCard = IntegerOf(line.substr(0, line.size() - 1));
    if (!CheckStdSequence(state_.ImportStdCard, state_.ImportStdPrev, context_.messages)) {
      return false;
    }
    state_.CardCount = state_.ImportStdCard;
    context_.setCardTotal(state_.CardCount);
    return true;
  }

  bool RefuseLineOutsideCard() {
    ShowErrorInFile(
        u"Error occurred after card # " + DecimalText(state_.ImportStdCard) + u". Import aborted.",
        context_.messages);
    return false;
  }

  bool TakeTag() {
    const bool front = IsWord(state_.ImportLine, u"*>F");
    const bool back = IsWord(state_.ImportLine, u"*>B");
    seenFront_ = seenFront_ || front;
    seenBack_ = seenBack_ || back;
    if (front) side_ = Side::kFront;
    if (back) side_ = Side::kBack;
    return front || back;
  }

  void AddText() {
    if (side_ == Side::kFront) AddBounded(front_, state_.ImportLine);
    if (side_ == Side::kBack) AddBounded(back_, state_.ImportLine);
  }

  bool FinishCard() {
    if (!seenFront_ || !seenBack_) {
      ShowErrorInFile(u"Error at card # " + DecimalText(state_.ImportStdCard) +
                          u" in import file. Import has been cancelled.",
                      context_.messages);
      return false;
    }
    StoreCard();
    state_.ImportStdPrev = state_.ImportStdCard;
    return true;
  }

  void StoreCard() {
    StoreStdCard(state_.ImportStdCard, front_, back_, state_);
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
    if (state.CardCount == kMostCards + 1) {
      state.CardCount = kMostCards;
      return true;
    }
    // Swapped, so that the memory of a long line goes with it.
    lines.ReadLine().swap(state.ImportLine);
    if (IsWord(state.ImportLine, u"*END*")) return true;
    if (!IsTypeLine(state.ImportLine) && !reader.TakeLine()) return false;
  }
  return true;
}

}  // namespace

void ImportStandard(const Text& xFilename, const ImportContext& context) {
  try {
    if (!ReadImportFile(xFilename, context, ReadStandardCards)) return;
    ShowImportedDeck(kStandardDeck, context);
    context.state.ImportStdCard = 0;
    context.state.ImportStdPrev = 0;
    // The word never reaches a file: a save takes the type from the information window.
    MarkAsImported(u"Santdard", context);
  } catch (const RunTimeError& error) {
    ImportErrorBox(error, context);
    context.messages.Show(context.state.ImportLine, kOkOnly, u"Line Containing Error:");
  }
}

bool ReadStandardCards(LineReader& lines, const ImportContext& context) {
  StandardReader reader(context);
  const bool good = TakeLines(lines, reader, context.state);
  // After an error too: a number beyond the table then raises error 9.
  reader.FinishLastCard();
  return good;
}

bool IsCardNumberLine(TextView xLine) {
  return HasEarlyDot(xLine) && IsNumeric(xLine);
}

bool CheckStdSequence(std::int16_t xCard, std::int16_t xPrev, MessageBoxes& messages) {
  return CheckCardSequence(xCard, xPrev, messages);
}

bool StoreStdCard(std::int16_t xCard, const Text& xFront, const Text& xBack, ProgramState& state) {
  state.CardGrid.Set(xCard, kCardText, xFront);
  state.CardGrid.Set(xCard, kBackText, xBack);
  state.CardGrid.Set(xCard, kRowNumber, DecimalText(xCard));
  state.CardPresent.Set(xCard, 1);
  state.CardGrid.Set(xCard, kCardType, u"E");
  return true;
}

}  // namespace tessara
