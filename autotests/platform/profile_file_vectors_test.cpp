// Runs every call of profile_file_vectors.txt against this platform's profile file.
#if defined(_WIN32)
#include "adapters/windows/windows_profile_file.h"
#else
#include "adapters/posix/posix_profile_file.h"
#include "autotests/places.h"
#endif

#include <gtest/gtest.h>

#include <cctype>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace lorimet {
namespace {

#if defined(_WIN32)
using NativeProfileFile = WindowsProfileFile;
constexpr bool kPlatformsOwn = true;
#else
using NativeProfileFile = PosixProfileFile;
constexpr bool kPlatformsOwn = false;
#endif

using Bytes = std::optional<std::string>;

struct Vector {
  int line = 0;
  bool write = false;
  Bytes in;
  std::string section;
  std::string key;
  std::string text;    // the default of a read, the value of a write
  std::string option;  // the size of a read, what a write answers
  std::string result;
  Bytes out;
  std::string remark;
};

std::string Utf16(unsigned unit) {
  return {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
}

// A cell with its escapes resolved.
std::string Unescape(const std::string& cell, bool utf16) {
  std::string result = utf16 ? "\xFF\xFE" : "";
  const auto put = [&](unsigned unit, std::size_t count) {
    for (; count > 0; --count) result += utf16 ? Utf16(unit) : std::string(1, char(unit));
  };
  for (std::size_t i = 0; i < cell.size(); ++i) {
    const char c = cell[i];
    if (c == '{' && i + 1 < cell.size() && std::isdigit(static_cast<unsigned char>(cell[i + 1]))) {
      std::size_t digits = 0;
      const std::size_t count = std::stoul(cell.substr(i + 1), &digits);
      put(static_cast<unsigned char>(cell[i + digits + 2]), count);
      i += digits + 3;
    } else if (c != '\\') {
      put(static_cast<unsigned char>(c), 1);
    } else {
      const char escape = cell[++i];
      const std::size_t hex = escape == 'x' ? 2 : escape == 'u' ? 4 : 0;
      const std::string plain = "rntv0\\";
      if (hex > 0)
        put(static_cast<unsigned>(std::stoul(cell.substr(i + 1, hex), nullptr, 16)), 1);
      else
        put(static_cast<unsigned char>("\r\n\t\v\0\\"[plain.find(escape)]), 1);
      i += hex;
    }
  }
  return result;
}

Bytes FileCell(const std::string& cell) {
  if (cell == "(none)") return {};
  const std::string utf16 = "utf16:";
  return cell.starts_with(utf16) ? Unescape(cell.substr(utf16.size()), true)
                                 : Unescape(cell, false);
}

std::vector<Vector> ReadVectors() {
  std::ifstream file(InSource("autotests/platform/profile_file_vectors.txt"));
  std::vector<Vector> vectors;
  std::string text;
  for (int line = 1; std::getline(file, text); ++line) {
    if (text.empty() || text.front() == '#') continue;
    std::vector<std::string> cells;
    std::istringstream row(text);
    for (std::string cell; std::getline(row, cell, '\t');) cells.push_back(cell);
    cells.resize(8);
    Vector vector{.line = line,
                  .write = cells[0] == "write",
                  .in = FileCell(cells[1]),
                  .section = Unescape(cells[2], false),
                  .key = Unescape(cells[3], false),
                  .text = Unescape(cells[4], false),
                  .option = cells[5],
                  .result = {},
                  .out = {},
                  .remark = cells[7]};
    if (vector.write)
      vector.out = FileCell(cells[6]);
    else
      vector.result = Unescape(cells[6], false);
    vectors.push_back(vector);
  }
  return vectors;
}

class ProfileFileVectors : public testing::Test {
 protected:
  void SetUp() override {
    folder_ = std::filesystem::path(testing::TempDir()) /
              ("profile_file_vectors_" +
               std::to_string(std::hash<std::string>{}(
                   testing::UnitTest::GetInstance()->current_test_info()->name())));
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
    path_ = (folder_ / "file.ecu").string();
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  void Put(const Bytes& bytes) const {
    std::filesystem::remove(path_);
    if (bytes) std::ofstream(path_, std::ios::binary) << *bytes;
  }
  Bytes OnDisk() const {
    std::ifstream in(path_, std::ios::binary);
    if (!in) return {};
    return std::string(std::istreambuf_iterator<char>(in), {});
  }
  // The rows that hold here.
  static std::vector<Vector> Rows(bool write) {
    std::vector<Vector> rows = ReadVectors();
    std::erase_if(rows, [write](const Vector& row) {
      return row.write != write || (kPlatformsOwn && row.remark.starts_with("windows:"));
    });
    return rows;
  }

  std::filesystem::path folder_;
  std::string path_;
};

TEST_F(ProfileFileVectors, AreThereInNumbers) {
  EXPECT_GE(ReadVectors().size(), 300u);
  EXPECT_GE(Rows(false).size(), 200u);
  EXPECT_GE(Rows(true).size(), 80u);
}

TEST_F(ProfileFileVectors, EveryReadGivesItsResultAndLeavesTheFile) {
  for (const Vector& row : Rows(false)) {
    SCOPED_TRACE("line " + std::to_string(row.line));
    Put(row.in);
    NativeProfileFile file;
    // Long texts are compared without being printed.
    EXPECT_TRUE(file.GetString(row.section, row.key, row.text, std::stoul(row.option), path_) ==
                row.result);
    EXPECT_TRUE(file.Flush());
    EXPECT_TRUE(OnDisk() == row.in);
  }
}

TEST_F(ProfileFileVectors, EveryWriteGivesItsBytes) {
  for (const Vector& row : Rows(true)) {
    SCOPED_TRACE("line " + std::to_string(row.line));
    Put(row.in);
    NativeProfileFile file;
    EXPECT_EQ(file.WriteString(row.section, row.key, row.text, path_), row.option == "ok");
    EXPECT_TRUE(file.Flush());
    EXPECT_TRUE(OnDisk() == row.out);
  }
}

TEST_F(ProfileFileVectors, APendingWriteReadsAsItWillFromTheFile) {
  for (const Vector& row : Rows(true)) {
    SCOPED_TRACE("line " + std::to_string(row.line));
    Put(row.in);
    NativeProfileFile file;
    file.WriteString(row.section, row.key, row.text, path_);
    const std::string pending = file.GetString(row.section, row.key, "d", 200000, path_);
    EXPECT_TRUE(file.Flush());
    NativeProfileFile afresh;
    EXPECT_TRUE(afresh.GetString(row.section, row.key, "d", 200000, path_) == pending);
  }
}

}  // namespace
}  // namespace lorimet
