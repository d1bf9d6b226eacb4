// The data log: a text file with a head, and one line for each message on the bus.
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "simulator/trailer/bus.h"

namespace lorimet::simulator {

class DataLog {
 public:
  // Replaces the file by one with this head. False when it cannot be written: the old one stands.
  // now: from where the log counts its time, in bits.
  bool Start(const std::filesystem::path& path, std::string_view head, std::int64_t now);
  bool Running() const { return file_ != nullptr; }
  void Add(const BusMessage& message);
  // Writes the lines that wait, whole. What the disk does not take waits on, up to a megabyte.
  bool Write();
  void Stop();

 private:
  static constexpr std::size_t kMostUnwritten = 1 << 20;

  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };

  std::unique_ptr<std::FILE, Closer> file_;
  std::filesystem::path path_;
  std::uintmax_t size_ = 0;
  std::string unwritten_;
  std::int64_t started_ = 0;
};

}  // namespace lorimet::simulator
