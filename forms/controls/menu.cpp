#include "forms/controls/menu.h"

#include "forms/assign.h"
#include "forms/form.h"
#include "forms/renderer.h"
#include "forms/window_system.h"

namespace tessara {

void MenuEntry::SetEnabled(bool enabled) {
  if (Assign(enabled_, enabled)) Changed();
}

void MenuEntry::SetVisible(bool visible) {
  if (Assign(visible_, visible)) Changed();
}

void MenuEntry::SetChecked(bool checked) {
  if (Assign(checked_, checked)) Changed();
}

bool MenuEntry::Reachable() const {
  for (const MenuEntry* entry = this; entry != nullptr; entry = entry->parent_) {
    if (!entry->enabled_ || !entry->visible_) return false;
  }
  return true;
}

void MenuEntry::Press() {
  if (Reachable()) Run();
}

void MenuEntry::UserChoose() {
  if (keysWorkAlways_ || Reachable()) Run();
}

void MenuEntry::Run() {
  const bool inert = !entries_.empty() || owner_ == nullptr;
  if (inert || !owner_->TakesInput() || !onClick) return;
  owner_->System().Run(onClick);
}

void MenuEntry::Changed() {
  if (owner_ != nullptr && owner_->Loaded()) owner_->System().RendererOf().MenuChanged(*this);
}

}  // namespace tessara
