#pragma once

#include <QAction>
#include <QObject>
#include <unordered_map>

#include "forms/form.h"

class QMenu;

namespace tessara {

/// The menu bar entries of one window. They belong to that window, so entries of the same name in
/// two windows do not get in each other's way.
class MenuView : public QObject {
 public:
  MenuView(Form& form, QWidget& owner);

  [[nodiscard]] const QList<QAction*>& TopLevel() const { return topLevel_; }
  /// The top-level menu that carries the accelerator; null where none does.
  [[nodiscard]] QAction* TopLevelFor(char16_t letter) const;
  void Follow(const MenuEntry& entry);
  void Detach();

 private:
  QAction* Make(MenuEntry& entry);
  QAction* MakeMenu(MenuEntry& entry);
  QAction* MakeCommand(MenuEntry& entry);
  void GiveKeys(QAction& action, const MenuEntry& entry);
  void Press(MenuEntry& entry);
  [[nodiscard]] QWidget& Owner() const;

  std::unordered_map<const MenuEntry*, QAction*> actions_;
  QList<QAction*> topLevel_;
};

}  // namespace tessara
