#pragma once

#include "deck/app_context.h"
#include "deck/file/file_number.h"
#include "deck/life/deck_life.h"
#include "forms/window.h"

namespace tessara {

/// The command that makes a deck from a text file of the user's choice, in either format. It asks
/// nothing about changes. Raises the errors of a file that can't be opened or is empty (62), and
/// 55 where an earlier import has left the file open and no save or load has closed it since.
void ImportTextFile(AppContext& app, FileNumber& fileNumber, Window<DeckLife> deck);
/// The same for the file of that path.
void ImportTextFile(const Text& path, AppContext& app, FileNumber& fileNumber,
                    Window<DeckLife> deck);

}  // namespace tessara
