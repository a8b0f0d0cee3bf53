#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <filesystem>
#include <stdexcept>

#include "tests/support/environment_variable.h"

namespace tessara::test {

/// A configuration folder of its own.
struct ConfigFolder {
  QTemporaryDir folder;
  EnvironmentVariable variable;
  explicit ConfigFolder(const QString& parent = QDir::tempPath())
      : folder(parent + "/tessara-XXXXXX"),
        variable("XDG_CONFIG_HOME", folder.path().toStdString()) {}
  [[nodiscard]] QString Path() const { return folder.filePath("Tessara.conf"); }
  [[nodiscard]] std::filesystem::path File() const { return Path().toStdString(); }
  [[nodiscard]] QStringList Names() const {
    return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
  }
  [[nodiscard]] QByteArray Read(const char* name = "Tessara.conf") const {
    QFile file(folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  void Write(const char* content) const {
    QFile file(Path());
    if (!file.open(QIODevice::WriteOnly)) throw std::logic_error("no settings file");
    file.write(content);
  }
};

}  // namespace tessara::test
