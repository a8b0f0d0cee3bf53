#pragma once

#include "base/text.h"
#include "deck/program_state.h"
#include "forms/controls/buttons.h"
#include "forms/controls/control_array.h"

namespace tessara {

/// What the program asks of the control that shows a card. A write takes effect at once; a value
/// stays until it is written again.
class CardDisplay {
 public:
  virtual ~CardDisplay() = default;
  /// One line at the top of the card; read back as written. Empty shows nothing.
  [[nodiscard]] virtual const Text& CardBanner() const = 0;
  virtual void SetCardBanner(const Text& banner) = 0;
  /// "Q" white, "A" yellow.
  virtual void SetCardColor(const Text& color) = 0;
  /// The two decorations of a front. Always set lines first, then rule, to the same value.
  virtual void SetFrontRule(bool on) = 0;
  virtual void SetFrontLines(bool on) = 0;
  /// The body, of any length, with every "&" doubled; "&&" shows one "&".
  virtual void SetCardText(const Text& text) = 0;
  virtual void SetCardNumber(const Text& number) = 0;
  virtual void SetCardTotal(const Text& total) = 0;
};

/// The two arrow buttons of a window that shows cards, by where they lead.
enum Arrow : int { kPreviousCard = 0, kNextCard = 1 };
using MoveButtons = ControlArray<Button, 2>;

/// Brings the arrows of a builder in line with the place in the deck; with no cards both are off.
void SetMoveButtons(MoveButtons& owner, const ProgramState& state);

/// The text with every "&" doubled, as captions and the card show one.
[[nodiscard]] Text DoubleAmps(TextView text);

}  // namespace tessara
