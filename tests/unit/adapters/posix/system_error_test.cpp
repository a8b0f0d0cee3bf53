#include "adapters/posix/system_error.h"

#include <cerrno>
#include <doctest/doctest.h>

#include "base/path_error.h"

namespace tessara::test {

TEST_CASE("the system's error codes become run-time errors") {
  struct Case {
    int systemError;
    int onPath;
    int onTransfer;
  };
  const Case cases[] = {
      {ENOENT, 53, 57},    {ENOTDIR, 76, 57}, {EACCES, 70, 70},       {EPERM, 70, 70},
      {EROFS, 70, 70},     {ETXTBSY, 70, 70}, {EBUSY, 70, 70},        {EISDIR, 75, 57},
      {ELOOP, 75, 57},     {ENXIO, 75, 57},   {ENAMETOOLONG, 75, 57}, {EINVAL, 75, 57},
      {ENOSPC, 61, 61},    {EDQUOT, 61, 61},  {EFBIG, 61, 61},        {EIO, 57, 57},
      {ENOMEDIUM, 71, 71}, {ESTALE, 71, 71},  {ETIMEDOUT, 71, 71},    {EMFILE, 67, 67},
      {ENFILE, 67, 67},
  };
  for (const Case& c : cases) {
    CAPTURE(c.systemError);
    CHECK(static_cast<int>(PathError(c.systemError)) == c.onPath);
    CHECK(static_cast<int>(TransferError(c.systemError)) == c.onTransfer);
  }
}

}  // namespace tessara::test
