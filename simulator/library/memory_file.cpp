#include "simulator/library/memory_file.h"

#include <cstdio>
#include <fstream>
#include <system_error>

#include "simulator/library/files.h"

namespace lorimet::simulator {
namespace {

constexpr std::size_t kBytesPerLine = 32;

std::string Hex32(std::uint32_t value) {
  char digits[9];
  std::snprintf(digits, sizeof digits, "%08X", static_cast<unsigned>(value));
  return digits;
}

std::string SectionText(const MemorySection& section) {
  const std::string_view bytes(reinterpret_cast<const char*>(section.bytes.data()),
                               section.bytes.size());
  std::string text = "section " + std::string(section.name) + " " + std::to_string(bytes.size()) +
                     " " + Hex32(Checksum(bytes)) + "\n";
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    char digits[3];
    std::snprintf(digits, sizeof digits, "%02X", static_cast<unsigned>(section.bytes[i]));
    const bool ends_line = (i + 1) % kBytesPerLine == 0 || i + 1 == bytes.size();
    text += digits;
    text += ends_line ? '\n' : ' ';
  }
  return text;
}

}  // namespace

std::uint32_t Checksum(std::string_view bytes) {
  std::uint32_t sum = 0xFFFFFFFFu;
  for (const char byte : bytes) {
    sum ^= static_cast<unsigned char>(byte);
    for (int bit = 0; bit < 8; ++bit) sum = (sum & 1u) != 0 ? sum >> 1 ^ 0xEDB88320u : sum >> 1;
  }
  return ~sum;
}

std::string MemoryFileText(std::string_view kind, const std::vector<MemorySection>& sections) {
  std::string text = "lorimet32-memory 1 " + std::string(kind) + "\n";
  for (const MemorySection& section : sections) text += SectionText(section);
  return text + "end " + Hex32(Checksum(text)) + "\n";
}

bool PendingFile::Open(std::string_view path) {
  Drop();
  std::error_code error;
  target_ = PathOf(path);
  if (path.empty() || std::filesystem::is_directory(target_, error)) return false;
  std::filesystem::path temporary = target_;
  temporary += ".part";
  if (!std::ofstream(temporary, std::ios::binary | std::ios::trunc)) return false;
  temporary_ = temporary;
  return true;
}

bool PendingFile::Finish(const std::string& text) {
  if (!IsOpen()) return false;
  std::ofstream file(temporary_, std::ios::binary | std::ios::trunc);
  file << text;
  file.close();
  std::error_code error;
  if (file) std::filesystem::rename(temporary_, target_, error);
  const bool done = file && !error;
  if (done)
    temporary_.clear();
  else
    Drop();
  return done;
}

void PendingFile::Drop() {
  std::error_code error;
  if (IsOpen()) std::filesystem::remove(temporary_, error);
  temporary_.clear();
}

}  // namespace lorimet::simulator
