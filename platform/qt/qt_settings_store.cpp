#include "platform/qt/qt_settings_store.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "platform/qt/qt_text.h"

namespace tessara {

namespace {

const QLatin1String kLockEnding(".lock");

/// New settings that never took the old ones' place, and are no older than the lock they were
/// written under.
void RemoveUnfinished(const QFileInfo& settings, const QDateTime& locked) {
  const QString unfinished = settings.fileName() + QLatin1String(".??????");
  for (const QFileInfo& file : settings.dir().entryInfoList({unfinished}, QDir::Files)) {
    if (file.lastModified() >= locked) QFile::remove(file.filePath());
  }
}

/// A writer that was killed leaves its lock behind, and perhaps what it was writing. Where it had
/// not come to put its number into the lock, the next one would wait for half a minute.
void RemoveLeftovers(const QString& settingsFile) {
  const QString lock = settingsFile + kLockEnding;
  const int file = open(QFile::encodeName(lock).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (file < 0) return;
  // The lock of a writer that is alive can't be had.
  if (flock(file, LOCK_EX | LOCK_NB) == 0) {
    RemoveUnfinished(QFileInfo(settingsFile), QFileInfo(lock).lastModified());
    QFile::remove(lock);
  }
  close(file);
}

QString PathOf(const Text& key) {
  return QLatin1String("Settings/") + ToQString(key);
}

/// Tessara.conf in the user's configuration folder.
QString UserFile() {
  return QSettings(QSettings::NativeFormat, QSettings::UserScope, QLatin1String("Tessara"))
      .fileName();
}

}  // namespace

QtSettingsStore::QtSettingsStore() : path_(UserFile()) {
  RemoveLeftovers(path_);
  texts_ = ReadSettingsFile(path_).value_or(SettingsTexts());
}

Text QtSettingsStore::Read(const Text& key, const Text& defaultValue) const {
  const auto found = texts_.find(PathOf(key));
  return found == texts_.end() ? defaultValue : FromQString(*found);
}

void QtSettingsStore::Write(const Text& key, const Text& value) {
  texts_[PathOf(key)] = ToQString(value);
  RemoveLeftovers(path_);
  QLockFile lock(path_ + kLockEnding);
  if (!lock.lock()) return;
  // What somebody else has written meanwhile stays; what can't be read would be lost.
  std::optional<SettingsTexts> stored = ReadSettingsFile(path_);
  if (!stored) return;
  (*stored)[PathOf(key)] = ToQString(value);
  WriteSettingsFile(path_, *stored);
}

}  // namespace tessara
