#include "import/extended_import.h"

#include "base/conversion.h"
#include "deck/card_type.h"
#include "import/line_kinds.h"

namespace tessara {

namespace {

enum class Progress { kNextLine, kStopped, kFailed };

bool IsDigit(char16_t character) {
  return character >= u'0' && character <= u'9';
}

Progress TakeNumberLine(const ImportContext& context) {
  ProgramState& state = context.state;
  if (!state.import.lastLetter.empty()) ResetChoiceLetters(state);
  const TextView line = state.import.line;
  const std::size_t dot = line.find(u'.');
  // Without a dot nothing is there to convert: error 13.
  const std::size_t numberLength = dot == line.npos ? 0 : dot + 1;
  state.import.cardNumber = IntegerOf(line.substr(0, numberLength));
  if (!HasEarlyDot(line)) return Progress::kStopped;
  if (!StoreExtCard(state.import.cardNumber, state.import.previousCard, line.substr(numberLength),
                    context)) {
    return Progress::kFailed;
  }
  state.deck.cardCount = state.import.cardNumber;
  context.setCardTotal(state.deck.cardCount);
  return Progress::kNextLine;
}

Progress TakeAnswerLine(ProgramState& state) {
  const bool stored = StoreExtAnswer(state.import.cardNumber, state.import.line, state);
  return stored ? Progress::kNextLine : Progress::kFailed;
}

Progress TakeChoiceLine(const ImportContext& context) {
  constexpr std::size_t kTextStart = 2;
  ProgramState& state = context.state;
  const TextView line = state.import.line;
  state.import.choiceLetter = line.front();
  if (!HasEarlyDot(line)) return Progress::kStopped;
  if (!StoreExtChoice(state.import.cardNumber, state.import.choiceLetter, state.import.lastLetter,
                      line.substr(kTextStart), context)) {
    return Progress::kFailed;
  }
  state.import.lastLetter = state.import.choiceLetter;
  return Progress::kNextLine;
}

Progress TakeLine(const ImportContext& context) {
  const TextView line = context.state.import.line;
  if (IsTypeLine(line)) return Progress::kNextLine;
  if (line.empty()) {
    ResetChoiceLetters(context.state);
    return Progress::kNextLine;
  }
  if (IsDigit(line.front())) return TakeNumberLine(context);
  if (line.front() == u'=') return TakeAnswerLine(context.state);
  return TakeChoiceLine(context);
}

Column ColumnOfChoice(TextView letter) {
  const Text upper = UpperCase(letter);
  if (upper == u"A") return kChoiceA;
  if (upper == u"B") return kChoiceB;
  if (upper == u"C") return kChoiceC;
  if (upper == u"D") return kChoiceD;
  return kStray;
}

/// The card type that an answer tells; empty where it is none.
TextView TypeOfAnswer(TextView answer) {
  if (answer == u"T" || answer == u"F") return LetterOf(CardType::kTrueFalse);
  if (answer == u"A" || answer == u"B" || answer == u"C" || answer == u"D")
    return LetterOf(CardType::kMultipleChoice);
  return {};
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
    ImportErrorBox(error, context);
  }
}

bool ReadExtendedCards(LineReader& lines, const ImportContext& context) {
  // One type line, 200 cards of six lines each, and the line behind them.
  constexpr std::size_t kLineBehindFullDeck = 1202;
  ProgramState& state = context.state;
  std::size_t linesWithText = 0;
  while (!lines.AtEnd()) {
    // Swapped, so that the memory of a long line goes with it.
    lines.ReadLine().swap(state.import.line);
    if (!state.import.line.empty()) ++linesWithText;
    if (state.deck.cardCount == kMostCards && linesWithText == kLineBehindFullDeck) break;
    const Progress progress = TakeLine(context);
    if (progress == Progress::kFailed) return false;
    if (progress == Progress::kStopped) break;
  }
  return true;
}

bool StoreExtCard(std::int16_t card, std::int16_t previous, TextView text,
                  const ImportContext& context) {
  if (!CheckCardSequence(card, previous, context.messages)) return false;
  context.state.deck.cardGrid.Set(card, kCardText, BoundedText(text));
  context.state.deck.cardGrid.Set(card, kRowNumber, DecimalText(card));
  context.state.deck.cardPresent.Set(card, 1);
  return true;
}

bool StoreExtChoice(std::int16_t card, TextView letter, TextView lastLetter, TextView text,
                    const ImportContext& context) {
  if (lastLetter > letter) {
    context.messages.Show(u"Error in answer sequence.", kOkOnly, Text(kProgramName));
    return false;
  }
  context.state.deck.cardGrid.Set(card, ColumnOfChoice(letter), BoundedText(text));
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
