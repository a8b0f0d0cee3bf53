#include "forms/window_system.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "base/foreign_error.h"
#include "base/run_time_error.h"
#include "machine/message_box.h"

namespace tessara {

WindowSystem::WindowSystem(MessageBoxes& messages) : messages_(messages) {}

WindowSystem::~WindowSystem() = default;

void WindowSystem::Run(const std::function<void()>& event) {
  if (exitStatus_ && depth_ == 0) return;
  ++depth_;
  try {
    event();
  } catch (const RunTimeError& error) {
    return EndBy(error);
  } catch (const ProgramEnded&) {
    Leave();
    if (depth_ > 0) throw;
    return;
  } catch (const std::exception& foreign) {
    return EndBy(RunTimeErrorOf(foreign));
  } catch (...) {
    Leave();
    throw;
  }
  Leave();
}

void WindowSystem::EndBy(const RunTimeError& error) {
  try {
    // Shown while the event still counts as running, so that nothing is destroyed behind the box.
    Report(error);
  } catch (const std::exception&) {
    // No memory for the box, or the program has ended behind it.
  }
  EndProgram(1);
  Leave();
  if (depth_ > 0) throw ProgramEnded(*exitStatus_);
}

void WindowSystem::Report(const RunTimeError& error) {
  messages_.Show(u"Run-time error '" + DecimalText(static_cast<long>(error.Number())) + u"':" +
                     Text(kLineBreak) + Text(kLineBreak) + error.Description(),
                 kStopIcon, Text(kProgramName));
}

void WindowSystem::Leave() {
  if (depth_ == 1 && afterEvent_) afterEvent_();
  if (--depth_ > 0) return;
  while (!buried_.empty()) {
    auto last = std::move(buried_.back());
    buried_.pop_back();
  }
}

void WindowSystem::LeaveIfEnded() const {
  if (exitStatus_ && *exitStatus_ != 0) throw ProgramEnded(*exitStatus_);
}

void WindowSystem::EndProgram(int exitStatus) {
  if (exitStatus_) return;
  exitStatus_ = exitStatus;
  if (renderer_ != nullptr) renderer_->ProgramHasEnded(exitStatus);
}

Form* WindowSystem::ActiveForm() const {
  return order_.empty() ? nullptr : order_.back();
}

Form* WindowSystem::ActiveChild() const {
  const auto found = std::find_if(order_.rbegin(), order_.rend(),
                                  [](const Form* f) { return f->Kind() == FormKind::kChild; });
  return found == order_.rend() ? nullptr : *found;
}

Form* WindowSystem::FrameForm() const {
  const auto found = std::find_if(loaded_.begin(), loaded_.end(),
                                  [](const Form* f) { return f->Kind() == FormKind::kFrame; });
  return found == loaded_.end() ? nullptr : *found;
}

bool WindowSystem::FrameIsEmpty() const {
  return std::none_of(order_.begin(), order_.end(),
                      [](const Form* form) { return form->OccupiesFrame(); });
}

bool WindowSystem::HoldsUnkeptText() const {
  return std::any_of(loaded_.begin(), loaded_.end(),
                     [](Form* form) { return form->HoldsUnkeptText(); });
}

Form* WindowSystem::MenuBarForm() const {
  Form* child = ActiveChild();
  const bool offers = child != nullptr && child->Enabled() && !child->Menus().empty();
  return offers ? child : FrameForm();
}

void WindowSystem::Add(Form& form) {
  loaded_.push_back(&form);
}

void WindowSystem::Remove(Form& form) {
  std::erase(loaded_, &form);
  Drop(form);
  if (form.Kind() == FormKind::kFrame) EndProgram(0);
}

void WindowSystem::Forget(Form& form) {
  std::erase(loaded_, &form);
  std::erase(order_, &form);
}

void WindowSystem::Bury(std::unique_ptr<Form> form) {
  if (form != nullptr) buried_.push_back(std::move(form));
}

void WindowSystem::BringForward(Form& form) {
  if (form.Kind() == FormKind::kFrame) return;
  const Front before = InFront();
  std::erase(order_, &form);
  order_.push_back(&form);
  TellFrame();
  FrontMayHaveChanged(before);
}

void WindowSystem::Drop(Form& form) {
  const Front before = InFront();
  std::erase(order_, &form);
  TellFrame();
  FrontMayHaveChanged(before);
}

/// Before any event that the change causes: it may wait for the user.
void WindowSystem::TellFrame() const {
  Form* frame = FrameForm();
  if (frame != nullptr) frame->WindowsChanged();
}

void WindowSystem::FrontMayHaveChanged(const Front& front) {
  if (front == InFront()) return;
  Form* before = front.active;
  Form* now = ActiveForm();
  if (renderer_ != nullptr) renderer_->ActiveFormChanged(now);
  if (before == now) return;
  const bool beforeStands = std::find(order_.begin(), order_.end(), before) != order_.end();
  if (beforeStands) Run([before] { before->OnLostFocus(); });
  if (now != nullptr && ActiveForm() == now && !closingFrame_) Run([now] { now->OnActivate(); });
}

/// The order is that of the windows' loading, but for the one that may refuse.
bool WindowSystem::CloseFrame(Form& frame) {
  const auto first = std::find_if(loaded_.begin(), loaded_.end(),
                                  [](const Form* form) { return form->ClosesFirst(); });
  if (first != loaded_.end() && !(*first)->Unload()) return false;
  closingFrame_ = true;
  // Not before: the first to go may have brought up another, as a save does. From here on none can.
  const std::vector<Form*> others(loaded_);
  for (Form* form : others) {
    const bool stands = std::find(loaded_.begin(), loaded_.end(), form) != loaded_.end();
    if (form != &frame && stands) form->Unload();
  }
  return true;
}

}  // namespace tessara
