#pragma once

#include "forms/controls/controls.h"
#include "forms/controls/menu.h"
#include "forms/form.h"

namespace tessara {

enum class FormAspect { kCaption, kBounds, kVisible, kEnabled, kState, kPicture };

/// Whoever shows forms. It follows what the loaded forms tell, decides nothing on the user's
/// behalf, and reports what the user did through the User... operations of forms and controls and
/// the Press of buttons and menu entries.
class Renderer {
 public:
  virtual ~Renderer() = default;
  virtual void FormUnloaded(Form& form) = 0;
  virtual void FormChanged(Form& form, FormAspect aspect) = 0;
  virtual void ControlChanged(Control& control, Aspect aspect) = 0;
  virtual void MenuChanged(MenuEntry& entry) = 0;
  /// The active window is another, or none (null), or another child is in front behind it: menu
  /// bar and focus follow.
  virtual void ActiveFormChanged(Form* form) = 0;
  virtual void FocusChanged(Form& form) = 0;
  /// Returns when the form has been painted on the screen, or where that takes too long.
  virtual void WaitUntilSeen(Form& form) = 0;
  /// Returns when the form has been unloaded or hidden, or the program has ended.
  virtual void RunModal(Form& form) = 0;
  /// Display lines of the box's text, wrapped at its designed width in its font.
  virtual int LineCount(const TextBox& box) = 0;
  /// Client area of the frame in twips.
  virtual int FrameScaleWidth() = 0;
  virtual int FrameScaleHeight() = 0;
  /// The last window is gone, or an error has ended the program.
  virtual void ProgramHasEnded(int exitStatus) = 0;
};

}  // namespace tessara
