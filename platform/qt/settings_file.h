#pragma once

#include <QMap>
#include <QString>
#include <optional>

namespace tessara {

/// The texts of a settings file by section and key: "Settings/BackDrop".
using SettingsTexts = QMap<QString, QString>;

// The file has sections in brackets, and lines of key, "=" and text, which stands in quotes where
// it needs them.

/// Empty where there is no file; nothing where there is one that can't be read.
[[nodiscard]] std::optional<SettingsTexts> ReadSettingsFile(const QString& path);

/// Writes the file anew: it then has all the texts, or what it had before where that fails.
void WriteSettingsFile(const QString& path, const SettingsTexts& texts);

}  // namespace tessara
