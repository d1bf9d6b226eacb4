// The parameter blocks that the ECU keeps, by local identifier, with the state of their checksums.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace lorimet::simulator {

constexpr std::uint8_t kEol1 = 0x03;
constexpr std::uint8_t kEol2 = 0x3D;
constexpr std::uint8_t kEol3 = 0x27;
constexpr std::uint8_t kEol4 = 0x17;
constexpr std::uint8_t kEol5 = 0x28;
constexpr std::uint8_t kEol6 = 0x05;
constexpr std::uint8_t kEol7 = 0x06;
constexpr std::uint8_t kEol9 = 0x42;
constexpr std::uint8_t kFcf1 = 0x37;
constexpr std::uint8_t kFcf3 = 0x39;

struct BlockFacts {
  std::uint8_t id;
  std::string_view name;
  int size;           // data bytes; the indices are 1 to size
  int checksum_byte;  // the complaint about a wrong checksum, in the error bytes
  int checksum_bit;
};

constexpr std::array<BlockFacts, 16> kBlocks = {{
    {kEol1, "EOL1", 80, 17, 0},
    {kEol2, "EOL2", 10, 3, 6},
    {kEol3, "EOL3", 40, 17, 2},
    {kEol4, "EOL4", 20, 3, 3},
    {kEol5, "EOL5", 110, 3, 5},
    {kEol6, "EOL6", 10, 4, 0},
    {kEol7, "EOL7", 122, 17, 1},
    {kEol9, "EOL9", 20, 3, 2},
    {0x37, "FCF1", 110, 17, 2},
    {0x38, "FCF2", 110, 17, 2},
    {0x39, "FCF3", 110, 17, 2},
    {0x3A, "FCF4", 110, 17, 2},
    {0x3B, "FCF5", 110, 17, 2},
    {0x3C, "FCF6", 110, 17, 2},
    {0x44, "FCF7", 110, 17, 2},
    {0x45, "FCF8", 110, 17, 2},
}};

// By local identifier, or by name; null when there is no such block.
const BlockFacts* FindBlock(std::uint8_t id);
const BlockFacts* FindBlock(std::string_view name);

class ParameterStore {
 public:
  ParameterStore();

  // The byte at an index as the blocks are counted: index 0 is the local identifier's echo, data
  // begins at 1. 0 outside of the block.
  std::uint8_t Byte(std::uint8_t id, int index) const;
  // Sets one byte and leaves the checksum right, as a maker's default would be; nothing happens
  // outside of the block.
  void SetByte(std::uint8_t id, int index, std::uint8_t value);
  void SetText(std::uint8_t id, int index, std::string_view text, int width);

  // The whole block with its echo at index 0; nothing for an unknown one.
  std::optional<std::vector<std::uint8_t>> Read(std::uint8_t id) const;
  // Writes data from index 1 on, after which the checksum is wrong; false for an unknown block and
  // for more data, or less than one byte, than it takes.
  bool Write(std::uint8_t id, std::span<const std::uint8_t> data);

  bool ChecksumRight(std::uint8_t id) const;
  void SpoilChecksum(std::uint8_t id);
  void RebuildChecksums();
  // Takes over a whole block of an earlier life, echo included; false when it does not fit.
  bool Restore(std::uint8_t id, std::span<const std::uint8_t> bytes, bool checksum_right);

  std::uint64_t Revision() const { return revision_; }

 private:
  struct Block {
    std::vector<std::uint8_t> bytes;
    bool checksum_right = true;
  };

  std::map<std::uint8_t, Block> blocks_;
  std::uint64_t revision_ = 0;
};

}  // namespace lorimet::simulator
