#pragma once

#include "tests/support/life_desk.h"
#include "tests/support/program_desk.h"

namespace tessara::test {

/// The whole program for the lives of decks, with cards that come in as from a builder.
struct LifeProgram : ProgramDesk {
  Window<frmMain> deck = program.DeckWindowOf();
  Window<frmInfo> info = program.InfoWindow();

  LifeProgram() {
    fakes.files.folders.insert(u"/decks");
    Start();
  }

  /// A text card ("E") with a back, or a question ("T") with a key.
  void BuildCard(TextView type, const Text& front, const Text& back, const Text& key) {
    const int row = ++state.CardCount;
    state.CardGrid.Set(row, kCardType, Text(type));
    state.CardGrid.Set(row, kRowNumber, DecimalText(row));
    state.CardGrid.Set(row, kCardText, front);
    state.CardGrid.Set(row, kBackText, back);
    state.CardGrid.Set(row, kAnswer, key);
    state.CardPresent.Set(row, 1);
    state.CurrentCard = state.CardCount;
    state.DeckChanged = true;
    state.SaveOffered = true;
  }

  void Run(const std::function<void()>& command) { program.Windows().Run(command); }
  Boxes TakeBoxes() { return fakes.messages.Take(); }
  [[nodiscard]] std::string File(const Text& path) const { return fakes.files.Bytes(path); }
};

}  // namespace tessara::test
