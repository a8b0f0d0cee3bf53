#pragma once

#include "deck/app_frame.h"
#include "deck/life/unsaved_deck.h"
#include "deck/program_state.h"
#include "forms/window_system.h"
#include "machine/machine.h"

namespace tessara {

/// What every window is given: the window system, the machine, the state, the frame, and what keeps
/// the unsaved deck.
struct AppContext {
  WindowSystem& windows;
  Machine& machine;
  ProgramState& state;
  AppFrame& frame;
  UnsavedDeck& unsaved;
};

}  // namespace tessara
