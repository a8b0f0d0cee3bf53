// The controls and menus of a window: listed once, found by name.

#include <algorithm>

#include "forms/controls.h"
#include "forms/form.h"
#include "forms/renderer.h"
#include "forms/window_system.h"

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
  if (loaded_) system_.Shown().ControlChanged(control, aspect);
}

}  // namespace tessara
