#include "adapters/freedesktop/document_registry.h"

#include <fstream>
#include <sstream>
#include <system_error>

#include "adapters/freedesktop/document_files.h"
#include "base/folder_entries.h"
#include "base/utf8.h"

namespace tessara {

namespace fs = std::filesystem;

namespace {

constexpr int kDone = 0;
constexpr int kNoSuchKey = 2;

/// Empty where the file can't be read.
std::string BytesOf(const fs::path& path) {
  std::ostringstream bytes;
  bytes << std::ifstream(path, std::ios::binary).rdbuf();
  return bytes ? bytes.str() : std::string();
}

/// A file that was begun and can't be written whole is gone.
void WriteFile(const fs::path& path, const std::string& content) {
  std::error_code ignored;
  fs::create_directories(path.parent_path(), ignored);
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  if (!file) return;
  file << content;
  file.close();
  if (!file && fs::is_regular_file(path, ignored)) fs::remove(path, ignored);
}

/// Each file by itself: one that fails does not keep the others away.
void CopyFiles(const fs::path& from, const fs::path& to) {
  std::error_code unread;
  for (const fs::directory_entry& entry : EntriesBelow(from, unread)) {
    if (!entry.is_regular_file(unread)) continue;
    const std::string bytes = BytesOf(entry.path());
    if (!bytes.empty()) WriteFile(to / entry.path().lexically_relative(from), bytes);
  }
}

}  // namespace

int DocumentRegistry::CreateClassKey(const Text& key) {
  // A key brings its parents into being.
  for (auto end = key.find(u'\\'); end != Text::npos; end = key.find(u'\\', end + 1)) {
    defaults_.try_emplace(key.substr(0, end));
  }
  defaults_.try_emplace(key);
  return kDone;
}

int DocumentRegistry::SetClassValue(const Text& key, const Text& valueName, const Text& value) {
  const auto found = defaults_.find(key);
  if (found == defaults_.end()) return kNoSuchKey;
  if (valueName.empty()) found->second = value;
  return kDone;
}

std::string DocumentRegistry::DefaultValue(const Text& key) const {
  const auto found = defaults_.find(key);
  return found == defaults_.end() ? std::string() : ToUtf8(found->second);
}

void DocumentRegistry::WriteFiles() const {
  const DocumentType type{"*.tsr", DefaultValue(u"Tessara.Document"),
                          (folders_.program / folders_.executable).string()};
  WriteFile(folders_.userData / "mime" / "packages" / "tessara.xml", MimePackage(type));
  WriteFile(folders_.userData / "applications" / kDesktopEntryName, DesktopEntry(type));
  CopyFiles(folders_.program / "icons" / "hicolor", folders_.userData / "icons" / "hicolor");
}

void DocumentRegistry::Publish() {
  if (folders_.userData.empty()) return;
  try {
    WriteFiles();
  } catch (const std::exception&) {
    // What could not be written stays undeclared: the association is a convenience, never a
    // reason to bother the user.
  }
  tools_(folders_.userData);
}

}  // namespace tessara
