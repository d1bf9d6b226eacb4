// The link library as the program calls it, and the calls that several screens share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "session/lorimet32.h"

namespace lorimet {

// Every operation of the library under its own name; see lorimet32.h for each. Called on the
// user-interface thread.
class LinkLibrary {
 public:
  virtual ~LinkLibrary() = default;
#define LORIMET32_METHOD(name, parameters, arguments) virtual std::int32_t name parameters = 0;
  LORIMET32_OPERATIONS(LORIMET32_METHOD)
#undef LORIMET32_METHOD
};

// How often a link call in a user action is tried in all, without a pause.
constexpr int kLinkTries = 4;

// Calls until the result is 0, at most four times; gives the last result.
template <typename Call>
std::int32_t TryLinkCall(const Call& call) {
  std::int32_t result = 0;
  for (int i = 0; i < kLinkTries; ++i) {
    result = call();
    if (result == 0) break;
  }
  return result;
}

// The library's text for an error code, in a buffer of `length` blanks. Cut at the buffer's length
// or the first NUL; trailing blanks stay. UTF-8.
std::string LinkErrorText(LinkLibrary& link, std::int32_t code, std::size_t length);

// Opens the diagnostic session and sends the password, each up to four tries; the second whatever
// the first achieved. No failure is reported.
void StartEcuSession(LinkLibrary& link);

// 1 before long work with the ECU's parameters, 0 after it; up to four tries, the result dropped.
void SetParameterAccess(LinkLibrary& link, std::uint8_t flag);

// The most bytes that a read by local id may answer.
constexpr std::size_t kReadBufferSize = 512;

}  // namespace lorimet
