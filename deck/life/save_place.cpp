#include "deck/life/save_place.h"

#include "base/run_time_error.h"

namespace tessara {

namespace {

TextView Reason(ErrorNumber error) {
  switch (error) {
    case ErrorNumber::kPermissionDenied:
      return u"you can't write there.";
    case ErrorNumber::kPathNotFound:
      return u"there is no such folder.";
    case ErrorNumber::kDiskFull:
      return u"the disk is full.";
    case ErrorNumber::kPathFileAccess:
      return u"a file can't have this name.";
    default:
      return u"the disk doesn't take it.";
  }
}

}  // namespace

Text SaveRefusal(const Text& path, FileSystem& files) {
  try {
    files.TrySaving(path);
    return {};
  } catch (const RunTimeError& error) {
    // The path last: it can be longer than what a box shows.
    return u"The deck can't be saved: " + Text(Reason(error.Number())) +
           u" Choose another place or name." + Text(kLineBreak) + Text(kLineBreak) + path;
  }
}

}  // namespace tessara
