#include "base/path_error.h"

#include <cerrno>

namespace tessara {

std::optional<ErrorNumber> CommonError(int systemError) {
  switch (systemError) {
    case EACCES:
    case EPERM:
    case EROFS:
    case EBUSY:
    case ETXTBSY:
      return ErrorNumber::kPermissionDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return ErrorNumber::kDiskFull;
    case EIO:
      return ErrorNumber::kDeviceIo;
    case ENOMEDIUM:
    case ENODEV:
    case ESTALE:
    case ETIMEDOUT:
    case EHOSTDOWN:
    case EHOSTUNREACH:
    case ENOTCONN:
      return ErrorNumber::kDiskNotReady;
    case EMFILE:
    case ENFILE:
      return ErrorNumber::kTooManyFiles;
    default:
      return std::nullopt;
  }
}

ErrorNumber PathError(int systemError) {
  switch (systemError) {
    case ENOENT:
      return ErrorNumber::kFileNotFound;
    case ENOTDIR:
      return ErrorNumber::kPathNotFound;
    default:
      return CommonError(systemError).value_or(ErrorNumber::kPathFileAccess);
  }
}

}  // namespace tessara
