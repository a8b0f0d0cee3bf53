#include <array>
#include <optional>
#include <set>

#include "companion/cards/card_set.h"
#include "companion/formats/deck_format.h"
#include "companion/formats/source_file.h"
#include "deck/answer_key.h"
#include "deck/file/deck_file.h"
#include "deck/file/deck_record.h"
#include "deck/file/stored_text.h"

namespace tessara {

namespace {

/// Looks through the records of one file as the program loads them.
class DeckCheck {
 public:
  DeckCheck(const Source& source, const CodePage& codePage, Findings& findings)
      : source_(source), codePage_(codePage), findings_(findings), files_(source.bytes) {}

  void Run() {
    FileNumber file(files_);
    file.OpenRandom(u"deck", OpenMode::kRead, kRecordSize);
    while (const std::optional<DeckRecord> record = ReadRecord(file, codePage_)) {
      ++place_;
      if (IsType(record->cardType, CardType::kTerminator)) {
        ended_ = true;
        break;
      }
      if (cards_ == kMostCards) {
        Report(place_, Severity::kLoss,
               "a deck holds 200 cards: this and what follows is not read");
        return;
      }
      TakeRecord(*record);
    }
    CheckEnd();
  }

 private:
  void Report(std::size_t card, Severity severity, const std::string& what) {
    findings_.Report({&source_.name, card}, severity, what);
  }

  void TakeRecord(const DeckRecord& record) {
    const bool information = IsType(record.cardType, CardType::kInformation);
    if (!information) ++cards_;
    // A record without a row of its own is named by its place in the file.
    const auto card = static_cast<std::size_t>(record.number > 0 ? record.number : 0);
    if (record.number < 0 || record.number >= kRows) {
      Report(place_ - 1, Severity::kError,
             "its number " + std::to_string(record.number) + " is no row of the table");
      return;
    }
    if (!rows_.insert(record.number).second)
      Report(card, Severity::kLoss, "a record of the same number stands before it");
    if (information) return CheckInformation(record, card);
    if (record.number == kInfoRow)
      Report(place_ - 1, Severity::kLoss, "its number is that of the information");
    CheckCard(record, card == 0 ? place_ - 1 : card);
  }

  void CheckInformation(const DeckRecord& record, std::size_t card) {
    hasInformation_ = hasInformation_ || card == 0;
    if (card != 0) Report(card, Severity::kLoss, "it is information in a card's place");
    CheckFilled(record, card, {"date", "deck type", "title", "author"}, "text", "description");
  }

  void CheckCard(const DeckRecord& record, std::size_t card) {
    const auto kind = DeckKindOf(record.cardType);
    if (!kind) {
      Report(card, Severity::kRemark, "its type is unknown");
    } else if (!kind_) {
      kind_ = kind;
    } else if (kind != kind_) {
      Report(card, Severity::kRemark, "it is of another kind than the first card");
    }
    if (kind == kExtendedDeck) CheckAnswer(record, card);
    const bool question = kind == kExtendedDeck;
    CheckFilled(record, card, kChoiceNames, question ? "question" : "front",
                question ? "long text" : "back");
    if (card == 1 && record.text.empty()) Report(card, Severity::kError, kTakenForEmpty);
  }

  void CheckAnswer(const DeckRecord& record, std::size_t card) {
    const bool trueFalse = IsType(record.cardType, CardType::kTrueFalse);
    if (record.answer.empty()) {
      Report(card, Severity::kRemark, "it has no answer");
    } else if (!(trueFalse ? IsTrueFalseKey(record.answer) : IsAnswerOf(record))) {
      Report(card, Severity::kRemark, "its answer is none of its choices");
    }
  }

  static bool IsAnswerOf(const DeckRecord& record) {
    if (!IsChoiceKey(record.answer)) return false;
    return !record.shortFields[static_cast<std::size_t>(AnswerIndex(record.answer))].empty();
  }

  void CheckFilled(const DeckRecord& record, std::size_t card,
                   const std::array<const char*, 4>& shortNames, const char* textName,
                   const char* longName) {
    CheckWidth(record.text, kTextWidth, textName, card);
    for (std::size_t at = 0; at < shortNames.size(); ++at)
      CheckWidth(record.shortFields[at], kShortWidth, shortNames[at], card);
    CheckWidth(record.longText, kTextWidth, longName, card);
  }

  void CheckWidth(const Text& text, std::size_t width, const char* name, std::size_t card) {
    if (FillsField(text, width, codePage_))
      Report(card, Severity::kRemark,
             std::string("its ") + name + " fills the field: perhaps it was cut");
  }

  void CheckEnd() {
    if (!ended_) Report(0, Severity::kLoss, "it ends without the record of the end");
    if (!hasInformation_) Report(0, Severity::kRemark, "it has no information");
    if (cards_ == 0) Report(0, Severity::kError, "it holds no cards");
    CheckHoles();
  }

  void CheckHoles() {
    int expected = 1;
    for (const int row : rows_) {
      if (row == kInfoRow) continue;
      if (row > expected)
        Report(static_cast<std::size_t>(row), Severity::kRemark,
               "the numbers before it have a hole: what follows is not saved again");
      expected = row + 1;
    }
  }

  const Source& source_;
  const CodePage& codePage_;
  Findings& findings_;
  OneFile files_;
  std::size_t place_ = 0;  ///< of the record in hand, from 1
  int cards_ = 0;
  std::set<int> rows_;
  std::optional<DeckKind> kind_;
  bool hasInformation_ = false;
  bool ended_ = false;
};

}  // namespace

void CheckDeck(const Source& source, const CodePage& codePage, Findings& findings) {
  DeckCheck(source, codePage, findings).Run();
}

}  // namespace tessara
