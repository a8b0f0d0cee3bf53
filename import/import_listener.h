#pragma once

#include <cstddef>
#include <cstdint>

namespace tessara {

/// What a reader of import texts can meet besides cards.
enum class ImportEvent {
  // Errors: the program's import drops all cards.
  kBadFirstCard,     ///< a number 0, or a first number above 1
  kBadSequence,      ///< a number that is not one above the last finished card's
  kLineOutsideCard,  ///< standard: a line where a card's number is due
  kSideMissing,      ///< standard: a card that ends without both tags
  kBadChoiceOrder,   ///< extended: a choice letter that goes backward
  kBadAnswer,        ///< extended: an answer that is no choice
  kUnforeseen,       ///< a run-time error: no number, or one outside the table
  // Reading ends, without a word to the user.
  kStrayLine,  ///< extended: a line without an early dot
  kDeckFull,   ///< cards behind the last that a deck holds
  kBehindEnd,  ///< standard: lines behind the end line
  // Passed over, without a word to the user.
  kTypeLine,        ///< a word that names a format, behind the first line
  kTextBeforeTag,   ///< standard: text that belongs to no side
  kNumberRepeated,  ///< standard: the number of the card that is being read
  kEmptyCard,       ///< standard: a last number without a card
  kLineBeforeCard,  ///< extended: an answer or a choice before the first card
  kUnknownLetter,   ///< extended: a choice that is none of A to D
  kChoiceRepeated,  ///< extended: a choice in place of an earlier one of the card
  kAnswerRepeated,  ///< extended: an answer in place of an earlier one of the card
  kTextTooLong,     ///< a text behind its bound
  // Kept, but wanting.
  kNoAnswer,  ///< extended: a question without an answer, which has no type
  kNoBack,    ///< standard: a last card without its second tag
};

struct ImportFinding {
  ImportEvent event;
  std::size_t line;   ///< from 1
  std::int16_t card;  ///< the card that a message names
};

/// Is told what a reader of import texts meets, as it meets it.
class ImportListener {
 public:
  virtual ~ImportListener() = default;
  /// The number of a card has been read.
  virtual void MeetCard(std::int16_t card, std::size_t line) = 0;
  virtual void Meet(const ImportFinding& finding) = 0;
  /// True where reading goes on behind an error, at the next line that begins a card, and a
  /// run-time error is an event; else it ends there, and a run-time error is raised.
  [[nodiscard]] virtual bool GoesOn() const = 0;
};

}  // namespace tessara
