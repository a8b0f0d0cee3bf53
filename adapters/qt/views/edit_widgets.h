#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QShortcut>
#include <functional>

namespace tessara {

// Qt's edit widgets, where Backspace takes a whole character as a reader sees it, as the other keys
// do, and not the last of its marks.

/// It takes no file for the text of its path.
class CharacterLine : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

  /// True while an input method composes what is not in the text yet: the selection that it gives
  /// way to is gone already.
  [[nodiscard]] bool Composes() const { return composes_; }
  std::function<void()> onComposed;

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void EndComposing();

  bool composes_ = false;
};

/// It takes plain text from a clipboard or a drag and nothing else, no file for the text of its
/// path: Qt would format what is marked as Markdown, and crashes where a clipboard offers nothing.
/// What it gives keeps its no-break blanks, which Qt would make plain ones of.
/// It is laid out at once: how it breaks is told first.
class PlainArea : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;
  void insertFromMimeData(const QMimeData* source) override;
  void keyPressEvent(QKeyEvent* event) override;
};

/// The key for redo that many hands know from elsewhere, beside the desktop's own.
template <class Edit>
void AddRedoKeys(Edit& edit) {
  new QShortcut(
      Qt::CTRL | Qt::Key_Y, &edit, [&edit] { edit.redo(); }, Qt::WidgetShortcut);
}

}  // namespace tessara
