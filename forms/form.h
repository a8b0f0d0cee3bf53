#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "forms/controls/control.h"
#include "forms/controls/control_array.h"
#include "forms/controls/menu.h"
#include "forms/geometry.h"

namespace tessara {

class Button;
class FormSlot;
class WindowSystem;
enum class FormAspect;

enum class FormKind {
  kFrame,      ///< the one top-level window that holds the children
  kChild,      ///< inside the frame; its size can't be changed by the user
  kDialog,     ///< a window of its own, fixed, owned by the frame
  kSplash,     ///< without a border, in the middle of the screen
  kOffScreen,  ///< never on screen: a surface to paint on
};

enum class WindowState { kNormal, kMinimised, kMaximised };

/// Keys of a whole window, for which it may have a use that the control with the focus has not.
enum class WindowKey {
  kLeft,
  kRight,
  kSpace,
  kKeep,  ///< Ctrl+Return: what was written is to be kept
};

enum class PageKey { kUp, kDown };

enum class Modality { kModeless, kModal };

/// A window: its controls, its menus, its events. What stands here are the rules that all share;
/// a window derives from it, lists its controls and menus once, and overrides its events.
///
/// Life: made by its FormSlot, loaded (OnLoad) at the first use, shown, hidden, unloaded.
/// An unloaded window is gone from the screen at once and destroyed when the outermost event has
/// ended, so its own handler's later lines still run.
class Form {
 public:
  Form(WindowSystem& system, std::string name, FormKind kind, Text caption);
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form();

  [[nodiscard]] const std::string& Name() const { return name_; }
  [[nodiscard]] FormKind Kind() const { return kind_; }
  [[nodiscard]] WindowSystem& System() const { return system_; }

  [[nodiscard]] const Text& Caption() const { return caption_; }
  void SetCaption(const Text& caption);

  /// Outer place and size in twips; a child's place is relative to the frame's client area.
  /// Assigning a different size runs OnResize, shown or not. Moving or sizing a minimised or
  /// maximised window raises error 384.
  [[nodiscard]] int Left() const { return bounds_.left; }
  [[nodiscard]] int Top() const { return bounds_.top; }
  [[nodiscard]] int Width() const { return bounds_.width; }
  [[nodiscard]] int Height() const { return bounds_.height; }
  void SetLeft(int left);
  void SetTop(int top);
  void SetWidth(int width);
  void SetHeight(int height);
  /// The client area in twips.
  [[nodiscard]] virtual int ScaleWidth() const { return bounds_.width - kBorderAcross; }
  [[nodiscard]] virtual int ScaleHeight() const { return bounds_.height - kBorderDown; }
  [[nodiscard]] WindowState State() const { return state_; }
  void SetState(WindowState state);

  [[nodiscard]] bool Visible() const { return visible_; }
  /// True shows without modality.
  void SetVisible(bool visible);
  [[nodiscard]] bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  /// Brings the window on screen and makes it the active one. A modal one returns when it has
  /// been unloaded or hidden.
  void Show(Modality modality = Modality::kModeless);
  void Hide() { SetVisible(false); }

  [[nodiscard]] bool Loaded() const { return loaded_; }
  /// Runs OnLoad where the window is not loaded; one whose OnLoad is running counts as
  /// loaded.
  void EnsureLoaded();
  /// Runs OnUnload, which may cancel. True where the window is gone.
  bool Unload();

  [[nodiscard]] const std::vector<Control*>& Controls() const { return controls_; }
  /// The control of that name, "Command3(1)" for an array's member; null where there is none.
  [[nodiscard]] Control* FindControl(const std::string& name) const;
  [[nodiscard]] const std::vector<MenuEntry*>& Menus() const { return menus_; }
  [[nodiscard]] MenuEntry* FindMenu(const std::string& name) const;
  /// The control that has, or will have, the focus; null where none.
  [[nodiscard]] Control* FocusedControl() const { return focused_; }

  /// Pictures painted on the form, in order; Cls drops them.
  [[nodiscard]] const std::vector<PaintedPicture>& Painted() const { return painted_; }
  void PaintPicture(const Picture& picture, int x, int y);
  /// The form's picture: what another form's painting has come to.
  void SetPicture(std::vector<PaintedPicture> painted);

  /// What the user did. A disabled window takes no input.
  void UserActivate();
  void UserClick();
  void UserMouseMove();
  void UserClose();
  /// The user has moved the window: a later assignment of a place counts from there.
  void UserMove(int left, int top);
  void UserFocus(Control& control);
  /// Presses what carries the accelerator; where several do, the focus goes to the next of them.
  /// False where nothing does.
  bool UserAccelerator(char16_t letter);
  /// Return and Escape press the default and the cancel button. False where there is none.
  bool UserReturn();
  bool UserEscape();
  /// Page Up and Page Down press the buttons that page. False where the window has none.
  bool UserPage(PageKey key);
  /// The key for help chooses the entry that offers it. False where the window's menus have none.
  bool UserHelp();
  /// True where the window has taken the key; else it is the control's that has the focus.
  bool UserKey(WindowKey key);
  /// A file was dropped on the window.
  void UserDropFile(const Text& path);

  /// True where the user's input reaches the window.
  [[nodiscard]] bool TakesInput() const;

  /// True for a window that loading alone brings on screen.
  [[nodiscard]] virtual bool ShowsOnLoad() const { return false; }
  /// True for the window that may refuse to go: a closing frame asks it before all others.
  [[nodiscard]] virtual bool ClosesFirst() const { return false; }
  /// True for a window that holds the user's work, or stands in for the one that does: with one of
  /// them on screen the frame is not empty.
  [[nodiscard]] virtual bool OccupiesFrame() const { return false; }
  /// True while the window holds a text of the user's that is nowhere else.
  [[nodiscard]] virtual bool HoldsUnkeptText() { return false; }
  /// Where Tab goes from a control; null where it is the next control in the order.
  [[nodiscard]] virtual Control* TabTarget(const Control& /*from*/) { return nullptr; }
  /// True where a file of that path can be dropped on the window just now.
  [[nodiscard]] virtual bool TakesFile(const Text& /*path*/) { return false; }

 protected:
  struct ControlSpec {
    Control* control;
    Control* container;  ///< null: the form
    TextView caption;    ///< or the text of a box
    Bounds bounds;
    TextView accessibleName;
  };
  struct MenuSpec {
    MenuEntry* entry;
    MenuEntry* parent;  ///< null: a top-level menu
    TextView caption;
    TextView keys = {};  ///< as MenuEntry::Keys
  };
  /// The window's controls, in tab order and from back to front. Once, in the constructor.
  void AddControls(std::initializer_list<ControlSpec> specs);
  void AddMenus(std::initializer_list<MenuSpec> specs);
  /// The buttons that page back and forward.
  void SetPageButtons(Button& back, Button& forward);
  void SetHelpEntry(MenuEntry& entry) { helpEntry_ = &entry; }

  virtual void OnLoad() {}
  /// May set `cancel` to keep the window.
  virtual void OnUnload(bool& cancel) { (void)cancel; }
  virtual void OnActivate() {}
  virtual void OnResize() {}
  virtual void OnClick() {}
  virtual void OnMouseMove() {}
  virtual void OnLostFocus() {}
  /// True where the window has a use for the key.
  virtual bool OnKey(WindowKey /*key*/) { return false; }
  /// A file that the window takes.
  virtual void OnDropFile(const Text& /*path*/) {}
  /// On the frame: another window has come on screen, to the front of it, or gone from it.
  virtual void WindowsChanged() {}

 private:
  friend class Control;
  friend class FormSlot;
  friend class WindowSystem;

  void ComeUp();
  void ShowModal();
  void SetBounds(const Bounds& bounds);
  void CheckMovable() const;
  void Changed(FormAspect aspect);
  void ControlChanged(Control& control, Aspect aspect);
  void MoveFocus(Control* control);

  WindowSystem& system_;
  FormSlot* slot_ = nullptr;
  std::string name_;
  FormKind kind_;
  Text caption_;
  Bounds bounds_;
  WindowState state_ = WindowState::kNormal;
  bool visible_ = false;
  bool enabled_ = true;
  bool loaded_ = false;
  bool shownBefore_ = false;
  std::vector<Control*> controls_;
  std::vector<MenuEntry*> menus_;
  Button* pageBack_ = nullptr;
  Button* pageForward_ = nullptr;
  MenuEntry* helpEntry_ = nullptr;
  Control* focused_ = nullptr;
  std::vector<PaintedPicture> painted_;
};

}  // namespace tessara
