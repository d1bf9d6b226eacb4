#include "session/link_library.h"

#include <array>

#include "session/ecu_routines.h"
#include "session/library_text.h"

namespace lorimet {
namespace {

constexpr std::uint8_t kDiagnosticSession = 0x83;

}  // namespace

std::string LinkErrorText(LinkLibrary& link, std::int32_t code, std::size_t length) {
  LibraryText buffer = LibraryText::Blanks(length);
  link.GetErrorText(code, buffer.Data(), static_cast<std::int32_t>(length));
  return buffer.Text(length);
}

void StartEcuSession(LinkLibrary& link) {
  TryLinkCall([&] { return link.Trailer_ABS_KWP_StartSession(kDiagnosticSession); });
  TryLinkCall([&] { return link.Trailer_ABS_KWP_Password(); });
}

void SetParameterAccess(LinkLibrary& link, std::uint8_t flag) {
  std::array<std::uint8_t, 4> data = {0, 0, flag, 0};
  TryLinkCall([&] {
    return link.Trailer_ABS_KWP_StartRoutineByLocId(
        kParameterAccess, static_cast<std::uint8_t>(data.size()), data.data());
  });
}

}  // namespace lorimet
