// The one exception of the program: a numbered run-time error with its customary words.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace lorimet {

// The customary numbers of run-time errors, as the forms runtime that these screens were conceived
// for counts them.
enum class ErrorNumber : std::int32_t {
  kOverflow = 6,
  kSubscriptOutOfRange = 9,
  kTypeMismatch = 13,
  kBadFileNameOrNumber = 52,
  kFileNotFound = 53,
  kDeviceIoError = 57,
  kDiskFull = 61,
  kPermissionDenied = 70,
  kPathFileAccessError = 75,
  kPathNotFound = 76,
  kPrinterError = 482,
};

// The general object error that a module procedure raises after it has shown an error; it ends the
// process, and since the user has read the words already no second box is shown for it.
constexpr std::int32_t kObjectError = -2147221504;

// Nothing else is thrown. what() is the description.
class RuntimeError : public std::runtime_error {
 public:
  // Takes the customary words of the number.
  explicit RuntimeError(ErrorNumber number);
  RuntimeError(std::int32_t number, const std::string& description);

  std::int32_t Number() const { return number_; }
  std::string Description() const { return what(); }

 private:
  std::int32_t number_;
};

// The customary words of an error number; "Application-defined or object-defined error" for a
// number that has none.
std::string ErrorDescription(std::int32_t number);

}  // namespace lorimet
