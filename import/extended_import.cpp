#include "import/extended_import.h"

#include "base/conversion.h"
#include "deck/answer_key.h"
#include "deck/card_type.h"
#include "import/line_kinds.h"

namespace tessara {

namespace {

enum class Progress { kNextLine, kStopped, kFailed };

bool IsDigit(char16_t character) {
  return character >= u'0' && character <= u'9';
}

/// The characters up to the first dot as a number. Without a dot nothing is there to convert:
/// error 13.
std::int16_t NumberOfLine(TextView line) {
  const std::size_t dot = line.find(u'.');
  return IntegerOf(line.substr(0, dot == line.npos ? 0 : dot + 1));
}

/// Tells of a question that is left without an answer.
void LeaveQuestion(CardsReading& reading) {
  const ProgramState& state = reading.State();
  const std::int16_t card = state.import.cardNumber;
  const bool isCard = card >= 1 && card <= kMostCards && state.deck.cardPresent.At(card) != 0;
  if (isCard && state.deck.Cell(card, kAnswer).empty()) reading.Meet(ImportEvent::kNoAnswer, card);
}

Progress TakeNumberLine(CardsReading& reading) {
  ProgramState& state = reading.State();
  LeaveQuestion(reading);
  if (!state.import.lastLetter.empty()) ResetChoiceLetters(state);
  const TextView line = state.import.line;
  state.import.cardNumber = NumberOfLine(line);
  if (!HasEarlyDot(line)) return Progress::kStopped;
  if (!StoreExtCard(state.import.cardNumber, state.import.previousCard,
                    line.substr(line.find(u'.') + 1), reading)) {
    return Progress::kFailed;
  }
  state.deck.cardCount = state.import.cardNumber;
  reading.MeetCard(state.deck.cardCount);
  return Progress::kNextLine;
}

/// Tells of a line that gets lost, or makes an earlier one of its card so.
void MeetLoss(CardsReading& reading, Column column, ImportEvent repeated) {
  const std::int16_t card = reading.State().import.cardNumber;
  if (card == kInfoRow) {
    reading.Meet(ImportEvent::kLineBeforeCard, card);
  } else if (column == kStray) {
    reading.Meet(ImportEvent::kUnknownLetter, card);
  } else if (!reading.State().deck.Cell(card, column).empty()) {
    reading.Meet(repeated, card);
  }
}

Progress TakeAnswerLine(CardsReading& reading) {
  ProgramState& state = reading.State();
  MeetLoss(reading, kAnswer, ImportEvent::kAnswerRepeated);
  if (StoreExtAnswer(state.import.cardNumber, state.import.line, state)) return Progress::kNextLine;
  reading.Meet(ImportEvent::kBadAnswer, state.import.cardNumber);
  return Progress::kFailed;
}

Progress TakeChoiceLine(CardsReading& reading) {
  constexpr std::size_t kTextStart = 2;
  ProgramState& state = reading.State();
  const TextView line = state.import.line;
  state.import.choiceLetter = line.front();
  if (!HasEarlyDot(line)) return Progress::kStopped;
  if (!StoreExtChoice(state.import.cardNumber, state.import.choiceLetter, state.import.lastLetter,
                      line.substr(kTextStart), reading)) {
    return Progress::kFailed;
  }
  state.import.lastLetter = state.import.choiceLetter;
  return Progress::kNextLine;
}

Progress TakeLine(CardsReading& reading) {
  const TextView line = reading.State().import.line;
  if (IsTypeLine(line)) {
    reading.MeetTypeLine(reading.State().import.cardNumber);
    return Progress::kNextLine;
  }
  if (line.empty()) {
    ResetChoiceLetters(reading.State());
    return Progress::kNextLine;
  }
  if (IsDigit(line.front())) return TakeNumberLine(reading);
  if (line.front() == u'=') return TakeAnswerLine(reading);
  return TakeChoiceLine(reading);
}

/// For a listener that wants to know what follows, a run-time error is a line that fails.
Progress TakeLineOrMeet(CardsReading& reading) {
  try {
    const Progress progress = TakeLine(reading);
    if (progress == Progress::kStopped)
      reading.Meet(ImportEvent::kStrayLine, reading.State().import.cardNumber);
    return progress;
  } catch (const RunTimeError&) {
    if (!reading.GoesOn()) throw;
    reading.Meet(ImportEvent::kUnforeseen, reading.State().import.cardNumber);
    return Progress::kFailed;
  }
}

/// Makes the line's card the next in sequence, where the line begins one.
bool ResumesAtCard(ProgramState& state) {
  const TextView line = state.import.line;
  if (line.empty() || !IsDigit(line.front()) || !HasEarlyDot(line)) return false;
  const TextView number = line.substr(0, line.find(u'.') + 1);
  if (!IsNumeric(number) || !IsNumberOfCard(NumberOf(number))) return false;
  state.import.previousCard = static_cast<std::int16_t>(NumberOfLine(line) - 1);
  state.import.cardNumber = kInfoRow;
  state.import.lastLetter.clear();
  return true;
}

Column ColumnOfChoice(TextView letter) {
  const Text key = UpperCase(letter);
  return IsChoiceKey(key) ? static_cast<Column>(kChoiceA + AnswerIndex(key)) : kStray;
}

/// The card type that an answer tells; empty where it is none.
TextView TypeOfAnswer(TextView answer) {
  if (IsTrueFalseKey(answer)) return LetterOf(CardType::kTrueFalse);
  return IsChoiceKey(answer) ? LetterOf(CardType::kMultipleChoice) : TextView();
}

}  // namespace

void ImportExtended(const Text& fileName, const ImportContext& context) {
  try {
    if (!ReadImportFile(fileName, context, ReadExtendedCards)) return;
    ShowImportedDeck(kExtendedDeck, context);
    ResetChoiceLetters(context.state);
    context.state.import.cardNumber = 0;
    context.state.import.previousCard = 0;
    MarkAsImported(u"Extended", context);
  } catch (const RunTimeError& error) {
    AbandonImport(error, context);
  }
}

bool ReadExtendedCards(CardsReading& reading) {
  // One type line, 200 cards of six lines each, and the line behind them.
  constexpr std::size_t kLineBehindFullDeck = 1202;
  ProgramState& state = reading.State();
  std::size_t linesWithText = 0;
  bool good = true;
  bool searching = false;
  while (!reading.AtEnd()) {
    reading.NextLine();
    if (!state.import.line.empty()) ++linesWithText;
    if (state.deck.cardCount == kMostCards && linesWithText == kLineBehindFullDeck) {
      reading.Meet(ImportEvent::kDeckFull, kMostCards);
      break;
    }
    if (searching && !ResumesAtCard(state)) continue;
    const Progress progress = TakeLineOrMeet(reading);
    searching = progress != Progress::kNextLine;
    good = good && progress != Progress::kFailed;
    if (searching && !reading.GoesOn()) break;
  }
  LeaveQuestion(reading);
  return good;
}

bool StoreExtCard(std::int16_t card, std::int16_t previous, TextView text, CardsReading& reading) {
  if (!CheckCardSequence(card, previous, reading)) return false;
  Deck& deck = reading.State().deck;
  deck.cardGrid.Set(card, kCardText, BoundedText(text));
  deck.cardGrid.Set(card, kRowNumber, DecimalText(card));
  deck.cardPresent.Set(card, 1);
  if (text.size() > kLongestImportedText) reading.Meet(ImportEvent::kTextTooLong, card);
  // These come into the table, and into a file, but a load takes no more than a deck holds.
  if (card == kMostCards + 1) reading.Meet(ImportEvent::kDeckFull, kMostCards);
  return true;
}

bool StoreExtChoice(std::int16_t card, TextView letter, TextView lastLetter, TextView text,
                    CardsReading& reading) {
  if (lastLetter > letter) {
    reading.Meet(ImportEvent::kBadChoiceOrder, card);
    return false;
  }
  const Column column = ColumnOfChoice(letter);
  MeetLoss(reading, column, ImportEvent::kChoiceRepeated);
  reading.State().deck.cardGrid.Set(card, column, BoundedText(text));
  if (text.size() > kLongestImportedText) reading.Meet(ImportEvent::kTextTooLong, card);
  return true;
}

bool StoreExtAnswer(std::int16_t card, TextView line, ProgramState& state) {
  const Text answer = UpperCase(line.substr(line.size() - 1));
  const TextView type = TypeOfAnswer(answer);
  if (type.empty()) return false;
  state.deck.cardGrid.Set(card, kAnswer, answer);
  state.deck.cardGrid.Set(card, kCardType, Text(type));
  return true;
}

void ResetChoiceLetters(ProgramState& state) {
  state.import.lastLetter.clear();
  state.import.choiceLetter.clear();
  state.import.previousCard = state.import.cardNumber;
}

}  // namespace tessara
