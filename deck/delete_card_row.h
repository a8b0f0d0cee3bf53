#pragma once

#include "deck/card_display.h"
#include "deck/program_state.h"
#include "machine/message_box.h"

namespace tessara {

/// Asks, and on any answer but No deletes the card of the row, moves the later ones up, and brings
/// the arrows and the card's numbers up to date. Deleting the last card lowers `row` by one.
/// Raises error 9 for a row outside the table.
void DeleteCardRow(std::int16_t& row, MoveButtons& owner, CardDisplay& card, ProgramState& state,
                   MessageBoxes& messages);

}  // namespace tessara
