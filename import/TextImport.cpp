#include "import/TextImport.h"

#include "import/line_kinds.h"
#include "platform/conversion.h"

namespace tessara {

namespace {

enum class Progress { kNextLine, kStopped, kFailed };

bool IsDigit(char16_t character) {
  return character >= u'0' && character <= u'9';
}

Progress TakeNumberLine(const ImportContext& context) {
  ProgramState& state = context.state;
  if (!state.ImportLastLetter.empty()) ResetChoiceLetters(state);
  const TextView line = state.ImportLine;
  const std::size_t dot = line.find(u'.');
  // Without a dot nothing is there to convert: error 13.
  const std::size_t numberLength = dot == line.npos ? 0 : dot + 1;
  state.ImportCardNumber = IntegerOf(line.substr(0, numberLength));
  if (!HasEarlyDot(line)) return Progress::kStopped;
  if (!StoreExtCard(state.ImportCardNumber, state.ImportPrevCard, line.substr(numberLength),
                    context)) {
    return Progress::kFailed;
  }
  state.CardCount = state.ImportCardNumber;
  context.setCardTotal(state.CardCount);
  return Progress::kNextLine;
}

Progress TakeAnswerLine(ProgramState& state) {
  const bool stored = StoreExtAnswer(state.ImportCardNumber, state.ImportLine, state);
  return stored ? Progress::kNextLine : Progress::kFailed;
}

Progress TakeChoiceLine(const ImportContext& context) {
  constexpr std::size_t kTextStart = 2;
  ProgramState& state = context.state;
  const TextView line = state.ImportLine;
  state.ImportChoiceLetter = line.front();
  if (!HasEarlyDot(line)) return Progress::kStopped;
  if (!StoreExtChoice(state.ImportCardNumber, state.ImportChoiceLetter, state.ImportLastLetter,
                      line.substr(kTextStart), context)) {
    return Progress::kFailed;
  }
  state.ImportLastLetter = state.ImportChoiceLetter;
  return Progress::kNextLine;
}

Progress TakeLine(const ImportContext& context) {
  const TextView line = context.state.ImportLine;
  if (IsTypeLine(line)) return Progress::kNextLine;
  if (line.empty()) {
    ResetChoiceLetters(context.state);
    return Progress::kNextLine;
  }
  if (IsDigit(line.front())) return TakeNumberLine(context);
  if (line.front() == u'=') return TakeAnswerLine(context.state);
  return TakeChoiceLine(context);
}

Column ColumnOfChoice(TextView xLetter) {
  const Text letter = UpperCase(xLetter);
  if (letter == u"A") return kChoiceA;
  if (letter == u"B") return kChoiceB;
  if (letter == u"C") return kChoiceC;
  if (letter == u"D") return kChoiceD;
  return kStray;
}

/// The card type that an answer tells; empty where it is none.
TextView TypeOfAnswer(TextView answer) {
  if (answer == u"T" || answer == u"F") return u"T";
  if (answer == u"A" || answer == u"B" || answer == u"C" || answer == u"D") return u"M";
  return {};
}

}  // namespace

void ImportExtended(const Text& xFilename, const ImportContext& context) {
  try {
    if (!ReadImportFile(xFilename, context, ReadExtendedCards)) return;
    ShowImportedDeck(kExtendedDeck, context);
    ResetChoiceLetters(context.state);
    context.state.ImportCardNumber = 0;
    context.state.ImportPrevCard = 0;
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
    lines.ReadLine().swap(state.ImportLine);
    if (!state.ImportLine.empty()) ++linesWithText;
    if (state.CardCount == kMostCards && linesWithText == kLineBehindFullDeck) break;
    const Progress progress = TakeLine(context);
    if (progress == Progress::kFailed) return false;
    if (progress == Progress::kStopped) break;
  }
  return true;
}

bool StoreExtCard(std::int16_t xCard, std::int16_t xPrev, TextView xText,
                  const ImportContext& context) {
  if (!CheckCardSequence(xCard, xPrev, context.messages)) return false;
  context.state.CardGrid.Set(xCard, kCardText, BoundedText(xText));
  context.state.CardGrid.Set(xCard, kRowNumber, DecimalText(xCard));
  context.state.CardPresent.Set(xCard, 1);
  return true;
}

bool StoreExtChoice(std::int16_t xCard, TextView xLetter, TextView xLastLetter, TextView xText,
                    const ImportContext& context) {
  if (xLastLetter > xLetter) {
    context.messages.Show(u"Error in answer sequence.", kOkOnly, Text(kProgramName));
    return false;
  }
  context.state.CardGrid.Set(xCard, ColumnOfChoice(xLetter), BoundedText(xText));
  return true;
}

bool StoreExtAnswer(std::int16_t xCard, TextView xLine, ProgramState& state) {
  const Text answer = UpperCase(xLine.substr(xLine.size() - 1));
  const TextView type = TypeOfAnswer(answer);
  if (type.empty()) return false;
  state.CardGrid.Set(xCard, kAnswer, answer);
  state.CardGrid.Set(xCard, kCardType, Text(type));
  return true;
}

void ResetChoiceLetters(ProgramState& state) {
  state.ImportLastLetter.clear();
  state.ImportChoiceLetter.clear();
  state.ImportPrevCard = state.ImportCardNumber;
}

}  // namespace tessara
