#include "forms/window.h"

#include <utility>

#include "forms/window_system.h"

namespace tessara {

FormSlot::FormSlot(WindowSystem& system, Maker maker) : system_(system), maker_(std::move(maker)) {}

FormSlot::~FormSlot() {
  if (form_ != nullptr && form_->loaded_) {
    form_->loaded_ = false;
    form_->visible_ = false;
    // A program that an error has ended goes with its windows, whose renderer is gone by then.
    system_.Forget(*form_);
  }
}

Form& FormSlot::Instance() {
  if (form_ == nullptr) {
    form_ = maker_();
    form_->slot_ = this;
  }
  return *form_;
}

bool FormSlot::Unload() {
  return form_ == nullptr || form_->Unload();
}

}  // namespace tessara
