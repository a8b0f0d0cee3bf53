#pragma once

#include <concepts>
#include <functional>
#include <memory>

#include "forms/form.h"

namespace tessara {

/// The one place of a window that exists once at most: makes it at its first use, forgets it
/// when it has been unloaded, and makes a fresh one at the next use.
class WindowSlot {
 public:
  using Maker = std::function<std::unique_ptr<Form>()>;

  WindowSlot(WindowSystem& system, Maker maker);
  WindowSlot(const WindowSlot&) = delete;
  WindowSlot& operator=(const WindowSlot&) = delete;
  ~WindowSlot();

  /// The window, made where it was gone, not loaded by this.
  Form& Instance();
  [[nodiscard]] bool IsLoaded() const { return form_ != nullptr && form_->Loaded(); }
  /// Unloads where it is loaded. True where it is gone.
  bool Unload();

 private:
  friend class Form;
  std::unique_ptr<Form> Release() { return std::move(form_); }

  WindowSystem& system_;
  Maker maker_;
  std::unique_ptr<Form> form_;
};

/// The way to a window: hand it around instead of a window. A handle to a derived window is one
/// to its base too.
template <class F>
class Window {
 public:
  explicit Window(WindowSlot& slot) : slot_(&slot) {}
  template <std::derived_from<F> D>
  Window(const Window<D>& other) : slot_(&other.Slot()) {}  // NOLINT(google-explicit-constructor)

  /// The loaded window: its first use loads it.
  F* operator->() const { return &Loaded(); }
  F& Loaded() const {  // NOLINT(modernize-use-nodiscard)
    Instance().EnsureLoaded();
    return Instance();
  }
  /// The window without loading it: for its routines that may not need its controls.
  F& Instance() const {  // NOLINT(modernize-use-nodiscard)
    return static_cast<F&>(slot_->Instance());
  }
  [[nodiscard]] bool IsLoaded() const { return slot_->IsLoaded(); }
  bool Unload() const { return slot_->Unload(); }  // NOLINT(modernize-use-nodiscard)
  [[nodiscard]] WindowSlot& Slot() const { return *slot_; }

 private:
  WindowSlot* slot_;
};

}  // namespace tessara
