#include "simulator/trailer/request_log.h"

namespace lorimet::simulator {
namespace {

std::string Digits(std::uint8_t byte) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  return {kDigits[byte >> 4], kDigits[byte & 15]};
}

}  // namespace

std::string HexByte(std::uint8_t byte) { return "0x" + Digits(byte); }

std::string HexBytes(std::span<const std::uint8_t> bytes) {
  std::string text = "[";
  for (const std::uint8_t byte : bytes) text += (text.size() > 1 ? " " : "") + Digits(byte);
  return text + "]";
}

}  // namespace lorimet::simulator
