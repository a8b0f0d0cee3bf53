#pragma once

#include "deck/program_state.h"
#include "forms/controls/control_array.h"
#include "forms/controls/controls.h"

namespace tessara {

/// The two arrow buttons of a window that shows cards, by where they lead.
enum Arrow : int { kPreviousCard = 0, kNextCard = 1 };
using MoveButtons = ControlArray<Button, 2>;

/// Brings the arrows of a builder in line with the place in the deck; with no cards both are off.
void SetMoveButtons(MoveButtons& owner, const ProgramState& state);

}  // namespace tessara
