#pragma once

#include "base/text.h"

namespace tessara {

class ClassRegistry;
class Clock;
class CodePage;
class Desktop;
class Dialogs;
class FileSystem;
class MessageBoxes;
class PrintSurface;
class SafetyCopies;
class SettingsStore;
class SpreadsheetServer;

/// Everything that the program asks of its machine, put together once at the start.
struct Machine {
  MessageBoxes& messages;
  Dialogs& dialogs;
  SettingsStore& settings;
  FileSystem& files;
  SafetyCopies& copies;
  Clock& clock;
  Desktop& desktop;
  ClassRegistry& classes;
  SpreadsheetServer& spreadsheet;
  PrintSurface& printer;
  const CodePage& codePage;
  /// Folder of the executable, without a separator at its end.
  Text programFolder;
};

}  // namespace tessara
