#include "adapters/qt/views/edit_widgets.h"

#include <QDragEnterEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>
#include <QTextBoundaryFinder>
#include <algorithm>
#include <utility>

#include "adapters/qt/text/dropped_file.h"
#include "adapters/qt/text/text_layout.h"

namespace tessara {

namespace {

/// Where the character begins, as a reader sees one, that ends at the place.
qsizetype CharacterBefore(const QString& text, qsizetype place) {
  QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
  characters.setPosition(place);
  return std::max<qsizetype>(characters.toPreviousBoundary(), 0);
}

bool IsBackspace(const QKeyEvent& event) {
  return event.key() == Qt::Key_Backspace && !(event.modifiers() & ~Qt::ShiftModifier);
}

}  // namespace

void CharacterLine::dragEnterEvent(QDragEnterEvent* event) {
  QLineEdit::dragEnterEvent(event);
  if (HoldsFiles(*event->mimeData())) event->ignore();
}

void CharacterLine::inputMethodEvent(QInputMethodEvent* event) {
  composes_ = !event->preeditString().isEmpty() && event->commitString().isEmpty();
  QLineEdit::inputMethodEvent(event);
  if (!composes_ && onComposed) onComposed();
}

/// Also for input methods that tell of no end.
void CharacterLine::EndComposing() {
  if (std::exchange(composes_, false) && onComposed) onComposed();
}

void CharacterLine::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  EndComposing();
}

void CharacterLine::keyPressEvent(QKeyEvent* event) {
  if (!event->text().isEmpty()) EndComposing();
  if (IsBackspace(*event) && !isReadOnly() && !hasSelectedText() && cursorPosition() > 0) {
    const auto first = static_cast<int>(CharacterBefore(text(), cursorPosition()));
    if (cursorPosition() - first > 1) setSelection(first, cursorPosition() - first);
  }
  QLineEdit::keyPressEvent(event);
}

void PlainArea::dragEnterEvent(QDragEnterEvent* event) {
  QPlainTextEdit::dragEnterEvent(event);
  if (HoldsFiles(*event->mimeData())) event->ignore();
}

QMimeData* PlainArea::createMimeDataFromSelection() const {
  auto* plain = new QMimeData;
  plain->setText(textCursor().selectedText().replace(QChar::ParagraphSeparator, u'\n'));
  return plain;
}

void PlainArea::insertFromMimeData(const QMimeData* source) {
  if (!source->hasText()) return;
  QMimeData plain;
  plain.setText(source->text());
  const QTextOption::WrapMode breaks = WrapModeOf(plain.text());
  if (breaks == QTextOption::WrapAnywhere) setWordWrapMode(breaks);
  QPlainTextEdit::insertFromMimeData(&plain);
}

void PlainArea::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Undo) || event->matches(QKeySequence::Redo)) {
    // What comes back can be a word without end.
    setWordWrapMode(QTextOption::WrapAnywhere);
    QPlainTextEdit::keyPressEvent(event);
    setWordWrapMode(WrapModeOf(toPlainText()));
    return;
  }
  QTextCursor cursor = textCursor();
  const int place = cursor.positionInBlock();
  if (IsBackspace(*event) && !isReadOnly() && !cursor.hasSelection() && place > 0) {
    const auto first = static_cast<int>(CharacterBefore(cursor.block().text(), place));
    if (place - first > 1) {
      cursor.setPosition(cursor.position() - (place - first), QTextCursor::KeepAnchor);
      setTextCursor(cursor);
    }
  }
  QPlainTextEdit::keyPressEvent(event);
}

}  // namespace tessara
