#include "parameters/memory_word.h"

#include "session/link_library.h"

namespace lorimet {

MemoryWord ReadMemoryWord(LinkLibrary& link, const MemoryAddress& address, int times) {
  MemoryWord word;
  for (int i = 0; i < times; ++i)
    link.Trailer_ABS_KWP_ReadMemoryByAddress(address.high, address.middle, address.low, &word.first,
                                             &word.second);
  return word;
}

}  // namespace lorimet
