#include "companion/formats/deck_format.h"

#include <memory>

#include "base/characters.h"
#include "base/run_time_error.h"
#include "companion/cards/complaints.h"
#include "companion/formats/source_file.h"
#include "deck/file/deck_file.h"
#include "deck/file/deck_image.h"

namespace tessara {

namespace {

std::unique_ptr<ProgramState> Loaded(const Source& source, const CodePage& codePage) {
  auto state = std::make_unique<ProgramState>();
  OneFile files(source.bytes);
  FileNumber number(files);
  try {
    LoadDeckFromFile(u"deck", *state, number, codePage);
  } catch (const RunTimeError&) {
    throw Refused({&source.name}, "a card's number is not between 0 and 202");
  }
  return state;
}

/// Tells what is lost on the way into the table. What else is wrong comes along.
class LossesOfLoading : public Findings {
 public:
  explicit LossesOfLoading(Losses& losses) : losses_(losses) {}

  void Report(const Place& place, Severity severity, const std::string& what) override {
    if (severity == Severity::kLoss) losses_.Tell(place, what);
  }

 private:
  Losses& losses_;
};

/// The kind of the first card that has one.
DeckKind KindOf(const Deck& deck) {
  for (int row = 1; row < kRows; ++row) {
    if (const auto kind = DeckKindOf(deck.Cell(row, kCardType))) return *kind;
  }
  return kStandardDeck;
}

bool IsCard(const Deck& deck, int row) {
  return deck.cardPresent.At(row) != 0 &&
         !IsType(deck.Cell(row, kCardType), CardType::kInformation);
}

/// A card of no known type is taken as one of its deck.
void TakeKind(DeckRecord& record, DeckKind kind, const Place& place, Losses& losses) {
  if (DeckKindOf(record.cardType)) return;
  const CardType type = kind == kStandardDeck ? CardType::kText : CardType::kMultipleChoice;
  record.cardType = LetterOf(type);
  losses.Tell(place, "its unknown type is not kept");
}

/// A text may come back in form C: its letters with their marks are the same ones.
void TellCut(const Text& written, const Text& read, const char* field, const Place& place,
             Losses& losses) {
  const Text text = Composed(written);
  const Text kept = Composed(read);
  if (text == kept) return;
  if (Trimmed(text) == kept) {
    losses.Tell(place, std::string("blanks at the ends of the ") + field + " are not kept");
  } else if (Trimmed(text).starts_with(kept)) {
    losses.Tell(place, std::string("the ") + field + " is cut behind " +
                           std::to_string(CharacterCount(kept)) + " characters");
  } else {
    losses.Tell(place, std::string("the ") + field + " has characters that are not kept");
  }
}

void TellCuts(const DeckRecord& record, const DeckRecord& kept, DeckKind kind, const Place& place,
              Losses& losses) {
  const bool standard = kind == kStandardDeck;
  TellCut(record.text, kept.text, standard ? "front" : "question", place, losses);
  TellCut(record.longText, kept.longText, standard ? "back" : "long text", place, losses);
  for (std::size_t at = 0; at < kChoiceNames.size(); ++at)
    TellCut(record.shortFields[at], kept.shortFields[at], kChoiceNames[at], place, losses);
}

DeckRecord InformationOf(const CardsToWrite& deck) {
  DeckRecord record;
  record.cardType = LetterOf(CardType::kInformation);
  record.shortFields = {deck.info.date, Text(NameOf(deck.kind)), deck.info.title, deck.info.author};
  record.longText = deck.info.description;
  return record;
}

void TellInformationCuts(const SetInfo& info, const DeckRecord& kept, const std::string* file,
                         Losses& losses) {
  const Place place{file};
  TellCut(info.date, kept.shortFields[0], "date", place, losses);
  TellCut(info.title, kept.shortFields[2], "title", place, losses);
  TellCut(info.author, kept.shortFields[3], "author", place, losses);
  TellCut(info.description, kept.longText, "description", place, losses);
}

void WriteRecord(const RecordBytes& bytes, ByteSink& sink) {
  sink.Write({bytes.data(), bytes.size()});
}

}  // namespace

CardSet ReadDeck(const Source& source, const Conversion& conversion) {
  const auto state = Loaded(source, conversion.codePage);
  LossesOfLoading losses(conversion.losses);
  CheckDeck(source, conversion.codePage, losses);
  const Deck& deck = state->deck;
  CardSet set;
  set.kind = KindOf(deck);
  set.info = {deck.title, deck.author, deck.description, deck.date};
  for (int row = 1; row < kRows; ++row) {
    if (!IsCard(deck, row)) continue;
    SourceCard card{RecordOfRow(*state, row), {&source.name, static_cast<std::size_t>(row)}};
    TakeKind(card.record, set.kind, card.place, conversion.losses);
    AddCard(set, std::move(card));
  }
  return set;
}

void WriteDeck(const CardsToWrite& deck, ByteSink& sink, const Conversion& conversion) {
  const CodePage& codePage = conversion.codePage;
  const RecordBytes information = EncodeRecord(InformationOf(deck), codePage);
  TellInformationCuts(deck.info, DecodeRecord(information, codePage), deck.cards.front().place.file,
                      conversion.losses);
  WriteRecord(information, sink);
  TellEmptyDeck(deck, conversion.losses);
  std::int16_t number = 0;
  for (const SourceCard& card : deck.cards) {
    DeckRecord record = card.record;
    record.number = ++number;
    const RecordBytes bytes = EncodeRecord(record, codePage);
    TellCuts(record, DecodeRecord(bytes, codePage), deck.kind, card.place, conversion.losses);
    WriteRecord(bytes, sink);
  }
  DeckRecord end;
  end.cardType = LetterOf(CardType::kTerminator);
  WriteRecord(EncodeRecord(end, codePage), sink);
}

}  // namespace tessara
