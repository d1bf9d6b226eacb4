// What holds for the registry in a file and for the registry of the tests alike.
#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "adapters/headless/headless_ports.h"
#include "adapters/posix/posix_registry.h"
#include "autotests/platform/native_fixture.h"
#include "platform/registry.h"
#include "platform/runtime_error.h"
#include "support/settings.h"

namespace lorimet {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr RegistryHive kUser = RegistryHive::kCurrentUser;
constexpr RegistryHive kMachine = RegistryHive::kLocalMachine;
constexpr std::int32_t kInvalidHandle = 6;
const std::string kKey = kProductKey;

// A registry and a way to put a value into it from outside.
class Side {
 public:
  virtual ~Side() = default;
  virtual void Put(RegistryHive hive, const std::string& key, const std::string& name,
                   std::uint32_t type, const Bytes& bytes) = 0;
  virtual Registry& Port() = 0;
};

std::string Hex(std::uint32_t number) {
  char digits[12];
  std::snprintf(digits, sizeof digits, "%x", static_cast<unsigned>(number));
  return digits;
}

class FileSide : public Side {
 public:
  void Put(RegistryHive hive, const std::string& key, const std::string& name, std::uint32_t type,
           const Bytes& bytes) override {
    std::string line = name.empty() ? "@" : '"' + name + '"';
    line += "=hex(" + Hex(type) + "):";
    for (std::size_t i = 0; i < bytes.size(); ++i) line += (i == 0 ? "" : ",") + Hex(bytes[i]);
    const char* root = hive == kUser ? "HKEY_CURRENT_USER\\" : "HKEY_LOCAL_MACHINE\\";
    text_ += std::string("[") + root + key + "]\r\n" + line + "\r\n";
    WriteFile(file_, text_);
  }
  Registry& Port() override { return registry_; }

 private:
  ScratchFolder folder_;
  std::string file_ = folder_ / "registry.reg";
  std::string text_ = "REGEDIT4\r\n";
  PosixRegistry registry_{file_};
};

class MemorySide : public Side {
 public:
  void Put(RegistryHive hive, const std::string& key, const std::string& name, std::uint32_t type,
           const Bytes& bytes) override {
    registry_.SetRaw(hive, key, name, {type, bytes});
  }
  Registry& Port() override { return registry_; }

 private:
  MemoryRegistry registry_;
};

using MakeSide = std::unique_ptr<Side> (*)();

std::unique_ptr<Side> MakeFileSide() { return std::make_unique<FileSide>(); }
std::unique_ptr<Side> MakeMemorySide() { return std::make_unique<MemorySide>(); }

class RegistryContract : public testing::TestWithParam<MakeSide> {
 protected:
  std::int32_t Query(RegistryHive hive, const std::string& path, const std::string& name,
                     std::size_t size = 1024) {
    RegistryKey key = 0;
    const std::int32_t status = port_.OpenKey(hive, path, kRegKeyRead, key);
    if (status != kRegSuccess) return status;
    type_ = 0;
    data_.assign(size, 0xEE);
    const std::int32_t queried = port_.QueryValue(key, name, type_, data_);
    port_.CloseKey(key);
    return queried;
  }

  std::unique_ptr<Side> side_ = GetParam()();
  Registry& port_ = side_->Port();
  std::uint32_t type_ = 0;
  Bytes data_;
};

INSTANTIATE_TEST_SUITE_P(Sides, RegistryContract, testing::Values(MakeFileSide, MakeMemorySide),
                         [](const auto& info) { return info.index == 0 ? "File" : "Memory"; });

// The registry does not look at what a type promises.
TEST_P(RegistryContract, AValueComesBackWithItsTypeAndBytesWhateverTheirNumber) {
  for (const std::uint32_t type : {0U, 1U, 2U, 3U, 4U, 7U, 11U}) {
    for (const std::size_t size : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 8U, 1024U}) {
      Bytes bytes;
      for (std::size_t i = 0; i < size; ++i) bytes.push_back(static_cast<std::uint8_t>(i * 37 + 1));
      side_->Put(kMachine, kKey, "HelpDir", type, bytes);
      EXPECT_EQ(Query(kMachine, kKey, "HelpDir"), kRegSuccess);
      EXPECT_EQ(type_, type);
      EXPECT_EQ(data_, bytes) << type << " " << size;
    }
  }
}

TEST_P(RegistryContract, AValueThatDoesNotFitIsMoreDataAndLeavesTheBuffer) {
  side_->Put(kUser, kKey, "Vendor", kRegDword, Bytes(6, 1));
  EXPECT_EQ(Query(kUser, kKey, "Vendor", 5), kRegMoreData);
  EXPECT_EQ(data_, Bytes(5, 0xEE));
  EXPECT_EQ(type_, kRegDword);
  EXPECT_EQ(Query(kUser, kKey, "Vendor", 6), kRegSuccess);
}

TEST_P(RegistryContract, ANumberReplacesAValueOfAnySizeAndType) {
  for (const std::uint32_t type : {kRegString, kRegBinary, kRegDword}) {
    side_->Put(kUser, kKey, "Language", type, Bytes(6, 9));
    RegistryKey key = 0;
    ASSERT_EQ(port_.OpenKey(kUser, kKey, kRegKeySetValue, key), kRegSuccess);
    EXPECT_EQ(port_.SetDword(key, "LANGUAGE", 0x01020304), kRegSuccess);
    port_.CloseKey(key);
    EXPECT_EQ(Query(kUser, kKey, "Language"), kRegSuccess);
    EXPECT_EQ(type_, kRegDword);
    EXPECT_EQ(data_, (Bytes{4, 3, 2, 1}));
  }
}

TEST_P(RegistryContract, NamesMatchWithoutRegardToCase) {
  side_->Put(kUser, "SOFTWARE\\\xC4lter",
             "Gr\xD6\xDF"
             "e",
             kRegString, {'x', 0});
  EXPECT_EQ(Query(kUser, "software\\\xE4LTER",
                  "gR\xF6\xDF"
                  "E"),
            kRegSuccess);
  EXPECT_EQ(Query(kUser, "software\\\xE4LTER\\",
                  "gR\xF6\xDF"
                  "E"),
            kRegSuccess);
  EXPECT_EQ(Query(kUser, "software\\\xE4LTER",
                  "gR\xF6"
                  "sE"),
            kRegFileNotFound);
  EXPECT_EQ(Query(kMachine, "SOFTWARE\\\xC4lter",
                  "Gr\xD6\xDF"
                  "e"),
            kRegFileNotFound);
}

TEST_P(RegistryContract, AKeyStandsWhenOneBelowItDoes) {
  side_->Put(kUser, kKey, "Vendor", kRegString, {'x', 0});
  EXPECT_EQ(Query(kUser, "SOFTWARE\\Norvick", "Vendor"), kRegFileNotFound);
  RegistryKey key = 0;
  EXPECT_EQ(port_.OpenKey(kUser, "SOFTWARE\\Norvick", kRegKeyRead, key), kRegSuccess);
  EXPECT_EQ(port_.OpenKey(kUser, "SOFTWARE\\Norv", kRegKeyRead, key), kRegFileNotFound);
  EXPECT_EQ(port_.OpenKey(kMachine, "SOFTWARE", kRegKeyRead, key), kRegFileNotFound);
}

TEST_P(RegistryContract, AKeyDoesWhatItWasOpenedForAndNothingOnceClosed) {
  side_->Put(kUser, kKey, "Language", kRegDword, {2, 0, 0, 0});
  RegistryKey reading = 0;
  RegistryKey writing = 0;
  ASSERT_EQ(port_.OpenKey(kUser, kKey, kRegKeyRead, reading), kRegSuccess);
  ASSERT_EQ(port_.OpenKey(kUser, kKey, kRegKeySetValue, writing), kRegSuccess);
  Bytes data(8);
  EXPECT_EQ(port_.SetDword(reading, "Language", 1), kRegAccessDenied);
  EXPECT_EQ(port_.QueryValue(writing, "Language", type_, data), kRegAccessDenied);
  port_.CloseKey(reading);
  EXPECT_EQ(port_.QueryValue(reading, "Language", type_, data), kInvalidHandle);
  port_.CloseKey(writing);
  EXPECT_EQ(port_.SetDword(writing, "Language", 1), kInvalidHandle);
  EXPECT_EQ(Query(kUser, kKey, "Language"), kRegSuccess);
  EXPECT_EQ(data_, (Bytes{2, 0, 0, 0}));
}

TEST_P(RegistryContract, ACreatedKeyIsThereAndEmpty) {
  RegistryKey key = 0;
  EXPECT_EQ(port_.OpenKey(kUser, kKey, kRegKeySetValue, key), kRegFileNotFound);
  ASSERT_EQ(port_.CreateKey(kUser, kKey, kRegKeyWrite, key), kRegSuccess);
  EXPECT_EQ(port_.SetDword(key, "Language", 3), kRegSuccess);
  port_.CloseKey(key);
  EXPECT_EQ(Query(kUser, kKey, "Vendor"), kRegFileNotFound);
  EXPECT_EQ(Query(kUser, kKey, "Language"), kRegSuccess);
}

// What a setting reads as: its text, or the number of the error.
using Reading = std::pair<std::string, int>;

Reading Read(const std::function<std::string()>& setting) {
  try {
    return {setting(), 0};
  } catch (const RuntimeError& error) {
    return {"", error.Number()};
  }
}

// All settings of a registry that holds the bytes under every name.
std::vector<Reading> Settled(Side& side, std::uint32_t type, const Bytes& bytes) {
  for (const char* name : {"Vendor", "DeviceID", "Protocol", "Language"})
    side.Put(kUser, kKey, name, type, bytes);
  side.Put(kMachine, kKey, "HelpDir", type, bytes);
  Settings settings(side.Port());
  return {Read([&] { return settings.GetVendor(); }),
          Read([&] { return std::to_string(settings.GetDeviceID()); }),
          Read([&] { return settings.GetProtocol(); }),
          Read([&] { return std::to_string(settings.GetLanguage()); }),
          Read([&] { return settings.GetHelpDir(); })};
}

TEST(RegistrySides, ASettingOfAnySizeReadsTheSameFromBoth) {
  const Bytes kRows[] = {
      {},
      {0},
      {2},
      {0, 1},
      {2, 0, 0},
      {2, 0, 0, 0},
      {0xFF, 0xFF, 0xFF, 0xFF},
      {1, 2, 3, 4, 5},
      {1, 2, 3, 4, 5, 6},
      {2, 0, 0, 0, 0, 0},
      {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF},
      Bytes(7, 0x20),
      Bytes(1024, 0x31),
      Bytes(1025, 0x31),
  };
  for (const std::uint32_t type : {kRegString, kRegExpandString, kRegBinary, kRegDword}) {
    for (const Bytes& bytes : kRows) {
      FileSide file;
      MemorySide memory;
      EXPECT_EQ(Settled(file, type, bytes), Settled(memory, type, bytes))
          << type << " of " << bytes.size();
    }
  }
}

TEST(RegistrySides, NumbersOfAnySizeReadByTheirBytes) {
  struct Row {
    Bytes bytes;
    const char* vendor;
  };
  // The last byte goes when it is 0, and each byte goes without its leading zero.
  const Row kRows[] = {
      {{2, 0, 0, 0}, "2"},         {{2}, "2"},
      {{0x10, 0, 0}, "16"},        {{0, 0, 0, 0}, "0"},
      {{1, 2, 3, 4, 5}, "344865"}, {{1, 2, 3, 4, 5, 6}, "6636321"},
      {{3, 0, 0, 0, 0, 0}, "3"},   {{0xFF, 0xFF, 0xFF, 0xFF}, "-1"},
  };
  for (const Row& row : kRows) {
    for (const MakeSide make : {MakeFileSide, MakeMemorySide}) {
      const auto side = make();
      side->Put(kUser, kKey, "Vendor", kRegDword, row.bytes);
      EXPECT_EQ(Settings(side->Port()).GetVendor(), row.vendor);
    }
  }
}

}  // namespace
}  // namespace lorimet
