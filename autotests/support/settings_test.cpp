// The settings in the registry, and the starting of an installed program.
#include "support/settings.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "adapters/headless/headless_ports.h"
#include "autotests/common/gestures.h"
#include "platform/runtime_error.h"

namespace lorimet {
namespace {

using testing_support::ErrorOf;

constexpr auto kUser = RegistryHive::kCurrentUser;
constexpr auto kMachine = RegistryHive::kLocalMachine;
using Bytes = std::vector<std::uint8_t>;

// Writes down what is asked of the registry, and can refuse it.
class WatchedRegistry : public MemoryRegistry {
 public:
  std::vector<std::string> log;
  std::map<std::string, std::int32_t> answers;  // by operation; absent: as it is
  std::vector<std::int32_t> open_answers;       // used up before the registry looks

  std::vector<std::string> Take() { return std::exchange(log, {}); }

  std::int32_t OpenKey(RegistryHive hive, const std::string& path, std::uint32_t access,
                       RegistryKey& key) override {
    Write("open", hive, path, access);
    if (!open_answers.empty()) {
      const std::int32_t answer = open_answers.front();
      open_answers.erase(open_answers.begin());
      if (answer != kRegSuccess) return answer;
    }
    return MemoryRegistry::OpenKey(hive, path, access, key);
  }
  std::int32_t QueryValue(RegistryKey key, const std::string& name, std::uint32_t& type,
                          Bytes& data) override {
    log.push_back("query " + name + " " + std::to_string(data.size()));
    if (answers.contains("query")) return answers["query"];
    return MemoryRegistry::QueryValue(key, name, type, data);
  }
  std::int32_t SetDword(RegistryKey key, const std::string& name, std::uint32_t value) override {
    log.push_back("set " + name + " " + std::to_string(value));
    if (answers.contains("set")) return answers["set"];
    return MemoryRegistry::SetDword(key, name, value);
  }
  std::int32_t CreateKey(RegistryHive hive, const std::string& path, std::uint32_t access,
                         RegistryKey& key) override {
    Write("create", hive, path, access);
    return MemoryRegistry::CreateKey(hive, path, access, key);
  }

 private:
  void Write(const std::string& what, RegistryHive hive, const std::string& path,
             std::uint32_t access) {
    log.push_back(what + (hive == kUser ? " user " : " machine ") + path + " " +
                  std::to_string(access));
  }
};

constexpr const char* kOpenToRead = R"(open user SOFTWARE\Norvick\Norvick Lorimet 131097)";
constexpr const char* kOpenToSet = R"(open user SOFTWARE\Norvick\Norvick Lorimet 2)";
constexpr const char* kCreate = R"(create user SOFTWARE\Norvick\Norvick Lorimet 131078)";

class SettingsTest : public testing::Test {
 protected:
  ~SettingsTest() override { EXPECT_EQ(registry.OpenKeys(), 0) << "a key was left open"; }

  void SetRaw(std::uint32_t type, Bytes data) {
    registry.SetRaw(kUser, "Key", "Value", {type, std::move(data)});
  }
  // What a read makes of a text that held `before`; "(false)" in front of it when it failed.
  std::string Read(const std::string& before = "") {
    std::string value = before;
    const bool read = settings.ReadRegString(kUser, "Key", "Value", value);
    return (read ? "" : "(false)") + value;
  }

  WatchedRegistry registry;
  Settings settings{registry};
  HeadlessProcess process;
};

TEST_F(SettingsTest, HaveTheirDefaultsWithNothingStored) {
  EXPECT_EQ(settings.GetVendor(), "");
  EXPECT_EQ(settings.GetDeviceID(), -1);
  EXPECT_EQ(settings.GetProtocol(), "-1");
  EXPECT_EQ(settings.GetLanguage(), -1);
  EXPECT_EQ(settings.GetHelpDir(), "");
}

TEST_F(SettingsTest, HaveTheirDefaultsForEmptyTexts) {
  for (const char* name : {"Vendor", "DeviceID", "Protocol", "Language"})
    registry.SetText(kUser, kProductKey, name, "");
  registry.SetText(kMachine, kProductKey, "HelpDir", "");
  EXPECT_EQ(settings.GetVendor(), "");
  EXPECT_EQ(settings.GetDeviceID(), -1);
  EXPECT_EQ(settings.GetProtocol(), "-1");
  EXPECT_EQ(settings.GetLanguage(), -1);
  EXPECT_EQ(settings.GetHelpDir(), "");
}

TEST_F(SettingsTest, AreReadEachFromItsHive) {
  for (const RegistryHive hive : {kUser, kMachine}) {
    const std::string mark = hive == kUser ? "user" : "machine";
    registry.SetText(hive, kProductKey, "Vendor", mark + " vendor");
    registry.SetText(hive, kProductKey, "Protocol", mark + " protocol");
    registry.SetText(hive, kProductKey, "HelpDir", mark + " help");
    registry.SetText(hive, kProductKey, "DeviceID", hive == kUser ? "151" : "7");
    registry.SetNumber(hive, kProductKey, "Language", hive == kUser ? 3 : 1);
  }
  EXPECT_EQ(settings.GetVendor(), "user vendor");
  EXPECT_EQ(settings.GetProtocol(), "user protocol");
  EXPECT_EQ(settings.GetHelpDir(), "machine help");
  EXPECT_EQ(settings.GetDeviceID(), 151);
  EXPECT_EQ(settings.GetLanguage(), 3);
}

TEST_F(SettingsTest, ANumberOfAnOddSizeGivesTheDefaultsForAllButTheDevice) {
  const Bytes kSixBytes = {0x11, 0x22, 0x33, 0x44, 0x55, 0x66};
  for (const char* name : {"Vendor", "DeviceID", "Protocol", "Language"})
    registry.SetRaw(kUser, kProductKey, name, {kRegDword, kSixBytes});
  registry.SetRaw(kMachine, kProductKey, "HelpDir", {kRegDword, kSixBytes});
  EXPECT_EQ(settings.GetVendor(), "");
  EXPECT_EQ(settings.GetProtocol(), "-1");
  EXPECT_EQ(settings.GetLanguage(), -1);
  EXPECT_EQ(settings.GetHelpDir(), "");
  EXPECT_EQ(ErrorOf([&] { settings.GetDeviceID(); }), 6);
}

TEST_F(SettingsTest, AProgramWhosePathIsANumberOfAnOddSizeIsNotInstalled) {
  HeadlessProcess process;
  registry.SetRaw(kMachine, std::string(kAppPathsKey) + "Hubrest.exe", "",
                  {kRegDword, {0x11, 0x22, 0x33, 0x44, 0x55, 0x66}});
  EXPECT_EQ(RunApp(settings, process, "Hubrest.exe", "NO"), 2);
}

TEST_F(SettingsTest, AreReadAnewAtEveryCall) {
  registry.SetText(kUser, kProductKey, "Vendor", "one");
  EXPECT_EQ(settings.GetVendor(), "one");
  registry.SetText(kUser, kProductKey, "Vendor", "two");
  EXPECT_EQ(settings.GetVendor(), "two");
}

TEST_F(SettingsTest, ReadWithTheReadRightIntoABufferOf1024) {
  registry.SetText(kUser, kProductKey, "Vendor", "one");
  settings.GetVendor();
  EXPECT_EQ(registry.Take(), (std::vector<std::string>{kOpenToRead, "query Vendor 1024"}));
}

TEST_F(SettingsTest, AreEmptyWhenTheReadFails) {
  EXPECT_EQ(Read("before"), "(false)");  // no key
  registry.SetText(kUser, "Key", "Other", "text");
  EXPECT_EQ(Read("before"), "(false)");  // no value
  registry.SetText(kUser, "Key", "Value", "text");
  EXPECT_EQ(Read("before"), "text");
  registry.answers["query"] = kRegAccessDenied;
  EXPECT_EQ(Read("before"), "(false)");
  registry.answers.clear();
  registry.open_answers = {kRegAccessDenied};
  EXPECT_EQ(Read("before"), "(false)");
}

TEST_F(SettingsTest, TakeUpTo1024BytesWithTheirNul) {
  registry.SetText(kUser, "Key", "Value", std::string(1022, 'x'));
  EXPECT_EQ(Read(), std::string(1022, 'x'));
  registry.SetText(kUser, "Key", "Value", std::string(1023, 'x'));
  EXPECT_EQ(Read(), std::string(1023, 'x'));
  registry.SetText(kUser, "Key", "Value", std::string(1024, 'x'));
  EXPECT_EQ(Read(), "(false)");
  SetRaw(kRegString, Bytes(1024, 'x'));  // no NUL stored
  EXPECT_EQ(Read(), std::string(1024, 'x'));
  SetRaw(kRegString, Bytes(1025, 'x'));
  EXPECT_EQ(Read(), "(false)");
}

TEST_F(SettingsTest, DropOneNulAtTheEndOfAText) {
  SetRaw(kRegString, {'a', 'b'});
  EXPECT_EQ(Read(), "ab");
  SetRaw(kRegString, {'a', 'b', 0, 0});
  EXPECT_EQ(Read(), std::string("ab\0", 3));
  SetRaw(kRegString, {0});
  EXPECT_EQ(Read("before"), "");
  SetRaw(kRegString, {});
  EXPECT_EQ(Read("before"), "");
  SetRaw(kRegString, {'c', 'a', 'f', 0xE9, ' ', 0x80, 0});
  EXPECT_EQ(Read(), "café €");
}

TEST_F(SettingsTest, LeaveTheTextAloneForOtherTypes) {
  for (const std::uint32_t type : {kRegExpandString, kRegBinary, 0u, 5u, 7u, 11u}) {
    SetRaw(type, {'a', 'b', 0});
    EXPECT_EQ(Read("before"), "before") << type;
  }
}

TEST_F(SettingsTest, DecodeANumberByteByByte) {
  struct Row {
    std::uint32_t stored;
    const char* text;
  };
  // Each byte loses its leading zero, so a number whose lower bytes are below 16 reads wrong.
  // clang-format off
  constexpr Row kRows[] = {
      {0,          "0"},
      {1,          "1"},
      {10,         "10"},
      {15,         "15"},
      {16,         "16"},
      {255,        "255"},
      {256,        "16"},           // 00 01 -> "010"
      {257,        "17"},           // 01 01 -> "011"
      {0x0110,     "272"},          // 10 01 -> "0110"
      {0x1234,     "4660"},
      {0x100F,     "271"},          // 0F 10 -> "010F"
      {0x010203,   "291"},          // 03 02 01 -> "123"
      {0x12345678, "305419896"},
      {0x01020304, "4660"},         // "1234"
      {0x7FFFFFFF, "2147483647"},
      {0x80000000, "524288"},       // 00 00 00 80 -> "80000"
      {0xFFFFFFFF, "-1"},
  };
  // clang-format on
  for (const Row& row : kRows) {
    registry.SetNumber(kUser, "Key", "Value", row.stored);
    EXPECT_EQ(Read(), row.text) << std::hex << row.stored;
  }
}

TEST_F(SettingsTest, DecodeANumberBehindWhatTheTextHeld) {
  registry.SetNumber(kUser, "Key", "Value", 2);
  EXPECT_EQ(Read("1"), "4098");  // "1" and "002"
  EXPECT_EQ(Read("A"), "40962");
  EXPECT_EQ(ErrorOf([&] { Read("text"); }), 13);
  EXPECT_EQ(ErrorOf([&] { Read(" 1"); }), 13);
  EXPECT_EQ(ErrorOf([&] { Read("123456"); }), 6);
}

TEST_F(SettingsTest, GiveTheDeviceIdAsA16BitNumber) {
  struct Row {
    const char* stored;
    std::int16_t id;
    std::int32_t error;
  };
  // clang-format off
  constexpr Row kRows[] = {
      {"0",      0,      0},
      {"151",    151,    0},
      {" 151 ",  151,    0},
      {"-1",     -1,     0},
      {"2.5",    2,      0},
      {"32767",  32767,  0},
      {"-32768", -32768, 0},
      {"32768",  0,      6},
      {"-32769", 0,      6},
      {"COM1",   0,      13},
      {"1 2",    0,      13},
      {" ",      0,      13},
  };
  // clang-format on
  for (const Row& row : kRows) {
    registry.SetText(kUser, kProductKey, "DeviceID", row.stored);
    std::int16_t id = 0;
    EXPECT_EQ(ErrorOf([&] { id = settings.GetDeviceID(); }), row.error) << row.stored;
    EXPECT_EQ(id, row.id) << row.stored;
  }
  registry.SetNumber(kUser, kProductKey, "DeviceID", 151);
  EXPECT_EQ(settings.GetDeviceID(), 151);
  registry.SetNumber(kUser, kProductKey, "DeviceID", 0x12345);
  EXPECT_EQ(ErrorOf([&] { settings.GetDeviceID(); }), 6);
}

TEST_F(SettingsTest, GiveNoLanguageForWhatIsNoNumber) {
  registry.SetNumber(kUser, kProductKey, "Language", 0);
  EXPECT_EQ(settings.GetLanguage(), 0);
  registry.SetText(kUser, kProductKey, "Language", "2");
  EXPECT_EQ(settings.GetLanguage(), 2);
  registry.SetText(kUser, kProductKey, "Language", "français");
  EXPECT_EQ(settings.GetLanguage(), -1);
  registry.SetText(kUser, kProductKey, "Language", "99999");
  EXPECT_EQ(settings.GetLanguage(), -1);
}

TEST_F(SettingsTest, SaveTheLanguageAs32Bits) {
  registry.SetText(kUser, kProductKey, "Vendor", "one");
  settings.SaveLanguage(3);
  EXPECT_EQ(registry.Take(), (std::vector<std::string>{kOpenToSet, "set Language 3"}));
  EXPECT_EQ(settings.GetLanguage(), 3);
  EXPECT_TRUE(settings.WriteRegDword(kProductKey, "Language", -1));
  EXPECT_EQ(registry.Find(kUser, kProductKey, "Language")->data, Bytes(4, 0xFF));
  EXPECT_EQ(settings.GetLanguage(), -1);
}

TEST_F(SettingsTest, CreateAMissingKey) {
  for (const std::int32_t code : {2, 1010}) {
    registry.open_answers = {code};
    registry.Take();
    EXPECT_TRUE(settings.WriteRegDword(kProductKey, "Language", 1)) << code;
    EXPECT_EQ(registry.Take(),
              (std::vector<std::string>{kOpenToSet, kCreate, kOpenToSet, "set Language 1"}));
  }
}

TEST_F(SettingsTest, CreateNoKeyForOtherFailures) {
  registry.open_answers = {kRegAccessDenied};
  EXPECT_FALSE(settings.WriteRegDword(kProductKey, "Language", 1));
  EXPECT_EQ(registry.Take(), std::vector<std::string>{kOpenToSet});
}

TEST_F(SettingsTest, TellThatAValueWasNotWritten) {
  registry.create_answer = kRegAccessDenied;
  EXPECT_FALSE(settings.CreateRegKey("Key"));
  EXPECT_FALSE(settings.WriteRegDword(kProductKey, "Language", 1));
  registry.create_answer = kRegSuccess;
  registry.open_answers = {kRegFileNotFound, kRegAccessDenied};
  EXPECT_FALSE(settings.WriteRegDword(kProductKey, "Language", 1));
  registry.answers["set"] = kRegAccessDenied;
  EXPECT_FALSE(settings.WriteRegDword(kProductKey, "Language", 1));
}

TEST_F(SettingsTest, CreateAlwaysUnderTheCurrentUser) {
  EXPECT_FALSE(settings.WriteRegDword("Key", "Value", 1, kMachine));
  EXPECT_EQ(registry.Take(),
            (std::vector<std::string>{"open machine Key 2", "create user Key 131078",
                                      "open machine Key 2"}));
  registry.SetText(kMachine, "Key", "Other", "");
  EXPECT_TRUE(settings.WriteRegDword("Key", "Value", 1, kMachine));
  EXPECT_NE(registry.Find(kMachine, "Key", "Value"), nullptr);
}

TEST_F(SettingsTest, StartAnInstalledProgram) {
  const std::string key = std::string(kAppPathsKey) + "Hubrest.exe";
  EXPECT_EQ(RunApp(settings, process, "Hubrest.exe", "NO"), 2);
  registry.SetText(kUser, key, "", "/opt/hubrest");  // another hive's
  EXPECT_EQ(RunApp(settings, process, "Hubrest.exe", "NO"), 2);
  registry.SetText(kMachine, key, "", "/opt/hubrest");
  EXPECT_EQ(RunApp(settings, process, "Hubrest.exe", "NO"), 1);
  EXPECT_TRUE(process.started.empty());
  process.files = {"/opt/hubrest"};
  EXPECT_EQ(RunApp(settings, process, "Hubrest.exe", "NO"), 0);
  EXPECT_EQ(RunApp(settings, process, "Hubrest.exe", ""), 0);
  EXPECT_EQ(process.started, (std::vector<std::string>{"/opt/hubrest NO", "/opt/hubrest"}));
  process.starts = false;
  EXPECT_EQ(RunApp(settings, process, "Hubrest.exe", "NO"), 1);
}

}  // namespace
}  // namespace lorimet
