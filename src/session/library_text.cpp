#include "session/library_text.h"

#include <algorithm>
#include <string_view>

#include "support/text.h"

namespace lorimet {

LibraryText::LibraryText(const std::string& text) {
  const std::string encoded = ToCp1252(text);
  bytes_.assign(std::max(encoded.size() + 1, kSize), '\0');
  std::ranges::copy(encoded, bytes_.begin());
}

LibraryText LibraryText::Blanks(std::size_t length) {
  return LibraryText(std::string(length, ' '));
}

std::string LibraryText::Text(std::size_t length) const {
  return FromCp1252(UntilNul(std::string_view(bytes_.data(), std::min(length, bytes_.size()))));
}

}  // namespace lorimet
