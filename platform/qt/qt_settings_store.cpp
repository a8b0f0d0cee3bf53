#include "platform/qt/qt_settings_store.h"

#include "platform/qt/qt_text.h"

namespace tessara {

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
  settings_.setValue(ToQString(key), ToQString(value));
  settings_.sync();
}

}  // namespace tessara
