#include "session/link_library.h"

#include <algorithm>
#include <array>
#include <vector>

#include "support/text.h"

namespace lorimet {
namespace {

constexpr std::uint8_t kDiagnosticSession = 0x83;
constexpr std::uint8_t kParameterAccessRoutine = 0x42;
// Each text buffer that the library is given has at least this size, whatever its length says.
constexpr std::size_t kTextBufferSize = 1024;

}  // namespace

std::string LinkErrorText(LinkLibrary& link, std::int32_t code, std::size_t length) {
  std::vector<char> buffer(std::max(length + 1, kTextBufferSize), '\0');
  std::fill_n(buffer.begin(), length, ' ');
  link.GetErrorText(code, buffer.data(), static_cast<std::int32_t>(length));
  return FromCp1252(UntilNul(std::string_view(buffer.data(), length)));
}

void StartEcuSession(LinkLibrary& link) {
  TryLinkCall([&] { return link.Trailer_ABS_KWP_StartSession(kDiagnosticSession); });
  TryLinkCall([&] { return link.Trailer_ABS_KWP_Password(); });
}

void SetParameterAccess(LinkLibrary& link, std::uint8_t flag) {
  std::array<std::uint8_t, 4> data = {0, 0, flag, 0};
  TryLinkCall([&] {
    return link.Trailer_ABS_KWP_StartRoutineByLocId(
        kParameterAccessRoutine, static_cast<std::uint8_t>(data.size()), data.data());
  });
}

}  // namespace lorimet
