#include "forms/controls/control.h"

#include "base/run_time_error.h"
#include "forms/assign.h"
#include "forms/form.h"
#include "forms/window_system.h"

namespace tessara {

void Control::SetBounds(const Bounds& bounds) {
  if (Assign(bounds_, bounds)) Changed(Aspect::kBounds);
}

void Control::SetLeft(int left) {
  SetBounds({left, bounds_.top, bounds_.width, bounds_.height});
}
void Control::SetTop(int top) {
  SetBounds({bounds_.left, top, bounds_.width, bounds_.height});
}
void Control::SetWidth(int width) {
  SetBounds({bounds_.left, bounds_.top, width, bounds_.height});
}
void Control::SetHeight(int height) {
  SetBounds({bounds_.left, bounds_.top, bounds_.width, height});
}

void Control::SetVisible(bool visible) {
  if (Assign(visible_, visible)) Changed(Aspect::kVisible);
}

void Control::SetEnabled(bool enabled) {
  if (Assign(enabled_, enabled)) Changed(Aspect::kEnabled);
}

bool Control::OnShow() const {
  for (const Control* control = this; control != nullptr; control = control->container_) {
    if (!control->visible_) return false;
  }
  return owner_ != nullptr && owner_->Visible();
}

bool Control::Reachable() const {
  for (const Control* control = this; control != nullptr; control = control->container_) {
    if (!control->enabled_) return false;
  }
  return OnShow() && owner_->Enabled();
}

bool Control::TakesInput() const {
  return Reachable() && owner_->TakesInput();
}

void Control::SetFont(const Font& font) {
  if (Assign(font_, font)) Changed(Aspect::kFont);
}

void Control::SetBold(bool bold) {
  Font font = font_;
  font.bold = bold;
  SetFont(font);
}

void Control::SetForeColor(const Color& color) {
  if (Assign(foreColor_, color)) Changed(Aspect::kColor);
}

void Control::SetBackColor(const Color& color) {
  if (Assign(backColor_, color)) Changed(Aspect::kColor);
}

void Control::SetFocus() {
  if (!Reachable()) throw RunTimeError(ErrorNumber::kInvalidProcedureCall);
  owner_->MoveFocus(this);
}

void Control::UserMouseMove() {
  if (TakesInput()) Raise(onMouseMove);
}

void Control::UserKeyPress(char16_t character) {
  if (!TakesInput() || !onKeyPress) return;
  Raise([this, character] { onKeyPress(character); });
}

void Control::UserKeyUp() {
  if (TakesInput()) Raise(onKeyUp);
}

void Control::Changed(Aspect aspect) {
  if (owner_ != nullptr) owner_->ControlChanged(*this, aspect);
}

void Control::Raise(const std::function<void()>& handler) const {
  if (handler) owner_->System().Run(handler);
}

void CaptionedControl::SetCaption(const Text& caption) {
  if (Assign(caption_, caption)) Changed(Aspect::kCaption);
}

char16_t CaptionedControl::Accelerator() const {
  return AcceleratorOf(caption_);
}

char16_t AcceleratorOf(TextView caption) {
  for (std::size_t at = 0; at + 1 < caption.size(); ++at) {
    if (caption[at] != u'&') continue;
    if (caption[at + 1] != u'&') return UpperCase(caption.substr(at + 1, 1)).front();
    ++at;
  }
  return 0;
}

Text PlainCaption(TextView caption) {
  Text plain;
  for (std::size_t at = 0; at < caption.size(); ++at) {
    if (caption[at] == u'&' && ++at == caption.size()) break;
    plain += caption[at];
  }
  return plain;
}

}  // namespace tessara
