#pragma once

#include "deck/app_context.h"
#include "deck/file/file_number.h"
#include "forms/window_system.h"
#include "tests/support/fakes/fake_machine.h"
#include "tests/support/fakes/headless_renderer.h"
#include "tests/support/fakes/test_frame.h"

namespace tessara::test {

/// Everything that a window is given, made of fakes.
struct TestFixture {
  FakeMachine fakes;
  Machine machine = fakes.Get();
  WindowSystem windows{fakes.messages};
  HeadlessRenderer renderer;
  ProgramState state;
  TestFrame frame;
  FileNumber fileNumber{fakes.files};
  UnsavedDeck unsaved{state, machine};
  AppContext app{windows, machine, state, frame, unsaved};

  TestFixture() { windows.SetRenderer(renderer); }
};

}  // namespace tessara::test
