#include "deck/file/long_path_of.h"

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
