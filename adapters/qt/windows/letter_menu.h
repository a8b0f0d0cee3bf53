#pragma once

#include <QMenu>

namespace tessara {

/// A menu whose letters go among the entries that can be chosen: a letter that is one's own takes
/// the entry, a shared one goes on to the next. Qt counts disabled entries too, and stops at them.
class LetterMenu : public QMenu {
 public:
  using QMenu::QMenu;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void TakeLetter(char16_t letter);
};

}  // namespace tessara
