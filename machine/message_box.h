#pragma once

#include "base/text.h"

namespace tessara {

/// Flag words of a message box: the sum of an icon, a set of buttons and a default button.
enum MessageBoxFlags : int {
  kOkOnly = 0,
  kOkCancel = 1,
  kYesNoCancel = 3,
  kYesNo = 4,
  kStopIcon = 16,
  kQuestionIcon = 32,
  kExclamationIcon = 48,
  kInformationIcon = 64,
  kSecondButtonDefault = 256,
};

enum class MessageAnswer : int { kOk = 1, kCancel = 2, kYes = 6, kNo = 7 };

/// The title that a message box without one of its own carries.
inline constexpr TextView kProgramName = u"Tessara";

/// The boxes in which the program tells the user something, or asks.
class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  /// Shows the box and waits. Text and title are shown literally.
  virtual MessageAnswer Show(const Text& text, int flags, const Text& title) = 0;
};

}  // namespace tessara
