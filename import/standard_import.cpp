#include "import/standard_import.h"

#include "base/conversion.h"
#include "deck/card_type.h"
#include "import/import_error_boxes.h"
#include "import/line_kinds.h"

namespace tessara {

namespace {

/// Takes the lines of a file one by one; a line lies in the state's ImportLine.
class StandardReader {
 public:
  explicit StandardReader(CardsReading& reading) : state_(reading.State()), reading_(reading) {}

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

  /// Makes the line's card the next in sequence, where the line begins one.
  bool ResumesAtCard() {
    const TextView line = state_.import.line;
    if (!IsCardNumberLine(line) || !IsNumberOfCard(NumberOf(line))) return false;
    state_.import.previousStandardCard = static_cast<std::int16_t>(NumberOfLine(line) - 1);
    LeaveCard();
    return true;
  }

  /// Drops the card that an error stands in.
  void LeaveCard() {
    ForgetTexts();
    state_.import.standardCard = state_.import.previousStandardCard;
  }

  /// Stores a card that the file ends in; its front must have been begun, its back need not.
  void FinishLastCard() {
    const std::int16_t card = state_.import.standardCard;
    if (!seenFront_) {
      // The card behind a full deck was left as it began.
      const bool isBegun = card != state_.import.previousStandardCard && card <= kMostCards;
      if (isBegun) reading_.Meet(ImportEvent::kEmptyCard, card);
      return;
    }
    if (!seenBack_) reading_.Meet(ImportEvent::kNoBack, card);
    StoreCard();
    state_.import.standardCard = 0;
  }

 private:
  enum class Side { kNone, kFront, kBack };

  bool TakeNumberLine() {
    const std::int16_t before = state_.import.standardCard;
    const std::int16_t previous = state_.import.previousStandardCard;
    const std::int16_t card = NumberOfLine(state_.import.line);
    state_.import.standardCard = card;
    if (!CheckCardSequence(card, previous, reading_)) return false;
    if (card == before) reading_.Meet(ImportEvent::kNumberRepeated, card);
    state_.deck.cardCount = card;
    reading_.MeetCard(card);
    return true;
  }

  static std::int16_t NumberOfLine(TextView line) {
    return IntegerOf(line.substr(0, line.size() - 1));
  }

  bool RefuseLineOutsideCard() {
    reading_.Meet(ImportEvent::kLineOutsideCard, state_.import.standardCard);
    return false;
  }

  bool TakeTag() {
    const bool front = IsWord(state_.import.line, kFrontTag);
    const bool back = IsWord(state_.import.line, kBackTag);
    seenFront_ = seenFront_ || front;
    seenBack_ = seenBack_ || back;
    if (front) side_ = Side::kFront;
    if (back) side_ = Side::kBack;
    return front || back;
  }

  void AddText() {
    const std::int16_t card = state_.import.standardCard;
    if (side_ == Side::kNone) return reading_.Meet(ImportEvent::kTextBeforeTag, card);
    Text& text = side_ == Side::kFront ? front_ : back_;
    if (!AddBounded(text, state_.import.line)) reading_.Meet(ImportEvent::kTextTooLong, card);
  }

  bool FinishCard() {
    if (!seenFront_ || !seenBack_) {
      reading_.Meet(ImportEvent::kSideMissing, state_.import.standardCard);
      return false;
    }
    StoreCard();
    state_.import.previousStandardCard = state_.import.standardCard;
    return true;
  }

  void StoreCard() {
    StoreStdCard(state_.import.standardCard, front_, back_, state_);
    ForgetTexts();
  }

  void ForgetTexts() {
    front_.clear();
    back_.clear();
    seenFront_ = false;
    seenBack_ = false;
  }

  ProgramState& state_;
  CardsReading& reading_;
  Side side_ = Side::kNone;  ///< survives the end of a card
  // Of the card being read.
  bool seenFront_ = false;
  bool seenBack_ = false;
  Text front_;
  Text back_;
};

/// For a listener that wants to know what follows, a run-time error is a line that fails.
bool TakeLineOrMeet(StandardReader& reader, CardsReading& reading) {
  try {
    return reader.TakeLine();
  } catch (const RunTimeError&) {
    if (!reading.GoesOn()) throw;
    reading.Meet(ImportEvent::kUnforeseen, reading.State().import.standardCard);
    return false;
  }
}

/// Only a listener that goes on is interested in what stands behind the end.
void LeaveRest(CardsReading& reading) {
  const std::int16_t card = reading.State().deck.cardCount;
  if (reading.GoesOn() && reading.FindText()) reading.Meet(ImportEvent::kBehindEnd, card);
}

/// Takes lines up to the end line, the end of the file, the card behind a full deck, or an error:
/// false.
bool TakeLines(CardsReading& reading, StandardReader& reader) {
  ProgramState& state = reading.State();
  bool good = true;
  bool searching = false;
  while (!reading.AtEnd()) {
    if (state.deck.cardCount == kMostCards + 1) {
      state.deck.cardCount = kMostCards;
      reading.Meet(ImportEvent::kDeckFull, kMostCards);
      break;
    }
    reading.NextLine();
    if (IsWord(state.import.line, kEndWord)) {
      LeaveRest(reading);
      break;
    }
    if (IsTypeLine(state.import.line)) {
      reading.MeetTypeLine(state.deck.cardCount);
      continue;
    }
    if (searching && !reader.ResumesAtCard()) continue;
    searching = !TakeLineOrMeet(reader, reading);
    good = good && !searching;
    if (searching && !reading.GoesOn()) break;
    if (searching) reader.LeaveCard();
  }
  return good;
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
    AbandonImport(error, context);
    ShowLineWithError(context.state.import.line, context.messages);
  }
}

bool ReadStandardCards(CardsReading& reading) {
  StandardReader reader(reading);
  const bool good = TakeLines(reading, reader);
  // After an error too: a number beyond the table then raises error 9.
  reader.FinishLastCard();
  return good;
}

bool IsCardNumberLine(TextView line) {
  return HasEarlyDot(line) && IsNumeric(line);
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
