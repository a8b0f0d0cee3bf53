#include "adapters/qt/devices/settings_file.h"

#include <utility>

namespace tessara {

namespace {

constexpr const char* kSection = "Settings";

struct Free {
  void operator()(char* text) const { g_free(text); }
};
using GlibText = std::unique_ptr<char, Free>;

struct FreeError {
  void operator()(GError* error) const { g_error_free(error); }
};
using GlibError = std::unique_ptr<GError, FreeError>;

}  // namespace

SettingsFile::SettingsFile() : keyFile_(g_key_file_new()) {}

std::optional<SettingsFile> SettingsFile::Parse(const QByteArray& bytes) {
  SettingsFile file;
  const bool parsed = g_key_file_load_from_data(file.keyFile_.get(), bytes.constData(),
                                                static_cast<gsize>(bytes.size()),
                                                G_KEY_FILE_KEEP_COMMENTS, nullptr);
  return parsed ? std::optional(std::move(file)) : std::nullopt;
}

std::optional<QString> SettingsFile::Find(const QString& key) const {
  const QByteArray name = key.toUtf8();
  GError* raised = nullptr;
  GlibText text(g_key_file_get_string(keyFile_.get(), kSection, name.constData(), &raised));
  const GlibError error(raised);
  // A backslash that escapes nothing: some versions of GLib give the text beside the error, others
  // don't.
  if (g_error_matches(error.get(), G_KEY_FILE_ERROR, G_KEY_FILE_ERROR_INVALID_VALUE)) {
    text.reset(g_key_file_get_value(keyFile_.get(), kSection, name.constData(), nullptr));
  }
  return text == nullptr ? std::nullopt : std::optional(QString::fromUtf8(text.get()));
}

void SettingsFile::Set(const QString& key, const QString& text) {
  g_key_file_set_string(keyFile_.get(), kSection, key.toUtf8().constData(),
                        text.toUtf8().constData());
}

QByteArray SettingsFile::Bytes() const {
  gsize size = 0;
  const GlibText text(g_key_file_to_data(keyFile_.get(), &size, nullptr));
  return {text.get(), static_cast<qsizetype>(size)};
}

}  // namespace tessara
