#include "adapters/windows/file_errors.h"

#include <windows.h>

namespace lorimet {

// Not every set of headers has its name.
constexpr unsigned long kDiskQuotaExceeded = 1295;

ErrorNumber ErrorOfCall(unsigned long error) {
  switch (error) {
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
    case ERROR_INVALID_PARAMETER:
      return ErrorNumber::kBadFileNameOrNumber;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case kDiskQuotaExceeded:
    case ERROR_FILE_TOO_LARGE:
      return ErrorNumber::kDiskFull;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
    case ERROR_WRITE_PROTECT:
      return ErrorNumber::kPermissionDenied;
    case ERROR_ACCESS_DENIED:
    case ERROR_DIRECTORY:
      return ErrorNumber::kPathFileAccessError;
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
      return ErrorNumber::kPathNotFound;
    default:
      return ErrorNumber::kDeviceIoError;
  }
}

}  // namespace lorimet
