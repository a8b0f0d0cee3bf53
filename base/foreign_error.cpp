#include "base/foreign_error.h"

#include <cerrno>
#include <new>
#include <optional>
#include <stdexcept>
#include <system_error>

namespace tessara {

namespace {

template <class E>
bool Is(const std::exception& foreign) {
  return dynamic_cast<const E*>(&foreign) != nullptr;
}

/// What a code means wherever it happens; none where that hangs on what was tried.
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

ErrorNumber NumberOf(const std::error_code& code) {
  if (code == std::errc::not_enough_memory) return ErrorNumber::kOutOfMemory;
  // Streams have codes of their own, which tell no cause.
  const std::error_condition ofSystem = code.default_error_condition();
  const bool told = ofSystem.category() == std::generic_category();
  return told ? PathError(ofSystem.value()) : ErrorNumber::kDeviceIo;
}

ErrorNumber NumberOf(const std::exception& foreign) {
  const auto* ofSystem = dynamic_cast<const std::system_error*>(&foreign);
  if (ofSystem != nullptr) return NumberOf(ofSystem->code());
  // A text or a list beyond the longest one there can be.
  const bool tooLong = Is<std::length_error>(foreign);
  if (tooLong || Is<std::bad_alloc>(foreign)) return ErrorNumber::kOutOfMemory;
  if (Is<std::out_of_range>(foreign)) return ErrorNumber::kSubscriptOutOfRange;
  return ErrorNumber::kInternalError;
}

}  // namespace

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

ErrorNumber TransferError(int systemError) {
  return CommonError(systemError).value_or(ErrorNumber::kDeviceIo);
}

RunTimeError RunTimeErrorOf(const std::exception& foreign) {
  return RunTimeError(NumberOf(foreign));
}

}  // namespace tessara
