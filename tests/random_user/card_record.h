#pragma once

#include <set>
#include <string>

#include "deck/program_state.h"

namespace tessara::test {

/// The cards of a table, each as its record in a deck's file without the card's number.
[[nodiscard]] std::set<std::string> CardsOf(const ProgramState& state);
/// The same of a deck's bytes.
[[nodiscard]] std::set<std::string> CardsIn(const std::string& deck);

}  // namespace tessara::test
