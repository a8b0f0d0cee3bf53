#include "platform/qt/qt_settings_store.h"

#include <QFile>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "platform/qt/qt_text.h"

namespace tessara {

namespace {

/// A writer that was killed leaves its lock behind, and where it had not come to write its number
/// into it, the next one would wait for half a minute.
void RemoveAbandonedLock(const QString& settingsFile) {
  const QByteArray lock = QFile::encodeName(settingsFile + QLatin1String(".lock"));
  const int file = open(lock.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (file < 0) return;
  // The lock of a writer that is alive can't be had.
  if (flock(file, LOCK_EX | LOCK_NB) == 0) unlink(lock.constData());
  close(file);
}

}  // namespace

QtSettingsStore::QtSettingsStore()
    : settings_(QSettings::NativeFormat, QSettings::UserScope, QLatin1String("Tessara")) {
  settings_.setFallbacksEnabled(false);
  settings_.beginGroup(QLatin1String("Settings"));
}

Text QtSettingsStore::Read(const Text& key, const Text& defaultValue) const {
  const QVariant value = settings_.value(ToQString(key));
  if (!value.isValid()) return defaultValue;
  // A text with a comma that somebody wrote into the file without quotes is taken for a list.
  return FromQString(value.toStringList().join(u','));
}

void QtSettingsStore::Write(const Text& key, const Text& value) {
  RemoveAbandonedLock(settings_.fileName());
  settings_.setValue(ToQString(key), ToQString(value));
  settings_.sync();
}

}  // namespace tessara
