#include "adapters/freedesktop/desktop_entry.h"

#include <string_view>

namespace tessara {

namespace {

/// An argument with one of these stands in quotes: what the rules reserve, and any break of the
/// line.
constexpr std::string_view kReserved = " \t\n\r\"'\\<>~|&;$*?#()`";
/// These are escaped in quotes.
constexpr std::string_view kEscaped = "\"`$\\";

}  // namespace

DesktopEntry::DesktopEntry(const std::filesystem::path& file) : keyFile_(g_key_file_new()) {
  g_key_file_load_from_file(keyFile_.get(), file.c_str(), G_KEY_FILE_KEEP_TRANSLATIONS, nullptr);
}

bool DesktopEntry::Empty() const {
  return g_key_file_has_group(keyFile_.get(), G_KEY_FILE_DESKTOP_GROUP) == FALSE;
}

std::string DesktopEntry::DocumentTypes() const {
  char* const types = g_key_file_get_string(keyFile_.get(), G_KEY_FILE_DESKTOP_GROUP,
                                            G_KEY_FILE_DESKTOP_KEY_MIME_TYPE, nullptr);
  std::string told = types == nullptr ? "" : types;
  g_free(types);
  return told;
}

void DesktopEntry::SetProgram(const std::string& path) {
  Set(G_KEY_FILE_DESKTOP_KEY_EXEC, QuotedForCommand(path) + " %f");
  Set(G_KEY_FILE_DESKTOP_KEY_TRY_EXEC, path);
}

void DesktopEntry::Set(const char* key, const std::string& value) {
  g_key_file_set_string(keyFile_.get(), G_KEY_FILE_DESKTOP_GROUP, key, value.c_str());
}

bool DesktopEntry::Save(const std::filesystem::path& file) const {
  return g_key_file_save_to_file(keyFile_.get(), file.c_str(), nullptr) != FALSE;
}

std::string QuotedForCommand(const std::string& path) {
  // Without need there are no quotes: some of those who open files do not read them.
  const std::string quote = path.find_first_of(kReserved) == std::string::npos ? "" : "\"";
  std::string quoted = quote;
  for (const char c : path) {
    if (kEscaped.find(c) != std::string_view::npos) quoted += '\\';
    quoted += c == '%' ? std::string("%%") : std::string(1, c);
  }
  return quoted + quote;
}

}  // namespace tessara
