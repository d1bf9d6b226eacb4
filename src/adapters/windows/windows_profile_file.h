// The profile file by the platform's own calls.
#pragma once

#include "platform/profile_file.h"

#include <cstddef>
#include <string>

namespace lorimet {

// The platform writes at once, so there is never anything to flush, and reads a value of 65,536 or
// more characters modulo 65,536.
class WindowsProfileFile : public ProfileFile {
 public:
  std::string GetString(const std::string& section, const std::string& key,
                        const std::string& fallback, std::size_t size,
                        const std::string& path) override;
  bool WriteString(const std::string& section, const std::string& key, const std::string& value,
                   const std::string& path) override;
  bool Flush() override { return true; }
  ErrorNumber LastError() const override { return last_error_; }

 private:
  ErrorNumber last_error_ = ErrorNumber::kDeviceIoError;
};

}  // namespace lorimet
