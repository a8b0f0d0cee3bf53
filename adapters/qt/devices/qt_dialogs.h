#pragma once

#include <optional>

#include "adapters/qt/devices/print_module.h"
#include "machine/dialogs.h"

namespace tessara {

class WindowSystem;

/// File dialog, input box and printer dialog: the desktop's own where it has them.
class QtDialogs : public Dialogs {
 public:
  explicit QtDialogs(PrintModuleSource& printing) : printing_(printing) {}
  /// As for the message boxes.
  void SetWindows(const WindowSystem& windows) { windows_ = &windows; }

  Text AskFile(const FileDialogRequest& request) override;
  std::optional<Text> AskText(const Text& prompt, const Text& title,
                              const Text& defaultText) override;
  PrinterChoice AskPrinter() override;

 private:
  void LeaveIfEnded() const;

  PrintModuleSource& printing_;
  const WindowSystem* windows_ = nullptr;
};

}  // namespace tessara
