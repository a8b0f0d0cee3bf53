#pragma once

namespace tessara {

// What the first text would wait for, to be done on a thread of its own.

/// Reads the system's font configuration; no application is needed yet. Emoji then come from a
/// colour font where there is one: on paper, which may lack colours, they are of another.
void ReadFontConfiguration();
/// Lists the system's fonts, once the configuration is read and the application connected to its
/// display. Who asks Qt for a font meanwhile waits there.
void ListFonts();

}  // namespace tessara
