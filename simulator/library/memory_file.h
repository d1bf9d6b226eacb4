// The files of the memory transfers: sections of bytes as text, each with its checksum, and a file
// that comes into its place only when it is whole. docs/simulator.md tells their form.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lorimet::simulator {

struct MemorySection {
  std::string_view name;
  std::vector<std::uint8_t> bytes;
};

// CRC-32 as ISO 3309 and ITU-T V.42 have it.
std::uint32_t Checksum(std::string_view bytes);

std::string MemoryFileText(std::string_view kind, const std::vector<MemorySection>& sections);

// Stands as a temporary file beside its target; gone without Finish.
class PendingFile {
 public:
  PendingFile() = default;
  ~PendingFile() { Drop(); }
  PendingFile(const PendingFile&) = delete;
  PendingFile& operator=(const PendingFile&) = delete;

  // path: in code page 1252. False when it cannot be written; a target that cannot be replaced,
  // such as a folder, shows here too.
  bool Open(std::string_view path);
  // Puts the text in the target's place, over an earlier file.
  bool Finish(const std::string& text);
  void Drop();
  bool IsOpen() const { return !temporary_.empty(); }

 private:
  std::filesystem::path target_;
  std::filesystem::path temporary_;
};

}  // namespace lorimet::simulator
