#include "adapters/qt/windows/menu_view.h"

#include <QPointer>
#include <algorithm>

#include "adapters/qt/text/qt_text.h"
#include "adapters/qt/views/behind_box.h"
#include "adapters/qt/windows/letter_menu.h"

namespace tessara {

MenuView::MenuView(Form& form, QWidget& owner) : QObject(&owner) {
  for (MenuEntry* entry : form.Menus()) topLevel_ += Make(*entry);
}

QWidget& MenuView::Owner() const {
  return *static_cast<QWidget*>(parent());
}

QAction* MenuView::Make(MenuEntry& entry) {
  QAction* action = entry.Entries().empty() ? MakeCommand(entry) : MakeMenu(entry);
  action->setObjectName(QString::fromStdString(entry.Name()));
  actions_[&entry] = action;
  Follow(entry);
  return action;
}

QAction* MenuView::MakeMenu(MenuEntry& entry) {
  auto* menu = new LetterMenu(ToQString(entry.Caption()), &Owner());
  menu->setObjectName(QString::fromStdString(entry.Name()));
  for (MenuEntry* below : entry.Entries()) menu->addAction(Make(*below));
  return menu->menuAction();
}

/// Qt gives an action its keys while its bar is on show, and in every window that it belongs to.
void MenuView::GiveKeys(QAction& action, const MenuEntry& entry) {
  if (entry.Keys().empty()) return;
  action.setShortcut(QKeySequence(ToQString(entry.Keys()), QKeySequence::PortableText));
  action.setAutoRepeat(false);
  if (entry.KeysWorkAlways()) Owner().addAction(&action);
}

QAction* MenuView::MakeCommand(MenuEntry& entry) {
  // A style would write a separator's caption into its line.
  auto* action = new QAction(entry.Separator() ? QString() : ToQString(entry.Caption()), &Owner());
  action->setSeparator(entry.Separator());
  GiveKeys(*action, entry);
  QObject::connect(action, &QAction::triggered, this, [this, &entry] { Press(entry); });
  return action;
}

void MenuView::Press(MenuEntry& entry) {
  if (actions_.empty() || BehindBox(Owner())) return;
  // An event that waits for a box outlives a window that goes meanwhile, and these menus with it.
  const QPointer<MenuView> here(this);
  entry.UserChoose();
  // A click turns a mark over; whether it stands is the form's to say.
  if (here && !actions_.empty()) Follow(entry);
}

void MenuView::Follow(const MenuEntry& entry) {
  QAction& action = *actions_.at(&entry);
  // Qt switches a menu on again with its window, unless the menu itself is off.
  QMenu* menu = action.menu();
  if (menu != nullptr) menu->setEnabled(entry.Enabled());
  action.setEnabled(entry.Enabled());
  action.setVisible(entry.Visible());
  if (entry.Checked()) action.setCheckable(true);
  action.setChecked(entry.Checked());
}

QAction* MenuView::TopLevelFor(char16_t letter) const {
  const auto found = std::find_if(topLevel_.begin(), topLevel_.end(), [letter](QAction* action) {
    return action->isEnabled() && action->isVisible() &&
           AcceleratorOf(FromQString(action->text())) == letter;
  });
  return found == topLevel_.end() ? nullptr : *found;
}

void MenuView::Detach() {
  actions_.clear();
}

}  // namespace tessara
