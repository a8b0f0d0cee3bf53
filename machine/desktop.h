#pragma once

#include "base/text.h"

namespace tessara {

enum class MousePointer { kDefault, kHourglass };

/// Result codes of opening: failures are 32 and below.
inline constexpr int kOpenFileNotFound = 2;
inline constexpr int kOpenSucceeded = 33;

/// The user's desktop around the program.
class Desktop {
 public:
  virtual ~Desktop() = default;
  /// True where another instance runs in this session; otherwise this one now is the instance.
  virtual bool PreviousInstance() = 0;
  /// Opens a file or a link with its registered program and returns the result code.
  virtual int Open(const Text& target) = 0;
  /// Shows a compiled help file with its table of contents; a missing one is silent.
  virtual void ShowHelp(const Text& path) = 0;
  /// Tells the user something without a window: nothing waits for an answer.
  virtual void Notify(const Text& title, const Text& text) = 0;
  /// The user's folder for documents, or the home where there is none.
  [[nodiscard]] virtual Text DocumentsFolder() const = 0;
  virtual void SetMousePointer(MousePointer pointer) = 0;
  /// Hands control to the window system's queue once.
  virtual void Yield() = 0;
  /// What is as large as any screen, in pixels of the program (twips divided by 15), however small
  /// these are.
  [[nodiscard]] virtual int ScreenWidth() const = 0;
  [[nodiscard]] virtual int ScreenHeight() const = 0;
};

}  // namespace tessara
