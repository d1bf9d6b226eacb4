#include "parameters/memory_word.h"

#include "session/link_library.h"

namespace lorimet {

namespace {

std::int32_t ReadOnce(LinkLibrary& link, const MemoryAddress& address, MemoryWord& word) {
  return link.Trailer_ABS_KWP_ReadMemoryByAddress(address.high, address.middle, address.low,
                                                  &word.first, &word.second);
}

}  // namespace

MemoryWord ReadMemoryWord(LinkLibrary& link, const MemoryAddress& address, int times) {
  MemoryWord word;
  for (int i = 0; i < times; ++i) ReadOnce(link, address, word);
  return word;
}

std::optional<MemoryWord> TryMemoryWord(LinkLibrary& link, const MemoryAddress& address) {
  MemoryWord word;
  if (TryLinkCall([&] { return ReadOnce(link, address, word); }) != 0) return std::nullopt;
  return word;
}

}  // namespace lorimet
