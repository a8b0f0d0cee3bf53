#pragma once

#include <QApplication>
#include <QString>
#include <QTest>
#include <QWidget>
#include <memory>
#include <ostream>

#include "adapters/qt/help/chm_file.h"

inline std::ostream& operator<<(std::ostream& out, const QString& text) {
  return out << text.toStdString();
}

namespace tessara::test {

inline const QString kHelpFile = QStringLiteral(TESSARA_HELP_FILE);

inline std::unique_ptr<ChmFile> BuiltHelp() {
  return ChmFile::Open(kHelpFile);
}

inline QList<QWidget*> HelpWindows() {
  QList<QWidget*> windows;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() == QStringLiteral("HelpViewer")) windows.append(widget);
  }
  return windows;
}

inline void CloseHelpWindows() {
  for (QWidget* window : HelpWindows()) window->close();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace tessara::test
