#include "adapters/qt/windows/letter_menu.h"

#include <QKeyEvent>
#include <vector>

#include "adapters/qt/text/qt_text.h"
#include "forms/controls/control.h"
#include "forms/shared_letter.h"

namespace tessara {

namespace {

/// The letter of a key in an open menu, with Alt or without, in upper case; 0 for every other key.
char16_t LetterOf(const QKeyEvent& key) {
  const auto modifiers = key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
  const bool plain = modifiers == Qt::NoModifier || modifiers == Qt::AltModifier;
  const QString text = key.text();
  const bool letter = text.size() == 1 && text.front().isPrint() && !text.front().isSpace();
  return plain && letter ? UpperCase(FromQString(text)).front() : 0;
}

}  // namespace

void LetterMenu::keyPressEvent(QKeyEvent* event) {
  const char16_t letter = LetterOf(*event);
  if (letter == 0) return QMenu::keyPressEvent(event);
  TakeLetter(letter);
}

void LetterMenu::TakeLetter(char16_t letter) {
  const QList<QAction*> entries = actions();
  const auto target = TargetOfLetter(std::vector<QAction*>(entries.begin(), entries.end()),
                                     activeAction(), [letter](const QAction& entry) {
                                       return entry.isEnabled() && entry.isVisible() &&
                                              AcceleratorOf(FromQString(entry.text())) == letter;
                                     });
  if (target.item == nullptr) return;
  setActiveAction(target.item);
  if (!target.alone) return;
  QKeyEvent take(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QMenu::keyPressEvent(&take);
}

}  // namespace tessara
