#include <optional>

#include "companion/cards/text_form.h"
#include "companion/formats/texts/import_text_format.h"
#include "deck/answer_key.h"
#include "import/import_common.h"
#include "import/line_kinds.h"
#include "import/standard_import.h"
#include "import/text_traits.h"
#include "import/utf8_check.h"

namespace tessara {

namespace {

/// True where the standard reader takes the line for something else than a side's text.
bool IsLineOfFormat(TextView line) {
  return IsTypeLine(line) || IsCardNumberLine(line) || IsWord(line, kEndWord) ||
         IsWord(line, kFrontTag) || IsWord(line, kBackTag);
}

/// Where the line is to be split so that neither half is a line of the format; 0 for nowhere.
std::size_t SplitPlace(TextView line) {
  for (std::size_t at = 1; at < line.size(); ++at) {
    if (!IsLineOfFormat(line.substr(0, at)) && !IsLineOfFormat(line.substr(at))) return at;
  }
  return 0;
}

/// Writes the lines of one text. All of its losses have a place.
class TextLines {
 public:
  explicit TextLines(Losses& losses) : losses_(losses) {}

  void Add(TextView line) {
    text_ += line;
    text_ += kLineBreak;
  }

  void AddStandard(const SourceCard& card, std::size_t number) {
    Add(DecimalText(static_cast<long>(number)) + u".");
    Add(kFrontTag);
    AddSide(card.record.text, "front", card.place);
    Add(kBackTag);
    AddSide(card.record.longText, "back", card.place);
  }

  void AddQuestion(const SourceCard& card, std::size_t number) {
    const DeckRecord& record = card.record;
    Add(DecimalText(static_cast<long>(number)) + u"." +
        OneLine(record.text, "question", card.place));
    for (std::size_t at = 0; at < record.shortFields.size(); ++at) {
      if (record.shortFields[at].empty()) continue;
      const Text letter(1, static_cast<char16_t>(u'A' + at));
      Add(letter + u"." + OneLine(record.shortFields[at], kChoiceNames[at], card.place));
    }
    AddAnswer(record, card.place);
  }

  [[nodiscard]] const Text& Lines() const { return text_; }

 private:
  void AddSide(const Text& side, const char* name, const Place& place) {
    const Text line = OneLine(side, name, place);
    if (line.empty()) return;
    const std::size_t split = IsLineOfFormat(line) ? SplitPlace(line) : 0;
    if (split > 0) Add(TextView(line).substr(0, split));
    Add(TextView(line).substr(split));
  }

  void AddAnswer(const DeckRecord& record, const Place& place) {
    if (record.answer.empty()) {
      losses_.Tell(place, "without an answer it has no type in an import text");
      return;
    }
    const bool trueFalse = IsType(record.cardType, CardType::kTrueFalse);
    const bool kept = trueFalse ? IsTrueFalseKey(record.answer) : IsChoiceKey(record.answer);
    if (!kept) losses_.Tell(place, "its answer and its type do not fit together");
    if (kept || IsTrueFalseKey(record.answer) || IsChoiceKey(record.answer))
      Add(u"=" + record.answer);
  }

  /// The readers put nothing between the lines of a text.
  Text OneLine(const Text& text, const char* name, const Place& place) {
    Text line = WithoutBreaks(text);
    if (line.size() != text.size() || line != text)
      losses_.Tell(place, std::string("the line breaks of the ") + name + " become blanks");
    if (!IsWellFormed(line)) losses_.Tell(place, "halves of characters are not kept");
    if (line.size() > kLongestImportedText) {
      losses_.Tell(place, std::string("the ") + name + " is longer than what an import reads");
    }
    return line;
  }

  /// A line feed alone ends no line in a text with carriage returns.
  static Text WithoutBreaks(const Text& text) {
    Text line;
    for (std::size_t at = 0; at < text.size(); ++at) {
      const bool ends = text[at] == kCarriageReturn;
      if (TextView(text).substr(at).starts_with(kLineBreak)) ++at;
      line += ends ? u' ' : text[at];
    }
    return line;
  }

  Losses& losses_;
  Text text_;
};

bool LooksLikeUtf8(std::string_view bytes) {
  Utf8Check check;
  check.Feed(bytes);
  return check.IsWellFormed() && check.HasNonAscii();
}

/// Bytes of the code page that a reader would take for UTF-8 are written as UTF-8 indeed.
void WriteEncoded(TextView text, ByteSink& sink, const CodePage& codePage) {
  const std::optional<std::string> bytes = codePage.Encode(text);
  if (bytes && !LooksLikeUtf8(*bytes)) return sink.Write(*bytes);
  sink.Write(kByteOrderMark);
  sink.Write(WellFormedUtf8(text));
}

}  // namespace

void WriteImportText(const CardsToWrite& deck, ByteSink& sink, const Conversion& conversion) {
  TextLines lines(conversion.losses);
  const bool standard = deck.kind == kStandardDeck;
  lines.Add(standard ? kStandardWord : kExtendedWord);
  std::size_t number = 0;
  TellEmptyDeck(deck, conversion.losses);
  for (const SourceCard& card : deck.cards) {
    TellOtherKind(card, deck.kind, conversion.losses);
    if (number > 0) lines.Add(u"");
    ++number;
    if (standard) {
      lines.AddStandard(card, number);
    } else {
      lines.AddQuestion(card, number);
    }
  }
  WriteEncoded(lines.Lines(), sink, conversion.codePage);
}

}  // namespace tessara
