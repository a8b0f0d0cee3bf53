#pragma once

#include <array>
#include <cstdint>

#include "base/text.h"
#include "deck/deck.h"

namespace tessara {

/// The user's settings, as read from the store at the start or changed since in the set-up window.
struct Settings {
  Text showSplash;
  Text largeCardColor;
  Text largeCard3D;
  Text smallCardColor;
  Text smallCard3D;
  Text backdrop;
  bool firstLoad = false;
};

/// What the file dialogs of a run hand on.
struct FileDialogs {
  Text folderUsedLast;  ///< of the file that was chosen last; empty before the first one
};

/// What the start hands on: the deck named on the command line.
struct StartUp {
  Text commandLineFile;
  bool deckFromCommandLine = false;
};

/// What the builders keep from one window to the next.
struct Building {
  bool fillingBoxes = false;  ///< a builder writes to its boxes: text changes do not count as edits
  std::int16_t capitalCount = 0;                          ///< capitals typed so far on answer lines
  std::array<int, 4> answerLineLimit = {48, 48, 48, 48};  ///< characters
};

/// The imports: the line in hand and the numbers of cards, which outlive a failed import.
struct Importing {
  Text line;
  std::int16_t cardNumber = 0;
  std::int16_t previousCard = 0;
  Text choiceLetter;
  Text lastLetter;
  std::int16_t standardCard = 0;
  std::int16_t previousStandardCard = 0;
};

/// What the print jobs of a run hand on.
struct Printing {
  bool canPrintCards = false;  ///< the start has found a spreadsheet server and the template
  bool cancelled = false;
  std::int16_t flatLastY = 0;  ///< twips below the top of the page, after the last wrapped block
};

/// All state that outlives a window, by subject. One for a run of the program.
struct ProgramState {
  Deck deck;
  Settings settings;
  StartUp start;
  FileDialogs dialogs;
  Building building;
  Importing import;
  Printing printing;
};

}  // namespace tessara
