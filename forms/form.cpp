#include "forms/form.h"

#include <algorithm>
#include <utility>

#include "forms/controls.h"
#include "forms/renderer.h"
#include "forms/window.h"
#include "forms/window_system.h"
#include "platform/run_time_error.h"

namespace tessara {

namespace {

std::string NameOf(const char* name, int index) {
  return index == kNoIndex ? name : std::string(name) + "(" + std::to_string(index) + ")";
}

void GiveCaption(Control& control, TextView caption) {
  if (auto* captioned = dynamic_cast<CaptionedControl*>(&control)) {
    captioned->SetCaption(Text(caption));
  }
}

}  // namespace

Form::Form(WindowSystem& system, std::string name, FormKind kind, Text caption)
    : system_(system), name_(std::move(name)), kind_(kind), caption_(std::move(caption)) {}

Form::~Form() = default;

void Form::SetCaption(const Text& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  if (loaded_) system_.Shown().FormChanged(*this, FormAspect::kCaption);
}

void Form::CheckMovable() const {
  const bool child = kind_ == FormKind::kChild;
  if (child && state_ != WindowState::kNormal) {
    throw RunTimeError(ErrorNumber::kMinimisedOrMaximised);
  }
}

void Form::Resize(const Bounds& bounds) {
  CheckMovable();
  if (bounds_ == bounds) return;
  const bool sizeDiffers = bounds_.width != bounds.width || bounds_.height != bounds.height;
  bounds_ = bounds;
  if (!loaded_) return;
  system_.Shown().FormChanged(*this, FormAspect::kBounds);
  if (sizeDiffers) system_.Run([this] { Form_Resize(); });
}

void Form::SetLeft(int left) {
  Resize({left, bounds_.top, bounds_.width, bounds_.height});
}
void Form::SetTop(int top) {
  Resize({bounds_.left, top, bounds_.width, bounds_.height});
}
void Form::SetWidth(int width) {
  Resize({bounds_.left, bounds_.top, width, bounds_.height});
}
void Form::SetHeight(int height) {
  Resize({bounds_.left, bounds_.top, bounds_.width, height});
}

void Form::SetState(WindowState state) {
  if (state_ == state) return;
  state_ = state;
  if (loaded_) system_.Shown().FormChanged(*this, FormAspect::kState);
}

void Form::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  if (loaded_) system_.Shown().FormChanged(*this, FormAspect::kEnabled);
}

void Form::SetVisible(bool visible) {
  if (visible) {
    Show();
  } else if (visible_) {
    visible_ = false;
    system_.Shown().FormChanged(*this, FormAspect::kVisible);
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
  system_.modals_.push_back(this);
  ComeUp();
  if (visible_) system_.Shown().RunModal(*this);
  std::erase(system_.modals_, this);
  system_.LeaveIfEnded();
}

void Form::ComeUp() {
  const bool comesUp = !visible_ && kind_ != FormKind::kOffScreen && !system_.closingFrame_;
  if (comesUp) {
    visible_ = true;
    system_.Shown().FormChanged(*this, FormAspect::kVisible);
    if (!std::exchange(shownBefore_, true)) system_.Run([this] { Form_Resize(); });
  }
  if (visible_) system_.BringForward(*this);
}

void Form::EnsureLoaded() {
  if (loaded_) return;
  loaded_ = true;
  system_.Add(*this);
  system_.Shown().FormLoading(*this);
  system_.Run([this] { Form_Load(); });
  if (loaded_ && ShowsOnLoad()) Show();
}

bool Form::Unload() {
  if (!loaded_) return true;
  if (kind_ == FormKind::kFrame && !system_.CloseFrame(*this)) return false;
  bool cancel = false;
  system_.Run([this, &cancel] { Form_Unload(cancel); });
  if (cancel) return false;
  if (!loaded_) return true;
  loaded_ = false;
  visible_ = false;
  system_.Shown().FormUnloaded(*this);
  auto self = slot_ != nullptr ? slot_->Release() : nullptr;
  system_.Remove(*this);
  system_.Bury(std::move(self));
  return true;
}

Control* Form::FindControl(const std::string& name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&name](const Control* c) { return c->Name() == name; });
  return found == controls_.end() ? nullptr : *found;
}

MenuEntry* Form::FindMenu(const std::string& name) const {
  std::vector<MenuEntry*> open(menus_);
  while (!open.empty()) {
    MenuEntry* entry = open.back();
    open.pop_back();
    if (entry->Name() == name) return entry;
    open.insert(open.end(), entry->Entries().begin(), entry->Entries().end());
  }
  return nullptr;
}

void Form::PaintPicture(const Picture& picture, int x, int y) {
  painted_.push_back({picture, x, y});
}

void Form::SetPicture(std::vector<PaintedPicture> painted) {
  painted_ = std::move(painted);
  if (loaded_) system_.Shown().FormChanged(*this, FormAspect::kPicture);
}

void Form::Place(std::initializer_list<ControlPlace> places) {
  for (const ControlPlace& place : places) {
    Control& control = *place.control;
    control.name_ = NameOf(place.name, place.index);
    control.index_ = place.index;
    control.container_ = place.container;
    control.bounds_ = place.bounds;
    control.accessibleName_ = place.accessibleName;
    GiveCaption(control, place.caption);
    control.owner_ = this;
    controls_.push_back(&control);
  }
}

void Form::PlaceMenus(std::initializer_list<MenuPlace> places) {
  for (const MenuPlace& place : places) {
    MenuEntry& entry = *place.entry;
    entry.name_ = place.name;
    entry.caption_ = place.caption;
    entry.parent_ = place.parent;
    entry.owner_ = this;
    (place.parent == nullptr ? menus_ : place.parent->entries_).push_back(&entry);
  }
}

void Form::ControlChanged(Control& control, Aspect aspect) {
  if (loaded_) system_.Shown().ControlChanged(control, aspect);
}

}  // namespace tessara
