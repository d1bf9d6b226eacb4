#include "simulator/trailer/parameter_store.h"

#include <algorithm>

namespace lorimet::simulator {

const BlockFacts* FindBlock(std::uint8_t id) {
  for (const BlockFacts& block : kBlocks)
    if (block.id == id) return &block;
  return nullptr;
}

const BlockFacts* FindBlock(std::string_view name) {
  for (const BlockFacts& block : kBlocks)
    if (block.name == name) return &block;
  return nullptr;
}

ParameterStore::ParameterStore() {
  for (const BlockFacts& facts : kBlocks) {
    Block& block = blocks_[facts.id];
    block.bytes.assign(static_cast<std::size_t>(facts.size) + 1, 0);
    block.bytes[0] = facts.id;
  }
}

std::uint8_t ParameterStore::Byte(std::uint8_t id, int index) const {
  const auto at = blocks_.find(id);
  if (at == blocks_.end() || index < 0 || index >= static_cast<int>(at->second.bytes.size()))
    return 0;
  return at->second.bytes[static_cast<std::size_t>(index)];
}

void ParameterStore::SetByte(std::uint8_t id, int index, std::uint8_t value) {
  const auto at = blocks_.find(id);
  if (at == blocks_.end() || index < 1 || index >= static_cast<int>(at->second.bytes.size()))
    return;
  at->second.bytes[static_cast<std::size_t>(index)] = value;
  ++revision_;
}

void ParameterStore::SetText(std::uint8_t id, int index, std::string_view text, int width) {
  for (int i = 0; i < width; ++i) {
    const auto at = static_cast<std::size_t>(i);
    SetByte(id, index + i, at < text.size() ? static_cast<std::uint8_t>(text[at]) : ' ');
  }
}

std::optional<std::vector<std::uint8_t>> ParameterStore::Read(std::uint8_t id) const {
  const auto at = blocks_.find(id);
  if (at == blocks_.end()) return std::nullopt;
  return at->second.bytes;
}

bool ParameterStore::Write(std::uint8_t id, std::span<const std::uint8_t> data) {
  const auto at = blocks_.find(id);
  if (at == blocks_.end() || data.empty() || data.size() >= at->second.bytes.size()) return false;
  std::copy(data.begin(), data.end(), at->second.bytes.begin() + 1);
  at->second.checksum_right = false;
  ++revision_;
  return true;
}

bool ParameterStore::ChecksumRight(std::uint8_t id) const {
  const auto at = blocks_.find(id);
  return at != blocks_.end() && at->second.checksum_right;
}

void ParameterStore::SpoilChecksum(std::uint8_t id) {
  const auto at = blocks_.find(id);
  if (at == blocks_.end()) return;
  at->second.checksum_right = false;
  ++revision_;
}

void ParameterStore::RebuildChecksums() {
  for (auto& [id, block] : blocks_) block.checksum_right = true;
  ++revision_;
}

bool ParameterStore::Restore(std::uint8_t id, std::span<const std::uint8_t> bytes,
                             bool checksum_right) {
  const auto at = blocks_.find(id);
  if (at == blocks_.end() || bytes.size() != at->second.bytes.size()) return false;
  at->second.bytes.assign(bytes.begin(), bytes.end());
  at->second.bytes[0] = id;
  at->second.checksum_right = checksum_right;
  ++revision_;
  return true;
}

}  // namespace lorimet::simulator
