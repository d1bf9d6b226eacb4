#include "platform/runtime_error.h"

namespace lorimet {

std::string ErrorDescription(std::int32_t number) {
  switch (static_cast<ErrorNumber>(number)) {
    case ErrorNumber::kOverflow:
      return "Overflow";
    case ErrorNumber::kSubscriptOutOfRange:
      return "Subscript out of range";
    case ErrorNumber::kTypeMismatch:
      return "Type mismatch";
    case ErrorNumber::kBadFileNameOrNumber:
      return "Bad file name or number";
    case ErrorNumber::kFileNotFound:
      return "File not found";
    case ErrorNumber::kDeviceIoError:
      return "Device I/O error";
    case ErrorNumber::kDiskFull:
      return "Disk full";
    case ErrorNumber::kPermissionDenied:
      return "Permission denied";
    case ErrorNumber::kPathFileAccessError:
      return "Path/File access error";
    case ErrorNumber::kPathNotFound:
      return "Path not found";
    case ErrorNumber::kPrinterError:
      return "Printer error";
  }
  return "Application-defined or object-defined error";
}

RuntimeError::RuntimeError(ErrorNumber number)
    : RuntimeError(static_cast<std::int32_t>(number),
                   ErrorDescription(static_cast<std::int32_t>(number))) {}

RuntimeError::RuntimeError(std::int32_t number, const std::string& description)
    : std::runtime_error(description), number_(number) {}

}  // namespace lorimet
