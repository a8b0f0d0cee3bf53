#pragma once

#include <functional>
#include <optional>

#include "base/text.h"

namespace tessara {

enum class FileDialogMode : int { kOpen = 0, kSave = 1 };

/// Flags of a file dialog. There is no flag for a question before overwriting: none is asked.
enum FileDialogFlags : int { kHideReadOnly = 4, kFileMustExist = 4096 };

/// What a file dialog is to ask for.
struct FileDialogRequest {
  FileDialogMode mode = FileDialogMode::kOpen;
  /// Pairs of a description and a pattern: "Study Cards|*.tsr".
  Text filter;
  int filterIndex = 1;  ///< which pair is chosen at first, from 1
  int flags = 0;
  Text initialFolder;
  /// Why no file can be saved at a path, in words for the user; empty where one can. The dialog
  /// tells the words and stays; without this function it takes every path.
  std::function<Text(const Text& path)> refusal;
};

/// Where a print job goes.
struct PrintDestination {
  /// Name of a print queue; empty for a PDF file.
  Text printer;
  /// Path of the PDF file; empty for a print queue.
  Text pdfFile;
};

struct PrinterChoice {
  PrintDestination destination;
  int copies = 1;  ///< 1 or more
};

/// The desktop's dialogs for a file, a text and a printer.
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  /// The chosen path, or empty text on a cancel.
  virtual Text AskFile(const FileDialogRequest& request) = 0;
  /// The text entered, or nothing on a cancel.
  virtual std::optional<Text> AskText(const Text& prompt, const Text& title,
                                      const Text& defaultText) = 0;
  /// The printer and the copies. Raises error 32755 on a cancel.
  virtual PrinterChoice AskPrinter() = 0;
};

}  // namespace tessara
