// How a window is loaded, comes on screen, leaves it, and is unloaded.

#include <memory>
#include <utility>
#include <vector>

#include "forms/form.h"
#include "forms/renderer.h"
#include "forms/window.h"
#include "forms/window_system.h"

namespace tessara {

namespace {

/// A form's turn among the modal ones, however it ends.
class ModalTurn {
 public:
  ModalTurn(std::vector<Form*>& modals, Form& form) : modals_(modals), form_(&form) {
    modals_.push_back(form_);
  }
  ModalTurn(const ModalTurn&) = delete;
  ModalTurn& operator=(const ModalTurn&) = delete;
  ~ModalTurn() { std::erase(modals_, form_); }

 private:
  std::vector<Form*>& modals_;
  Form* form_;
};

}  // namespace

void Form::SetVisible(bool visible) {
  if (visible) {
    Show();
  } else if (visible_) {
    visible_ = false;
    Changed(FormAspect::kVisible);
    system_.Drop(*this);
  }
}

void Form::Show(Modality modality) {
  EnsureLoaded();
  if (modality == Modality::kModal) {
    ShowModal();
  } else {
    ComeUp();
  }
}

/// The window counts as modal before it comes up: whoever shows it has to know by then.
void Form::ShowModal() {
  {
    const ModalTurn turn(system_.modals_, *this);
    ComeUp();
    if (visible_) system_.RendererOf().RunModal(*this);
  }
  system_.LeaveIfEnded();
}

void Form::ComeUp() {
  const bool comesUp = !visible_ && kind_ != FormKind::kOffScreen && !system_.closingFrame_;
  if (comesUp) {
    visible_ = true;
    Changed(FormAspect::kVisible);
    if (!std::exchange(shownBefore_, true)) system_.Run([this] { OnResize(); });
  }
  if (visible_) system_.BringForward(*this);
}

void Form::EnsureLoaded() {
  if (loaded_) return;
  loaded_ = true;
  system_.Add(*this);
  system_.Run([this] { OnLoad(); });
  if (loaded_ && ShowsOnLoad()) Show();
}

bool Form::Unload() {
  if (!loaded_) return true;
  if (kind_ == FormKind::kFrame && !system_.CloseFrame(*this)) return false;
  bool cancel = false;
  system_.Run([this, &cancel] { OnUnload(cancel); });
  if (cancel) return false;
  if (!loaded_) return true;
  loaded_ = false;
  visible_ = false;
  system_.RendererOf().FormUnloaded(*this);
  auto self = slot_ != nullptr ? slot_->Release() : nullptr;
  system_.Remove(*this);
  system_.Bury(std::move(self));
  return true;
}

}  // namespace tessara
