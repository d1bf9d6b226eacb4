#include "session/loaded_link_library.h"

#include <algorithm>
#include <bit>

#include "support/text.h"

namespace lorimet {

bool LoadedLinkLibrary::Load() {
  if (library_ != nullptr) return true;
  const std::string path = loader_.LinkLibraryPath();
  std::string error;
  std::unique_ptr<SharedLibrary> library = loader_.Load(path, error);
  if (library == nullptr) {
    failure_ = "The link library " + path + " cannot be loaded: " + error;
    return false;
  }
  Table table;
  std::string missing;
#define LORIMET32_RESOLVE(name, parameters, arguments)                      \
  table.name = std::bit_cast<decltype(table.name)>(library->Symbol(#name)); \
  if (table.name == nullptr) missing += (missing.empty() ? "" : ", ") + std::string(#name);
  LORIMET32_OPERATIONS(LORIMET32_RESOLVE)
#undef LORIMET32_RESOLVE
  if (!missing.empty()) {
    failure_ = "The link library " + path + " lacks the operations " + missing;
    return false;
  }
  table_ = table;
  library_ = std::move(library);
  library_->Keep();
  failure_.clear();
  return true;
}

std::int32_t LoadedLinkLibrary::Connect(char* protocol, std::uint32_t hWnd, char* vendor,
                                        std::int32_t deviceId, std::int32_t family,
                                        std::uint8_t* before2, std::uint8_t* before1,
                                        void* linkStatus, void* ecuData, std::uint8_t* after1,
                                        std::uint8_t* after2, std::uint8_t* after3,
                                        std::uint32_t* afterWord) {
  if (!Load()) return kLibraryMissing;
  may_still_run_ = true;
  return table_.Connect(protocol, hWnd, vendor, deviceId, family, before2, before1, linkStatus,
                        ecuData, after1, after2, after3, afterWord);
}

std::int32_t LoadedLinkLibrary::GetErrorText(std::int32_t code, char* buffer, std::int32_t length) {
  if (library_ != nullptr) return table_.GetErrorText(code, buffer, length);
  const std::string text = ToCp1252(failure_);
  std::copy_n(text.data(), std::min(text.size(), static_cast<std::size_t>(length)), buffer);
  return 0;
}

std::int32_t LoadedLinkLibrary::Disconnect() {
  if (library_ == nullptr) return -1;
  const std::int32_t result = table_.Disconnect();
  if (result == 0) may_still_run_ = false;
  return result;
}

#define LORIMET32_PASS_ON(name, parameters, arguments)                     \
  std::int32_t LoadedLinkLibrary::name parameters {                        \
    return library_ == nullptr ? std::int32_t{-1} : table_.name arguments; \
  }
LORIMET32_SERVICE_OPERATIONS(LORIMET32_PASS_ON)
#undef LORIMET32_PASS_ON

}  // namespace lorimet
