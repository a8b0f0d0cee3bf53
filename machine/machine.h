#pragma once

#include "base/text.h"

namespace tessara {

class Clock;
class CodePage;
class Desktop;
class Dialogs;
class DocumentTypes;
class FileSystem;
class MessageBoxes;
class Printer;
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
  DocumentTypes& documentTypes;
  SpreadsheetServer& spreadsheet;
  Printer& printer;
  const CodePage& codePage;
  /// Folder of the executable, without a separator at its end.
  Text programFolder;
};

/// The path of a side file: the program's folder, a separator, the name.
[[nodiscard]] Text ProgramFile(const Machine& machine, TextView name);

}  // namespace tessara
