#include "posix/system_failure.h"

#include <cerrno>

#include "model/failure.h"

namespace zeb {

int FailureNumber(int error) noexcept {
  switch (error) {
    case ENOENT:
      return failure::kFileNotFound;
    case ENOTDIR:
      return failure::kPathNotFound;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return failure::kDiskFull;
    case EBUSY:
    case ETXTBSY:
    case EAGAIN:
      return failure::kPermissionDenied;
    case EMFILE:
    case ENFILE:
      return failure::kTooManyFiles;
    case EIO:
      return failure::kDeviceError;
    case ENAMETOOLONG:
    case EINVAL:
    case ELOOP:
      return failure::kBadFileName;
    case EEXIST:
    case ENOTEMPTY:
      return failure::kFileAlreadyExists;
    case ESTALE:
    case ENOTCONN:
    case ENOMEDIUM:
      return failure::kDiskNotReady;
    default:
      return failure::kPathFileAccess;
  }
}

void CheckError(int error) {
  if (error != 0) throw RuntimeFailure(FailureNumber(error));
}

void CheckCall(long result) {
  if (result < 0) CheckError(errno);
}

}  // namespace zeb
