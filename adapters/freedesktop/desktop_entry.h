#pragma once

#include <filesystem>
#include <glib.h>
#include <memory>
#include <string>

namespace tessara {

/// A file that tells the desktop of a program (freedesktop.org's desktop entries, version 1.0).
class DesktopEntry {
 public:
  /// Empty where the file is none.
  explicit DesktopEntry(const std::filesystem::path& file);

  [[nodiscard]] bool Empty() const;
  /// The types of documents that the program opens, each with a ";" behind it.
  [[nodiscard]] std::string DocumentTypes() const;
  /// From now on it starts the program at the path with one document, and is none without it.
  void SetProgram(const std::string& path);
  /// False where the file can't be written; what was there before then stays.
  [[nodiscard]] bool Save(const std::filesystem::path& file) const;

 private:
  void Set(const char* key, const std::string& value);

  struct Unref {
    void operator()(GKeyFile* keyFile) const { g_key_file_unref(keyFile); }
  };
  std::unique_ptr<GKeyFile, Unref> keyFile_;
};

/// The path as an argument of an entry's command: in quotes where the rules want them, and escaped.
[[nodiscard]] std::string QuotedForCommand(const std::string& path);

}  // namespace tessara
