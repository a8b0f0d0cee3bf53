#include "adapters/posix/system_error.h"

#include "base/path_error.h"

namespace tessara {

ErrorNumber TransferError(int systemError) {
  return CommonError(systemError).value_or(ErrorNumber::kDeviceIo);
}

}  // namespace tessara
