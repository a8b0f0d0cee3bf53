// The controls and menus of a window: listed once, found by name.

#include <algorithm>

#include "forms/controls/controls.h"
#include "forms/form.h"
#include "forms/renderer.h"
#include "forms/window_system.h"

namespace tessara {

namespace {

void GiveCaption(Control& control, TextView caption) {
  if (auto* captioned = dynamic_cast<CaptionedControl*>(&control)) {
    captioned->SetCaption(Text(caption));
  }
}

}  // namespace

void Form::AddControls(std::initializer_list<ControlSpec> specs) {
  for (const ControlSpec& spec : specs) {
    Control& control = *spec.control;
    control.container_ = spec.container;
    control.bounds_ = spec.bounds;
    control.accessibleName_ = spec.accessibleName;
    GiveCaption(control, spec.caption);
    control.owner_ = this;
    controls_.push_back(&control);
  }
}

void Form::AddMenus(std::initializer_list<MenuSpec> specs) {
  for (const MenuSpec& spec : specs) {
    MenuEntry& entry = *spec.entry;
    entry.caption_ = spec.caption;
    entry.keys_ = spec.keys;
    entry.parent_ = spec.parent;
    entry.owner_ = this;
    (spec.parent == nullptr ? menus_ : spec.parent->entries_).push_back(&entry);
  }
}

void Form::SetPageButtons(Button& back, Button& forward) {
  pageBack_ = &back;
  pageForward_ = &forward;
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

void Form::ControlChanged(Control& control, Aspect aspect) {
  if (loaded_) system_.RendererOf().ControlChanged(control, aspect);
}

}  // namespace tessara
