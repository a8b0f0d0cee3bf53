#pragma once

#include "adapters/qt/devices/settings_file.h"
#include "machine/settings_store.h"

namespace tessara {

/// Settings in the user's configuration folder: Tessara.conf, section [Settings], texts only. The
/// folder is the one of the XDG base directories.
class QtSettingsStore : public SettingsStore {
 public:
  QtSettingsStore();
  [[nodiscard]] Text Read(const Text& key, const Text& defaultValue) const override;
  void Write(const Text& key, const Text& value) override;

 private:
  QString path_;
  SettingsFile known_;
};

}  // namespace tessara
