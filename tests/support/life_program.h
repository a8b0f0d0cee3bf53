#pragma once

#include "tests/support/life_fixture.h"
#include "tests/support/program_fixture.h"

namespace tessara::test {

/// The whole program for the lives of decks.
struct LifeProgram : ProgramFixture {
  Window<DeckWindow> deck = program.DeckWindowOf();
  Window<DeckInfoWindow> info = program.InfoWindow();

  LifeProgram() {
    fakes.files.folders.insert(u"/decks");
    Start();
  }

  void Run(const std::function<void()>& command) { program.Windows().Run(command); }
  Boxes TakeBoxes() { return fakes.messages.Take(); }
  [[nodiscard]] std::string File(const Text& path) const { return fakes.files.Bytes(path); }
};

}  // namespace tessara::test
