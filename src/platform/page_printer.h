// The printer port: pages of text lines.
#pragma once

#include <string>

namespace lorimet {

// Each call raises error 482 when the printer fails.
class PagePrinter {
 public:
  virtual ~PagePrinter() = default;
  virtual void PrintLine(const std::string& text) = 0;
  virtual void NewPage() = 0;
  virtual void EndDocument() = 0;
};

}  // namespace lorimet
