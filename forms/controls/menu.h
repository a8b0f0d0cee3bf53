#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "base/text.h"

namespace tessara {

class Form;

/// An entry of a menu bar: a top-level menu, a submenu, a command, or a separator ("-").
class MenuEntry {
 public:
  /// The name that the running program knows it by.
  explicit MenuEntry(std::string givenName) : name_(std::move(givenName)) {}
  MenuEntry(const MenuEntry&) = delete;
  MenuEntry& operator=(const MenuEntry&) = delete;

  [[nodiscard]] const std::string& Name() const { return name_; }
  [[nodiscard]] const Text& Caption() const { return caption_; }
  [[nodiscard]] bool Separator() const { return caption_ == u"-"; }
  [[nodiscard]] const std::vector<MenuEntry*>& Entries() const { return entries_; }
  [[nodiscard]] Form& Owner() const { return *owner_; }
  /// The keys that choose it from the keyboard, as "Ctrl+Shift+S"; empty where there are none.
  [[nodiscard]] const Text& Keys() const { return keys_; }
  /// The keys then work also while the entry is off or another bar on show.
  void LetKeysWorkAlways() { keysWorkAlways_ = true; }
  [[nodiscard]] bool KeysWorkAlways() const { return keysWorkAlways_; }

  [[nodiscard]] bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  [[nodiscard]] bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  [[nodiscard]] bool Checked() const { return checked_; }
  void SetChecked(bool checked);
  /// True where the entry and every menu above it are enabled and visible.
  [[nodiscard]] bool Reachable() const;

  /// Runs the click where the entry is reachable and its form takes input, else nothing.
  void Press();
  /// As Press, and by its keys as far as they work.
  void UserChoose();
  std::function<void()> onClick;

 private:
  friend class Form;
  void Changed();
  void Run();

  std::string name_;
  Text caption_;
  Text keys_;
  Form* owner_ = nullptr;
  MenuEntry* parent_ = nullptr;
  std::vector<MenuEntry*> entries_;
  bool enabled_ = true;
  bool visible_ = true;
  bool checked_ = false;
  bool keysWorkAlways_ = false;
};

}  // namespace tessara
