#pragma once

#include <QByteArray>
#include <QString>
#include <glib.h>
#include <memory>
#include <optional>

namespace tessara {

/// What a settings file holds: a key file, in the form of freedesktop.org's desktop entries. Its
/// values are texts and nothing else. Comments and other sections stay.
class SettingsFile {
 public:
  /// Of no file: it holds nothing.
  SettingsFile();
  /// Nothing where the bytes are no key file.
  [[nodiscard]] static std::optional<SettingsFile> Parse(const QByteArray& bytes);
  /// Nothing where the section [Settings] has no such key, or its value is no text.
  [[nodiscard]] std::optional<QString> Find(const QString& key) const;
  void Set(const QString& key, const QString& text);
  [[nodiscard]] QByteArray Bytes() const;

 private:
  struct Unref {
    void operator()(GKeyFile* keyFile) const { g_key_file_unref(keyFile); }
  };
  std::unique_ptr<GKeyFile, Unref> keyFile_;
};

}  // namespace tessara
