#pragma once

#include <filesystem>

#include "adapters/qt/devices/settings_file.h"
#include "machine/settings_store.h"

namespace tessara {

/// Settings in a file: section [Settings], texts only.
class QtSettingsStore : public SettingsStore {
 public:
  /// Not made, with its folder, before something is written.
  explicit QtSettingsStore(const std::filesystem::path& file);
  [[nodiscard]] Text Read(const Text& key, const Text& defaultValue) const override;
  void Write(const Text& key, const Text& value) override;

 private:
  QString path_;
  SettingsFile known_;
};

}  // namespace tessara
