#pragma once

#include <concepts>
#include <functional>
#include <memory>

#include "forms/form.h"

namespace tessara {

/// The one place of a window that exists once at most: makes it at its first use, forgets it
/// when it has been unloaded, and makes a fresh one at the next use.
class FormSlot {
 public:
  using Maker = std::function<std::unique_ptr<Form>()>;

  FormSlot(WindowSystem& system, Maker maker);
  FormSlot(const FormSlot&) = delete;
  FormSlot& operator=(const FormSlot&) = delete;
  ~FormSlot();

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

/// The place of a window of that class.
/// Example: WindowSlot<AboutBox> about{windows, [this] { return std::make_unique<AboutBox>(app);
/// }};
template <class F>
class WindowSlot : public FormSlot {
 public:
  WindowSlot(WindowSystem& system, std::function<std::unique_ptr<F>()> maker)
      : FormSlot(system, std::move(maker)) {}
};

/// The way to a window: hand it around instead of a window. A handle to a derived window is one
/// to its base too.
template <class F>
class Window {
 public:
  explicit Window(WindowSlot<F>& slot) : slot_(&slot) {}
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
  [[nodiscard]] FormSlot& Slot() const { return *slot_; }

 private:
  FormSlot* slot_;
};

}  // namespace tessara
