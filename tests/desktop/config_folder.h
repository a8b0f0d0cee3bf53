#pragma once

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <stdexcept>

namespace tessara::test {

/// A configuration folder of its own.
struct ConfigFolder {
  QTemporaryDir folder;
  explicit ConfigFolder(const QString& parent = QDir::tempPath())
      : folder(parent + "/tessara-XXXXXX") {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
  }
  [[nodiscard]] QString Path() const { return folder.filePath("Tessara.conf"); }
  [[nodiscard]] QStringList Names() const {
    return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
  }
  [[nodiscard]] QByteArray Read() const {
    QFile file(Path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  void Write(const char* content) const {
    QFile file(Path());
    if (!file.open(QIODevice::WriteOnly)) throw std::logic_error("no settings file");
    file.write(content);
  }
};

}  // namespace tessara::test
