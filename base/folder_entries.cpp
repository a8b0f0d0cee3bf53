#include "base/folder_entries.h"

namespace tessara {

namespace fs = std::filesystem;

namespace {

/// The increment of a range-based loop would throw.
template <class Iterator>
FolderEntries Collect(const fs::path& folder, std::error_code& error) {
  FolderEntries entries;
  Iterator entry(folder, error);
  for (; !error && entry != Iterator(); entry.increment(error)) entries.push_back(*entry);
  return entries;
}

}  // namespace

FolderEntries EntriesOf(const fs::path& folder, std::error_code& error) {
  return Collect<fs::directory_iterator>(folder, error);
}

FolderEntries EntriesBelow(const fs::path& folder, std::error_code& error) {
  return Collect<fs::recursive_directory_iterator>(folder, error);
}

}  // namespace tessara
