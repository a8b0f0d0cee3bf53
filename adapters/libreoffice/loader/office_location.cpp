#include "adapters/libreoffice/loader/office_location.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string_view>
#include <system_error>
#include <vector>

#include "base/folder_entries.h"
#include "base/run_time_error.h"
#include "base/utf8.h"

namespace tessara {

namespace {

namespace fs = std::filesystem;

/// What begins a compound file, and the name of the stream in it that holds a spreadsheet.
constexpr std::string_view kCompoundFile = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
constexpr std::string_view kWorkbookStream("W\0o\0r\0k\0b\0o\0o\0k\0", 16);

/// The program and the part of it that is the spreadsheet.
bool HoldsServer(const fs::path& folder) {
  std::error_code none;
  return fs::exists(folder / "soffice.bin", none) && fs::exists(folder / "libsclo.so", none);
}

/// The folder that a "soffice" on the search path leads to.
std::vector<fs::path> FoldersOnSearchPath() {
  std::vector<fs::path> folders;
  const char* searchPath = std::getenv("PATH");
  std::istringstream entries(searchPath == nullptr ? "" : searchPath);
  for (std::string entry; std::getline(entries, entry, ':');) {
    std::error_code error;
    const fs::path program = fs::canonical(fs::path(entry) / "soffice", error);
    if (!error) folders.push_back(program.parent_path());
  }
  return folders;
}

std::vector<fs::path> UsualFolders() {
  std::vector<fs::path> folders{"/usr/lib/libreoffice/program", "/usr/lib64/libreoffice/program"};
  std::error_code unread;
  for (const fs::directory_entry& entry : EntriesOf("/opt", unread)) {
    folders.push_back(entry.path() / "program");
  }
  return folders;
}

std::string ReadAll(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace

std::string OfficeProgramFolder() {
  // The usual ones are looked at where the search path leads to none.
  for (const auto& folders : {FoldersOnSearchPath, UsualFolders}) {
    for (const fs::path& folder : folders()) {
      if (HoldsServer(folder)) return folder.string();
    }
  }
  return {};
}

void CheckTemplate(const Text& path) {
  const std::string name = ToUtf8(path);
  std::error_code none;
  if (!fs::exists(name, none)) throw RunTimeError(ErrorNumber::kAutomationClassNotFound);
  const bool regular = fs::is_regular_file(name, none);
  const std::string bytes = regular ? ReadAll(name) : std::string();
  const bool spreadsheet =
      bytes.starts_with(kCompoundFile) && bytes.find(kWorkbookStream) != std::string::npos;
  if (!spreadsheet) throw RunTimeError(ErrorNumber::kAutomationError);
}

}  // namespace tessara
