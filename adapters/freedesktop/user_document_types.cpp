#include "adapters/freedesktop/user_document_types.h"

#include <system_error>
#include <unistd.h>

#include "adapters/freedesktop/desktop_entry.h"
#include "adapters/posix/process/start_process.h"
#include "base/folder_entries.h"
#include "base/utf8.h"

namespace tessara {

namespace fs = std::filesystem;

namespace {

/// Its arguments are the folder, the entry and the types.
constexpr const char* kScript = R"(update-mime-database "$1/mime"
update-desktop-database "$1/applications"
gtk-update-icon-cache -q -t -f "$1/icons/hicolor"
IFS=';'
xdg-mime default "$2" $3
)";

fs::path PathOf(const Text& path) {
  return ToUtf8(path);
}

void MakeFolderOf(const fs::path& file) {
  std::error_code ignored;
  fs::create_directories(file.parent_path(), ignored);
}

/// The user's own arrangement.
bool IsNotToBeWritten(const fs::path& file) {
  std::error_code ignored;
  return fs::exists(file, ignored) && access(file.c_str(), W_OK) != 0;
}

/// A file that was begun and can't be written whole is gone. The next version writes it again.
void CopyFile(const fs::path& from, const fs::path& to) {
  std::error_code ignored;
  if (IsNotToBeWritten(to) || fs::equivalent(from, to, ignored)) return;
  MakeFolderOf(to);
  std::error_code error;
  fs::copy_file(from, to, fs::copy_options::overwrite_existing, error);
  if (!error) {
    fs::permissions(to, fs::perms::owner_write, fs::perm_options::add, ignored);
  } else if (fs::is_regular_file(to, ignored)) {
    fs::remove(to, ignored);
  }
}

/// Each file by itself: one that fails does not keep the others away.
void CopyFiles(const fs::path& from, const fs::path& to) {
  std::error_code unread;
  for (const fs::directory_entry& entry : EntriesBelow(from, unread)) {
    if (!entry.is_regular_file(unread)) continue;
    CopyFile(entry.path(), to / entry.path().lexically_relative(from));
  }
}

}  // namespace

/// What could not be written stays undeclared: the association is a convenience, never a reason to
/// bother the user.
UserDocumentTypes::Declared UserDocumentTypes::WriteFiles(const DocumentType& type) const {
  const fs::path description = PathOf(type.description);
  CopyFile(description, userData_ / "mime" / "packages" / description.filename());
  const fs::path packagedEntry = PathOf(type.entry);
  DesktopEntry entry(packagedEntry);
  if (!entry.Empty()) {
    entry.SetProgram(ToUtf8(type.program));
    const fs::path file = userData_ / "applications" / packagedEntry.filename();
    MakeFolderOf(file);
    if (!IsNotToBeWritten(file)) (void)entry.Save(file);
  }
  CopyFiles(PathOf(type.icons), userData_ / "icons");
  return {userData_, packagedEntry.filename().string(), entry.DocumentTypes()};
}

void UserDocumentTypes::Declare(const DocumentType& type) {
  if (!userData_.empty()) tools_(WriteFiles(type));
}

void StartUpdateTools(const UserDocumentTypes::Declared& declared) {
  StartDetached({"/bin/sh", "-c", kScript, "sh", declared.userData.string(), declared.entry,
                 declared.documentTypes});
}

}  // namespace tessara
