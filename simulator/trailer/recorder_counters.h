// The counters of the operating data recorder.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "simulator/trailer/memory_words.h"

namespace lorimet::simulator {

enum class RecorderCounter { kLevel2, kLevel1, kStopLight, kAbs };

struct RecorderCounterFacts {
  RecorderCounter counter;
  std::string_view name;
  std::uint32_t address;  // of the memory word that tells it
  std::uint8_t selector;  // that empties it
};

constexpr std::array<RecorderCounterFacts, 4> kRecorderCounters = {{
    {RecorderCounter::kLevel2, "level2", Address(0x02, 0x20, 0x2A), 7},
    {RecorderCounter::kLevel1, "level1", Address(0x02, 0x20, 0x2C), 7},
    {RecorderCounter::kStopLight, "stop_light", Address(0x02, 0x20, 0x30), 3},
    {RecorderCounter::kAbs, "abs", Address(0x02, 0x3A, 0x07), 6},
}};

class RecorderCounters {
 public:
  static constexpr int kMost = 32767;

  void Count(RecorderCounter counter) {
    int& value = values_[static_cast<std::size_t>(counter)];
    if (value >= kMost) return;
    ++value;
    ++revision_;
  }
  void Set(RecorderCounter counter, int value) {
    values_[static_cast<std::size_t>(counter)] = value;
    ++revision_;
  }
  int Value(RecorderCounter counter) const { return values_[static_cast<std::size_t>(counter)]; }
  std::uint64_t Revision() const { return revision_; }

 private:
  std::array<int, 4> values_ = {};
  std::uint64_t revision_ = 0;
};

}  // namespace lorimet::simulator
