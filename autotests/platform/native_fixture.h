// What the tests of the system's own adapters share: a set environment and what files hold.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <string>

#include "autotests/common/scratch_folder.h"

namespace lorimet {

// Sets environment variables and puts the old ones back when the test ends.
class ScratchEnvironment {
 public:
  ScratchEnvironment() = default;
  ~ScratchEnvironment() {
    for (const auto& [name, value] : old_) {
      Put(name, value);
    }
  }
  ScratchEnvironment(const ScratchEnvironment&) = delete;
  ScratchEnvironment& operator=(const ScratchEnvironment&) = delete;

  void Set(const std::string& name, const std::optional<std::string>& value) {
    const char* standing = std::getenv(name.c_str());
    old_.try_emplace(name, standing != nullptr ? std::optional<std::string>(standing)
                                               : std::optional<std::string>());
    Put(name, value);
  }

 private:
  static void Put(const std::string& name, const std::optional<std::string>& value) {
    if (value) {
      setenv(name.c_str(), value->c_str(), 1);
    } else {
      unsetenv(name.c_str());
    }
  }

  std::map<std::string, std::optional<std::string>> old_;
};

inline void WriteFile(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

inline std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace lorimet
