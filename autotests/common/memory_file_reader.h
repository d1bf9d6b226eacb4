// Reads the files of the memory transfers back, by their description alone.
#pragma once

#include <cstdint>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace lorimet::testing_support {

struct MemoryFile {
  std::string kind;
  std::vector<std::string> names;  // of its sections, in order
  std::map<std::string, std::vector<std::uint8_t>> sections;

  // A number of so many bytes, the high one first.
  std::uint64_t Number(const std::string& section, std::size_t at, std::size_t count) const {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < count; ++i) value = value * 256 + sections.at(section).at(at + i);
    return value;
  }
  std::string Text(const std::string& section, std::size_t at, std::size_t count) const {
    std::string text;
    for (std::size_t i = 0; i < count && sections.at(section).at(at + i) != 0; ++i)
      text += static_cast<char>(sections.at(section)[at + i]);
    return text;
  }
};

// CRC-32, by remainders of half bytes.
inline std::string Crc32(const std::string& bytes) {
  std::uint32_t table[16];
  for (std::uint32_t i = 0; i < 16; ++i) {
    table[i] = i;
    for (int bit = 0; bit < 4; ++bit)
      table[i] = table[i] % 2 == 0 ? table[i] / 2 : table[i] / 2 ^ 0xEDB88320u;
  }
  std::uint32_t sum = ~std::uint32_t{0};
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    sum = sum / 16 ^ table[(sum ^ byte) % 16];
    sum = sum / 16 ^ table[(sum ^ byte / 16u) % 16];
  }
  std::ostringstream text;
  text << std::hex << std::uppercase;
  text.width(8);
  text.fill('0');
  text << ~sum;
  return text.str();
}

// Nothing for a file that is missing or not whole, or whose checksums are wrong.
inline std::optional<MemoryFile> ReadMemoryFile(const std::string& path) {
  std::ifstream stream(path, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(stream), {}};
  const std::size_t end = text.rfind("end ");
  if (!stream || end == std::string::npos) return std::nullopt;
  if (text.substr(end) != "end " + Crc32(text.substr(0, end)) + "\n") return std::nullopt;
  std::istringstream words(text.substr(0, end));
  MemoryFile file;
  std::string word, name, sum;
  int version = 0;
  std::size_t length = 0;
  words >> word >> version >> file.kind;
  if (word != "lorimet32-memory" || version != 1) return std::nullopt;
  while (words >> word >> name >> length >> sum) {
    if (word != "section") return std::nullopt;
    std::string bytes;
    for (std::size_t i = 0; i < length && words >> word; ++i)
      bytes += static_cast<char>(std::stoi(word, nullptr, 16));
    if (bytes.size() != length || Crc32(bytes) != sum) return std::nullopt;
    file.names.push_back(name);
    file.sections[name].assign(bytes.begin(), bytes.end());
  }
  return file;
}

}  // namespace lorimet::testing_support
