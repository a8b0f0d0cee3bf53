#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "forms/renderer.h"

namespace tessara::test {

/// A renderer without a display. It counts lines by a simple rule and remembers what was on show.
class HeadlessRenderer : public Renderer {
 public:
  /// Average character of a box, in twips, for the count of display lines.
  static constexpr int kCharacterWidth = 90;

  int frameScaleWidth = 12000;
  int frameScaleHeight = 9000;
  int exitStatus = -1;
  std::vector<std::string> activated;  ///< names in the order of their becoming active
  std::string changed;                 ///< name of the window that was last to be painted anew
  std::vector<std::string> seen;       ///< names of the windows that were waited for
  /// What the user does while a modal window is up; unloads it where nothing is set.
  std::function<void(Form&)> whileModal;

  void FormUnloaded(Form&) override {}
  void FormChanged(Form& form, FormAspect) override { changed = form.Name(); }
  void ControlChanged(Control&, Aspect) override {}
  void MenuChanged(MenuEntry&) override {}
  void ActiveFormChanged(Form* form) override {
    activated.push_back(form == nullptr ? "" : form->Name());
  }
  void FocusChanged(Form&) override {}
  void WaitUntilSeen(Form& form) override { seen.push_back(form.Name()); }
  void RunModal(Form& form) override {
    if (whileModal) {
      whileModal(form);
    } else {
      form.Unload();
    }
  }
  int LineCount(const TextBox& box) override {
    const auto perLine =
        static_cast<std::size_t>(std::max(1, box.BoundsOf().width / kCharacterWidth));
    std::size_t lines = 0;
    std::size_t length = 0;
    for (const char16_t character : box.TextOf() + u"\n") {
      if (character == u'\r') continue;
      if (character != u'\n') {
        ++length;
        continue;
      }
      lines += std::max<std::size_t>(1, (length + perLine - 1) / perLine);
      length = 0;
    }
    return static_cast<int>(lines);
  }
  int FrameScaleWidth() override { return frameScaleWidth; }
  int FrameScaleHeight() override { return frameScaleHeight; }
  void ProgramHasEnded(int status) override { exitStatus = status; }
};

}  // namespace tessara::test
