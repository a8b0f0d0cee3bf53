#pragma once

#include <QSettings>

#include "platform/settings_store.h"

namespace tessara {

/// Settings in the user's configuration folder: Tessara.conf, section [Settings], texts only.
class QtSettingsStore : public SettingsStore {
 public:
  QtSettingsStore();
  [[nodiscard]] Text Read(const Text& key, const Text& defaultValue) const override;
  void Write(const Text& key, const Text& value) override;

 private:
  QSettings settings_;
};

}  // namespace tessara
