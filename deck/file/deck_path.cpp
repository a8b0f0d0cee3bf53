#include "deck/file/deck_path.h"

#include <algorithm>

namespace tessara {

namespace {

constexpr TextView kSeparators = u"/\\";

/// "C:", or nothing. A native path can have a folder whose name begins with ":".
Text DriveOf(const Text& path) {
  const bool drive = path.size() > 1 && path[1] == u':' && path[0] != u'/';
  return drive ? path.substr(0, 2) : Text();
}

}  // namespace

Text FileNameOf(const Text& path) {
  return path.substr(path.find_last_of(kSeparators) + 1);
}

Text FolderOf(const Text& path) {
  const std::size_t separator = path.find_last_of(kSeparators);
  return separator == Text::npos ? Text() : path.substr(0, std::max<std::size_t>(separator, 1));
}

Text WithoutDeckEnding(const Text& fileName) {
  const bool ends = fileName.ends_with(kDeckEnding);
  return fileName.substr(0, fileName.size() - (ends ? kDeckEnding.size() : 0));
}

Text DeckNameOf(const Text& path) {
  if (path.find_first_of(kSeparators) == Text::npos) return {};
  const Text fileName = FileNameOf(path);
  const std::size_t point = fileName.find(u'.');
  return point == Text::npos ? Text() : fileName.substr(0, point);
}

Text LongPathOf(const Text& path, FileSystem& files) {
  Text longPath = DriveOf(path);
  std::size_t done = longPath.size();
  for (;;) {
    const std::size_t name = path.find_first_not_of(kSeparators, done);
    if (name == Text::npos) return longPath;
    const std::size_t end = std::min(path.find_first_of(kSeparators, name), path.size());
    const auto entry = files.EntryName(path.substr(0, end));
    if (!entry) return {};
    longPath += path.substr(done, name - done) + *entry;
    done = end;
  }
}

}  // namespace tessara
