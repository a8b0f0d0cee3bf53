#pragma once

#include <QShortcut>

namespace tessara {

/// The key for redo that many hands know from elsewhere, beside the desktop's own.
template <class Edit>
void AddRedoKeys(Edit& edit) {
  new QShortcut(
      Qt::CTRL | Qt::Key_Y, &edit, [&edit] { edit.redo(); }, Qt::WidgetShortcut);
}

}  // namespace tessara
