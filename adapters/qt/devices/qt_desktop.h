#pragma once

#include <functional>

#include "adapters/posix/session_lock.h"
#include "machine/desktop.h"

namespace tessara {

class QtDesktop : public Desktop {
 public:
  /// Shows the help file at the path, which exists.
  using HelpViewer = std::function<void(const Text& path)>;
  /// Tells the user a title and a text beside the program's windows.
  using Notifier = std::function<void(const Text& title, const Text& text)>;
  explicit QtDesktop(HelpViewer showHelp, Notifier notify = {});

  bool PreviousInstance() override;
  int Open(const Text& target) override;
  void ShowHelp(const Text& path) override;
  void Notify(const Text& title, const Text& text) override;
  [[nodiscard]] Text DocumentsFolder() const override;
  void SetMousePointer(MousePointer pointer) override;
  void Yield() override;
  [[nodiscard]] int ScreenWidth() const override;
  [[nodiscard]] int ScreenHeight() const override;

 private:
  HelpViewer showHelp_;
  Notifier notify_;
  SessionLock lock_;
};

}  // namespace tessara
