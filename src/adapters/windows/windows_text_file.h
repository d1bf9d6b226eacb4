// Text files by the system's calls.
#pragma once

#include <memory>
#include <string>

#include "platform/text_file.h"

namespace lorimet {

class WindowsTextFiles : public TextFiles {
 public:
  std::unique_ptr<TextFile> OpenForOutput(const std::string& path) override;
  std::string ReadWhole(const std::string& path) override;
};

}  // namespace lorimet
