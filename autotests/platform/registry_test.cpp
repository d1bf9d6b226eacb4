#include "platform/registry.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <string_view>
#include <vector>

#include "adapters/posix/posix_registry.h"
#include "autotests/platform/file_faults.h"
#include "autotests/platform/native_fixture.h"

namespace lorimet {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr RegistryHive kUser = RegistryHive::kCurrentUser;
constexpr RegistryHive kMachine = RegistryHive::kLocalMachine;
constexpr std::size_t kBuffer = 1024;
const std::string kProduct = "SOFTWARE\\Norvick\\Norvick Lorimet";
const std::string kUtf8Mark = "\xEF\xBB\xBF";
const std::string kUserKey = "[HKEY_CURRENT_USER\\SOFTWARE\\Norvick\\Norvick Lorimet]";

Bytes Raw(std::string_view text) { return {text.begin(), text.end()}; }
Bytes Text(const std::string& text) {
  Bytes bytes = Raw(text);
  bytes.push_back(0);
  return bytes;
}

// The text as Windows saves it: UTF-16LE behind its mark. For characters below 0x100.
std::string Wide(const std::string& latin) {
  std::string bytes = "\xFF\xFE";
  for (const char character : latin) {
    bytes += character;
    bytes += '\0';
  }
  return bytes;
}

class RegistryTest : public testing::Test {
 protected:
  void Put(const std::string& bytes) { WriteFile(file_, bytes); }
  std::string Stored() const { return ReadFile(file_); }

  // The status of opening the key or querying the value.
  std::int32_t Query(RegistryHive hive, const std::string& path, const std::string& name,
                     std::size_t size = kBuffer) {
    RegistryKey key = 0;
    const std::int32_t status = registry_.OpenKey(hive, path, kRegKeyRead, key);
    if (status != kRegSuccess) {
      return status;
    }
    type_ = 0;
    data_.assign(size, 0xEE);
    const std::int32_t queried = registry_.QueryValue(key, name, type_, data_);
    registry_.CloseKey(key);
    return queried;
  }

  std::size_t FilesInFolder() const {
    namespace fs = std::filesystem;
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator()));
  }

  std::int32_t Set(const std::string& path, const std::string& name, std::uint32_t value) {
    return SetIn(registry_, path, name, value);
  }

  static std::int32_t SetIn(Registry& registry, const std::string& path, const std::string& name,
                            std::uint32_t value) {
    RegistryKey key = 0;
    const std::int32_t status = registry.OpenKey(kUser, path, kRegKeySetValue, key);
    if (status != kRegSuccess) {
      return status;
    }
    const std::int32_t set = registry.SetDword(key, name, value);
    registry.CloseKey(key);
    return set;
  }

  std::int32_t Create(RegistryHive hive, const std::string& path) {
    RegistryKey key = 0;
    const std::int32_t status = registry_.CreateKey(hive, path, kRegKeyWrite, key);
    registry_.CloseKey(key);
    return status;
  }

  ScratchFolder folder_;
  std::string file_ = folder_ / "registry.reg";
  PosixRegistry registry_{file_};
  std::uint32_t type_ = 0;
  Bytes data_;
};

// Each line alone under the product's key, and what a query of the value finds.
struct ValueRow {
  const char* line;
  const char* name;
  std::int32_t status;
  std::uint32_t type;
  Bytes data;
};

const ValueRow kValueRows[] = {
    // texts
    {R"("Vendor"="DGDPA5MA")", "Vendor", 0, 1, Text("DGDPA5MA")},
    {R"("Vendor"="")", "Vendor", 0, 1, Text("")},
    {R"(@="C:\\Tools\\Hubrest.exe")", "", 0, 1, Text("C:\\Tools\\Hubrest.exe")},
    {R"("Vendor"="say \"hello\" \\ there")", "Vendor", 0, 1, Text("say \"hello\" \\ there")},
    {R"("Vendor"="C:\Tools")", "Vendor", 0, 1, Text("C:\\Tools")},
    {R"("a \"b\" \\c"="x")", "a \"b\" \\c", 0, 1, Text("x")},
    {R"(  "Vendor" = "x"  )", "Vendor", 0, 1, Text("x")},
    {R"("Vendor"="a;b=c]" ; a remark)", "Vendor", 0, 1, Text("a;b=c]")},
    {"\"Vendor\"=\"Gr\xFC\xDF\x80\"", "Vendor", 0, 1, Text("Gr\xFC\xDF\x80")},
    {"\"V\xC4\"=\"x\"", "v\xE4", 0, 1, Text("x")},
    {R"("VENDOR"="x")", "vendor", 0, 1, Text("x")},
    {R"("vendor"="x")", "VENDOR", 0, 1, Text("x")},
    // numbers
    {R"("Language"=dword:00000002)", "Language", 0, 4, {2, 0, 0, 0}},
    {R"("Language"=dword:0)", "Language", 0, 4, {0, 0, 0, 0}},
    {R"("Language"=dword:12aBcDeF)", "Language", 0, 4, {0xEF, 0xCD, 0xAB, 0x12}},
    {R"("Language"=dword:ffffffff ; minus one)", "Language", 0, 4, {0xFF, 0xFF, 0xFF, 0xFF}},
    // bytes
    {R"("B"=hex:)", "B", 0, 3, {}},
    {R"("B"=hex:01,fF,00)", "B", 0, 3, {0x01, 0xFF, 0x00}},
    {R"("B"=hex(3):07)", "B", 0, 3, {7}},
    {R"("B"=hex(1):41,42,00)", "B", 0, 1, Text("AB")},
    {R"("B"=hex(1):41,42)", "B", 0, 1, Raw("AB")},
    {R"("B"=hex(2):25,41,25,00)", "B", 0, 2, Text("%A%")},
    {R"("B"=hex(4):02,00,00,00)", "B", 0, 4, {2, 0, 0, 0}},
    {R"("B"=hex(7):41,00,42,00,00)", "B", 0, 7, Raw(std::string_view("A\0B\0\0", 5))},
    {R"("B"=hex(b):01,00,00,00,00,00,00,00)", "B", 0, 11, {1, 0, 0, 0, 0, 0, 0, 0}},
    {R"("B"=hex(0):)", "B", 0, 0, {}},
    {"\"B\"=hex:01,02,\\\r\n  03,04,\\\r\n  05", "B", 0, 3, {1, 2, 3, 4, 5}},
    {"\"B\"=hex(2):\\\r\n  41,00", "B", 0, 2, Text("A")},
    // what stands last counts
    {"\"V\"=\"a\"\r\n\"v\"=\"b\"", "V", 0, 1, Text("b")},
    // malformed, deleted, of another name
    {R"("Vendor"=-)", "Vendor", 2, 0, {}},
    {"\"V\"=\"a\"\r\n\"V\"=-", "V", 0, 1, Text("a")},
    {R"("Vendor"="open)", "Vendor", 2, 0, {}},
    {R"("Vendor"="C:\")", "Vendor", 2, 0, {}},
    {R"("Vendor"="x" y)", "Vendor", 2, 0, {}},
    {R"("Vendor="x")", "Vendor", 2, 0, {}},
    {R"("Vendor" "x")", "Vendor", 2, 0, {}},
    {R"("Vendor")", "Vendor", 2, 0, {}},
    {R"("Vendor"=)", "Vendor", 2, 0, {}},
    {R"(Vendor="x")", "Vendor", 2, 0, {}},
    {R"(;"Vendor"="x")", "Vendor", 2, 0, {}},
    {R"(")", "Vendor", 2, 0, {}},
    {R"(@)", "", 2, 0, {}},
    {R"("L"=dword:)", "L", 2, 0, {}},
    {R"("L"=dword:0000000g)", "L", 2, 0, {}},
    {R"("L"=dword:123456789)", "L", 2, 0, {}},
    {R"("L"=dword:-1)", "L", 2, 0, {}},
    {R"("L"=word:1)", "L", 2, 0, {}},
    {R"("B"=hex:01,zz)", "B", 2, 0, {}},
    {R"("B"=hex:100)", "B", 2, 0, {}},
    {R"("B"=hex:01,,02)", "B", 2, 0, {}},
    {R"("B"=hex(:01)", "B", 2, 0, {}},
    {R"("B"=hex():01)", "B", 2, 0, {}},
    {R"("B"=hex(x):01)", "B", 2, 0, {}},
    {R"("B"=hex)", "B", 2, 0, {}},
    {R"("B"=hex:01,\)", "B", 2, 0, {}},
    {R"("Vendors"="x")", "Vendor", 2, 0, {}},
    {R"("Vendor"="x")", "", 2, 0, {}},
    {"", "Vendor", 2, 0, {}},
};

TEST_F(RegistryTest, FindsEachKindOfValue) {
  for (const ValueRow& row : kValueRows) {
    SCOPED_TRACE(row.line);
    Put("REGEDIT4\r\n\r\n" + kUserKey + "\r\n" + row.line + "\r\n");
    EXPECT_EQ(Query(kUser, kProduct, row.name), row.status);
    if (row.status == kRegSuccess) {
      EXPECT_EQ(type_, row.type);
      EXPECT_EQ(data_, row.data);
    }
  }
}

TEST_F(RegistryTest, AMalformedLineLeavesTheOthersStanding) {
  for (const ValueRow& row : kValueRows) {
    SCOPED_TRACE(row.line);
    Put("REGEDIT4\n" + kUserKey + "\n\"Before\"=\"1\"\n" + row.line + "\n\"After\"=\"2\"\n");
    EXPECT_EQ(Query(kUser, kProduct, "Before"), kRegSuccess);
    EXPECT_EQ(data_, Text("1"));
    EXPECT_EQ(Query(kUser, kProduct, "After"), kRegSuccess);
    EXPECT_EQ(data_, Text("2"));
  }
}

TEST_F(RegistryTest, AcceptsEveryHeaderEncodingAndLineEnd) {
  const std::string four = "REGEDIT4";
  const std::string five = "Windows Registry Editor Version 5.00";
  const std::string crlf = "\r\n\r\n; a remark\r\n" + kUserKey + "\r\n\"Vendor\"=\"x\"\r\n";
  const std::string lf = "\n\n; a remark\n" + kUserKey + "\n\"Vendor\"=\"x\"\n";
  const std::string open_end = "\n" + kUserKey + "\n\"Vendor\"=\"x\"";
  for (const std::string& body : {crlf, lf, open_end}) {
    const std::string older = four + body;
    const std::string newer = five + body;
    for (const std::string& bytes : {older, newer, kUtf8Mark + older, kUtf8Mark + newer,
                                     Wide(older), Wide(newer), "\r\n; first\r\n" + older}) {
      SCOPED_TRACE(bytes);
      Put(bytes);
      EXPECT_EQ(Query(kUser, kProduct, "Vendor"), kRegSuccess);
      EXPECT_EQ(data_, Text("x"));
    }
  }
}

TEST_F(RegistryTest, TurnsTextsIntoTheCodePage) {
  const std::string head =
      "Windows Registry Editor Version 5.00\r\n" + kUserKey + "\r\n\"Vendor\"=\"";
  // u with dots, the euro sign, a Cyrillic letter and a character beyond 16 bits
  Put(Wide(head) + std::string("\xFC\x00\xAC\x20\x16\x04\x3D\xD8\x00\xDE\"\x00\r\x00\n\x00", 16));
  ASSERT_EQ(Query(kUser, kProduct, "Vendor"), kRegSuccess);
  EXPECT_EQ(data_, Text("\xFC\x80??"));
  Put("\xEF\xBB\xBF" + head + "\xC3\xBC\xE2\x82\xAC\xD0\x96\xF0\x9F\x98\x80\"\r\n");
  ASSERT_EQ(Query(kUser, kProduct, "Vendor"), kRegSuccess);
  EXPECT_EQ(data_, Text("\xFC\x80??"));
}

TEST_F(RegistryTest, TextsGivenAsBytesAreWideInTheNewerFormatOnly) {
  Put(Wide("Windows Registry Editor Version 5.00\r\n" + kUserKey +
           "\r\n\"E\"=hex(2):25,00,ac,20,00,00\r\n\"S\"=hex(1):41,00,00,00\r\n"
           "\"M\"=hex(7):41,00,00,00,00,00\r\n\"B\"=hex:41,00\r\n"));
  EXPECT_EQ(Query(kUser, kProduct, "E"), kRegSuccess);
  EXPECT_EQ(type_, kRegExpandString);
  EXPECT_EQ(data_, Text("%\x80"));
  EXPECT_EQ(Query(kUser, kProduct, "S"), kRegSuccess);
  EXPECT_EQ(data_, Text("A"));
  EXPECT_EQ(Query(kUser, kProduct, "M"), kRegSuccess);
  EXPECT_EQ(data_, Raw(std::string_view("A\0\0", 3)));
  EXPECT_EQ(Query(kUser, kProduct, "B"), kRegSuccess);
  EXPECT_EQ(data_, Raw(std::string_view("A\0", 2)));
}

TEST_F(RegistryTest, KeepsTheHivesAndKeysApart) {
  Put("REGEDIT4\n\n" + kUserKey + "\n\"V\"=\"user\"\n" +
      "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Norvick\\Norvick Lorimet]\n\"V\"=\"machine\"\n" +
      "[HKEY_CURRENT_USER\\SOFTWARE\\Norvick\\Norvick Lorimet\\Sub]\n\"V\"=\"sub\"\n" +
      "[-HKEY_CURRENT_USER\\SOFTWARE\\Norvick\\Norvick Lorimet]\n\"V\"=\"deleted\"\n" +
      "[HKEY_CURRENT_USER\\SOFTWARE\\Norvick\\Norvick Lorimet\n\"V\"=\"unclosed\"\n");
  EXPECT_EQ(Query(kUser, kProduct, "V"), kRegSuccess);
  EXPECT_EQ(data_, Text("user"));
  EXPECT_EQ(Query(kMachine, kProduct, "V"), kRegSuccess);
  EXPECT_EQ(data_, Text("machine"));
  EXPECT_EQ(Query(kUser, kProduct + "\\Sub", "V"), kRegSuccess);
  EXPECT_EQ(data_, Text("sub"));
  EXPECT_EQ(Query(kUser, kProduct + "\\", "V"), kRegSuccess);
  EXPECT_EQ(data_, Text("user"));
  EXPECT_EQ(Query(kUser, "software\\NORVICK\\norvick lorimet", "V"), kRegSuccess);
  EXPECT_EQ(Query(kUser, "SOFTWARE\\Norvick", "V"), kRegFileNotFound);
  EXPECT_EQ(Query(kUser, "SOFTWARE\\Norv", "V"), kRegFileNotFound);
  EXPECT_EQ(Query(kMachine, kProduct + "\\Sub", "V"), kRegFileNotFound);
}

TEST_F(RegistryTest, AKeyStandsWhenOneBelowItDoes) {
  Put("REGEDIT4\n" + kUserKey + "\n");
  RegistryKey key = 0;
  EXPECT_EQ(registry_.OpenKey(kUser, "SOFTWARE\\Norvick", kRegKeyRead, key), kRegSuccess);
  EXPECT_EQ(registry_.OpenKey(kUser, "", kRegKeyRead, key), kRegSuccess);
  EXPECT_EQ(registry_.OpenKey(kMachine, "SOFTWARE", kRegKeyRead, key), kRegFileNotFound);
}

TEST_F(RegistryTest, FindsAnApplicationsPath) {
  const std::string paths = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";
  Put("REGEDIT4\n\n[HKEY_LOCAL_MACHINE\\" + paths +
      "HUBREST.EXE]\n@=\"/opt/hub rest/hubrest\"\n\"Path\"=\"/opt\"\n");
  EXPECT_EQ(Query(kMachine, paths + "Hubrest.exe", ""), kRegSuccess);
  EXPECT_EQ(type_, kRegString);
  EXPECT_EQ(data_, Text("/opt/hub rest/hubrest"));
  EXPECT_EQ(Query(kMachine, paths + "Other.exe", ""), kRegFileNotFound);
}

TEST_F(RegistryTest, SeesTheBranchOf32BitProgramsInItsPlace) {
  Put("REGEDIT4\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Wow6432Node\\Norvick\\Norvick Lorimet]\n"
      "\"HelpDir\"=\"x\"\n");
  EXPECT_EQ(Query(kMachine, kProduct, "HelpDir"), kRegSuccess);
  EXPECT_EQ(data_, Text("x"));
}

TEST_F(RegistryTest, AValueThatDoesNotFitIsMoreData) {
  struct Row {
    std::size_t length;  // of the text, its NUL not counted
    std::size_t buffer;
    std::int32_t status;
  };
  constexpr Row kRows[] = {
      {1022, 1024, kRegSuccess},  {1023, 1024, kRegSuccess}, {1024, 1024, kRegMoreData},
      {5000, 1024, kRegMoreData}, {5000, 5001, kRegSuccess}, {0, 1, kRegSuccess},
      {0, 0, kRegMoreData},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.length);
    const std::string text(row.length, 'x');
    Put(std::string("REGEDIT4\n").append(kUserKey).append("\n\"V\"=\"").append(text) + "\"\n");
    EXPECT_EQ(Query(kUser, kProduct, "V", row.buffer), row.status);
    EXPECT_EQ(data_, row.status == kRegSuccess ? Text(text) : Bytes(row.buffer, 0xEE));
  }
}

TEST_F(RegistryTest, AFileThatIsMissingOrNoneOfTheRegistrysHasNoKeys) {
  EXPECT_EQ(Query(kUser, kProduct, "V"), kRegFileNotFound);
  std::string noise;
  for (int i = 0; i < 4096; ++i) {
    noise += static_cast<char>(i * 7919 >> 3);
  }
  const std::string rest = "\n" + kUserKey + "\n\"V\"=\"x\"\n";
  for (const std::string& bytes :
       {std::string(), std::string(" \r\n"), "REGEDIT5" + rest, "regedit" + rest, rest, noise,
        std::string("\xFF\xFE"), std::string("\xFF\xFER"), "\xFF\xFEREGEDIT4" + rest,
        "\xFE\xFF" + rest, std::string("\xEF\xBB\xBF"), std::string(100, '\0')}) {
    Put(bytes);
    EXPECT_EQ(Query(kUser, kProduct, "V"), kRegFileNotFound) << bytes;
  }
  std::filesystem::remove(file_);
  std::filesystem::create_directory(file_);
  EXPECT_EQ(Query(kUser, kProduct, "V"), kRegFileNotFound);
  std::filesystem::remove(file_);
  ASSERT_EQ(mkfifo(file_.c_str(), 0600), 0);
  EXPECT_EQ(Query(kUser, kProduct, "V"), kRegFileNotFound);
}

TEST_F(RegistryTest, EveryCutOfAGoodFileIsReadWithoutHarm) {
  const std::string whole = "REGEDIT4\r\n\r\n" + kUserKey +
                            "\r\n@=\"a\\\\b\"\r\n\"B\"=hex(2):41,\\\r\n  42,00\r\n"
                            "\"Language\"=dword:00000002\r\n";
  for (const std::string& bytes : {whole, Wide(whole), "\xEF\xBB\xBF" + whole}) {
    for (std::size_t size = 0; size <= bytes.size(); ++size) {
      Put(bytes.substr(0, size));
      const std::int32_t status = Query(kUser, kProduct, "B");
      EXPECT_TRUE(status == kRegSuccess || status == kRegFileNotFound) << size;
    }
    EXPECT_EQ(Query(kUser, kProduct, "Language"), kRegSuccess);
  }
}

TEST_F(RegistryTest, WhatChangesInTheFileIsSeenThroughAnOpenKey) {
  Put("REGEDIT4\n" + kUserKey + "\n\"V\"=\"old\"\n");
  RegistryKey key = 0;
  ASSERT_EQ(registry_.OpenKey(kUser, kProduct, kRegKeyRead, key), kRegSuccess);
  Put("REGEDIT4\n" + kUserKey + "\n\"V\"=\"new\"\n");
  Bytes data(kBuffer);
  EXPECT_EQ(registry_.QueryValue(key, "V", type_, data), kRegSuccess);
  EXPECT_EQ(data, Text("new"));
  std::filesystem::remove(file_);
  data.assign(kBuffer, 0);
  EXPECT_EQ(registry_.QueryValue(key, "V", type_, data), kRegFileNotFound);
}

TEST_F(RegistryTest, AKeyServesWhatItWasOpenedForUntilItIsClosed) {
  constexpr std::int32_t kInvalidHandle = 6;
  Put("REGEDIT4\n" + kUserKey + "\n\"V\"=\"x\"\n");
  RegistryKey reading = 0;
  RegistryKey writing = 0;
  ASSERT_EQ(registry_.OpenKey(kUser, kProduct, kRegKeyRead, reading), kRegSuccess);
  ASSERT_EQ(registry_.OpenKey(kUser, kProduct, kRegKeySetValue, writing), kRegSuccess);
  EXPECT_NE(reading, writing);
  Bytes data(kBuffer);
  EXPECT_EQ(registry_.SetDword(reading, "L", 1), kRegAccessDenied);
  EXPECT_EQ(registry_.QueryValue(writing, "V", type_, data), kRegAccessDenied);
  registry_.CloseKey(reading);
  EXPECT_EQ(registry_.QueryValue(reading, "V", type_, data), kInvalidHandle);
  EXPECT_EQ(registry_.SetDword(writing, "L", 1), kRegSuccess);
  registry_.CloseKey(writing);
  EXPECT_EQ(registry_.SetDword(writing, "L", 1), kInvalidHandle);
  registry_.CloseKey(12345);
}

// A file before and after Language is set to 0x1F in the product's key.
struct WriteRow {
  std::string before;
  std::string after;
};

TEST_F(RegistryTest, WritingChangesTheValueAndNothingElse) {
  const std::string key = kUserKey;
  const std::string other = "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Other]\r\n\"Language\"=dword:7\r\n";
  const std::string set = "\"Language\"=dword:0000001f\r\n";
  const WriteRow rows[] = {
      // in place
      {"REGEDIT4\r\n\r\n" + key +
           "\r\n\"A\"=\"1\"\r\n\"Language\"=dword:00000002\r\n\"B\"=\"2\"\r\n",
       "REGEDIT4\r\n\r\n" + key + "\r\n\"A\"=\"1\"\r\n" + set + "\"B\"=\"2\"\r\n"},
      {"REGEDIT4\n" + key + "\n  \"LANGuage\" = \"text\" ; old\n",
       "REGEDIT4\n" + key + "\n\"LANGuage\"=dword:0000001f\n"},
      {"REGEDIT4\r\n" + key + "\r\n\"Language\"=hex:01,\\\r\n  02,\\\r\n  03\r\n\"B\"=\"2\"\r\n",
       "REGEDIT4\r\n" + key + "\r\n" + set + "\"B\"=\"2\"\r\n"},
      // the one that counts
      {"REGEDIT4\r\n" + key + "\r\n\"Language\"=dword:1\r\n" + key + "\r\n\"Language\"=dword:2\r\n",
       "REGEDIT4\r\n" + key + "\r\n\"Language\"=dword:1\r\n" + key + "\r\n" + set},
      // behind the key's values, before the next key's remark
      {"REGEDIT4\r\n" + key + "\r\n\"A\"=hex:01,\\\r\n  02\r\n\r\n; other\r\n" + other,
       "REGEDIT4\r\n" + key + "\r\n\"A\"=hex:01,\\\r\n  02\r\n" + set + "\r\n; other\r\n" + other},
      {"REGEDIT4\r\n" + key + "\r\n" + other, "REGEDIT4\r\n" + key + "\r\n" + set + other},
      {"REGEDIT4\r\n" + key, "REGEDIT4\r\n" + key + "\r\n" + set},
      {"REGEDIT4\n" + key + "\n\"A\"=\"1\"",
       "REGEDIT4\n" + key + "\n\"A\"=\"1\"\n" + "\"Language\"=dword:0000001f\n"},
      // what means nothing stays as it is
      {"; mine\r\nREGEDIT4\r\nnonsense\x01\r\n" + key +
           "\r\nmore nonsense\r\n\"Language\"=-\r\n"
           "\"Bad\"=dword:xyz\r\n\t; end\r\n",
       "; mine\r\nREGEDIT4\r\nnonsense\x01\r\n" + key +
           "\r\nmore nonsense\r\n\"Language\"=-\r\n"
           "\"Bad\"=dword:xyz\r\n" +
           set + "\t; end\r\n"},
      // a key that stands only through one below it
      {"REGEDIT4\r\n" + key.substr(0, key.size() - 1) + "\\Sub]\r\n\"A\"=\"1\"\r\n",
       "REGEDIT4\r\n" + key.substr(0, key.size() - 1) + "\\Sub]\r\n\"A\"=\"1\"\r\n\r\n" + key +
           "\r\n" + set},
      // in the file's own encoding
      {Wide("Windows Registry Editor Version 5.00\r\n" + key + "\r\n\"A\"=\"\xFC\"\r\n"),
       Wide("Windows Registry Editor Version 5.00\r\n" + key + "\r\n\"A\"=\"\xFC\"\r\n" + set)},
      {"\xEF\xBB\xBFREGEDIT4\r\n" + key + "\r\n\"A\"=\"\xC3\xBC\xFF\"\r\n",
       "\xEF\xBB\xBFREGEDIT4\r\n" + key + "\r\n\"A\"=\"\xC3\xBC\xFF\"\r\n" + set},
  };
  for (const WriteRow& row : rows) {
    Put(row.before);
    EXPECT_EQ(Set(kProduct, "Language", 0x1F), kRegSuccess);
    EXPECT_EQ(Stored(), row.after);
    EXPECT_EQ(Query(kUser, kProduct, "Language"), kRegSuccess);
    EXPECT_EQ(type_, kRegDword);
    EXPECT_EQ(data_, (Bytes{0x1F, 0, 0, 0}));
  }
}

TEST_F(RegistryTest, WritesNamesThatNeedEscapes) {
  Put("REGEDIT4\n" + kUserKey + "\n");
  EXPECT_EQ(Set(kProduct, "a\"b\\", 1), kRegSuccess);
  EXPECT_EQ(Set(kProduct, "", 2), kRegSuccess);
  EXPECT_EQ(Stored(),
            "REGEDIT4\n" + kUserKey + "\n\"a\\\"b\\\\\"=dword:00000001\n@=dword:00000002\n");
  EXPECT_EQ(Query(kUser, kProduct, "a\"b\\"), kRegSuccess);
  EXPECT_EQ(Set(kProduct, "a\nb", 1), 87);
}

TEST_F(RegistryTest, CreatesAKeyInAFileOfItsOwn) {
  const std::string file = folder_ / "not/yet/registry.reg";
  PosixRegistry registry(file);
  RegistryKey key = 0;
  EXPECT_EQ(registry.OpenKey(kUser, kProduct, kRegKeySetValue, key), kRegFileNotFound);
  ASSERT_EQ(registry.CreateKey(kUser, kProduct, kRegKeyWrite, key), kRegSuccess);
  EXPECT_EQ(registry.SetDword(key, "Language", 2), kRegSuccess);
  EXPECT_EQ(ReadFile(file), "REGEDIT4\r\n\r\n" + kUserKey + "\r\n\"Language\"=dword:00000002\r\n");
}

TEST_F(RegistryTest, CreatesAKeyBehindTheOthersAndOnlyOnce) {
  Put("REGEDIT4\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Other]\n\"A\"=\"1\"");
  EXPECT_EQ(Create(kUser, kProduct), kRegSuccess);
  const std::string after =
      "REGEDIT4\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Other]\n\"A\"=\"1\"\n\n" + kUserKey + "\n";
  EXPECT_EQ(Stored(), after);
  EXPECT_EQ(Create(kUser, "software\\norvick\\NORVICK LORIMET\\"), kRegSuccess);
  EXPECT_EQ(Stored(), after);
  EXPECT_EQ(Create(kUser, "SOFTWARE\\a\nb"), kRegBadKey);
  EXPECT_EQ(Stored(), after);
}

TEST_F(RegistryTest, DoesNotOverwriteWhatItCannotRead) {
  Put("my shopping list\n");
  EXPECT_EQ(Set(kProduct, "Language", 1), kRegFileNotFound);
  EXPECT_EQ(Create(kUser, kProduct), kRegAccessDenied);
  EXPECT_EQ(Stored(), "my shopping list\n");
  Put("");
  EXPECT_EQ(Create(kUser, kProduct), kRegSuccess);
}

TEST_F(RegistryTest, KeepsTheFilesRightsAndALinkToIt) {
  const std::string real = folder_ / "real.reg";
  WriteFile(real, "REGEDIT4\n" + kUserKey + "\n");
  ASSERT_EQ(chmod(real.c_str(), 0640), 0);
  std::filesystem::create_symlink(real, file_);
  EXPECT_EQ(Set(kProduct, "Language", 1), kRegSuccess);
  EXPECT_TRUE(std::filesystem::is_symlink(file_));
  EXPECT_EQ(ReadFile(real), "REGEDIT4\n" + kUserKey + "\n\"Language\"=dword:00000001\n");
  struct stat status {};
  ASSERT_EQ(stat(real.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0640U);
}

TEST_F(RegistryTest, AWriteThatFailsLeavesTheOldFileWhole) {
  const std::string before =
      "REGEDIT4\n" + kUserKey + "\n\"A\"=\"" + std::string(9000, 'x') + "\"\n";
  Put(before);
  // A disk with room for a part of the file.
  rlimit old{};
  getrlimit(RLIMIT_FSIZE, &old);
  auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{4096, old.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  const std::int32_t status = Set(kProduct, "Language", 1);
  setrlimit(RLIMIT_FSIZE, &old);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(status, kRegAccessDenied);
  EXPECT_EQ(Stored(), before);
  EXPECT_EQ(FilesInFolder(), 1U) << "a temporary file was left";
  EXPECT_EQ(Set(kProduct, "Language", 1), kRegSuccess);
  EXPECT_EQ(Stored(), before + "\"Language\"=dword:00000001\n");
}

TEST_F(RegistryTest, AFaultOfTheDiskLeavesTheOldFileWhole) {
  const std::string before = "REGEDIT4\n" + kUserKey + "\n\"A\"=\"1\"\n";
  Put(before);
  for (const FileCall call : {FileCall::kWrite, FileCall::kSync, FileCall::kRename}) {
    PosixRegistry registry(file_, FailingCalls(call, EIO));
    EXPECT_EQ(SetIn(registry, kProduct, "Language", 1), kRegAccessDenied);
    EXPECT_EQ(Stored(), before);
    EXPECT_EQ(FilesInFolder(), 1U) << "a temporary file was left";
  }
  PosixRegistry unreadable(file_, FailingCalls(FileCall::kRead, EIO));
  RegistryKey key = 0;
  EXPECT_EQ(unreadable.OpenKey(kUser, kProduct, kRegKeyRead, key), kRegFileNotFound);
  EXPECT_EQ(unreadable.CreateKey(kUser, kProduct, kRegKeyWrite, key), kRegAccessDenied);
  EXPECT_EQ(Stored(), before);
}

TEST_F(RegistryTest, ShortAndInterruptedCallsLoseNothing) {
  const std::string before =
      "REGEDIT4\n" + kUserKey + "\n\"A\"=\"" + std::string(500, 'x') + "\"\n";
  Put(before);
  PosixRegistry registry(file_, StutteringCalls());
  EXPECT_EQ(SetIn(registry, kProduct, "Language", 2), kRegSuccess);
  EXPECT_EQ(Stored(), before + "\"Language\"=dword:00000002\n");
}

TEST_F(RegistryTest, AShareThatRefusesRightsAndOwnersTakesTheSetting) {
  Put("REGEDIT4\n" + kUserKey + "\n");
  PosixRegistry share(file_, ShareCalls());
  EXPECT_EQ(SetIn(share, kProduct, "Language", 2), kRegSuccess);
  EXPECT_EQ(Query(kUser, kProduct, "Language"), kRegSuccess);
  EXPECT_EQ(data_, (Bytes{2, 0, 0, 0}));
}

TEST_F(RegistryTest, ANewFileIsForThisUserAlone) {
  EXPECT_EQ(Create(kUser, kProduct), kRegSuccess);
  struct stat status = {};
  ASSERT_EQ(stat(file_.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST_F(RegistryTest, AFolderThatMayNotBeWrittenIsAccessDenied) {
  Put("REGEDIT4\n" + kUserKey + "\n");
  ASSERT_EQ(chmod(file_.c_str(), 0644), 0);
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0555), 0);
  const OrdinaryUser user;
  EXPECT_EQ(Set(kProduct, "Language", 2), kRegAccessDenied);
  EXPECT_EQ(Stored(), "REGEDIT4\n" + kUserKey + "\n");
}

TEST_F(RegistryTest, AReaderNeverSeesHalfAFileHoweverTheWriterEnds) {
  const std::string tail = "\"Z\"=\"" + std::string(20000, 'z') + "\"\n";
  Put("REGEDIT4\n" + kUserKey + "\n\"Language\"=dword:00000000\n" + tail);
  const pid_t writer = fork();
  if (writer == 0) {
    for (std::uint32_t i = 0;; ++i) {
      Set(kProduct, "Language", i);
    }
  }
  int changes = 0;
  int broken = 0;
  Bytes last;
  for (int reads = 0; reads < 200'000 && changes < 50 && broken == 0; ++reads) {
    const bool whole = Stored().ends_with(tail);
    const bool found = Query(kUser, kProduct, "Language") == kRegSuccess;
    broken += whole && found ? 0 : 1;
    changes += data_ != last ? 1 : 0;
    last = data_;
  }
  kill(writer, SIGKILL);
  waitpid(writer, nullptr, 0);
  EXPECT_EQ(broken, 0);
  EXPECT_EQ(changes, 50);
  EXPECT_TRUE(Stored().ends_with(tail));
  EXPECT_EQ(Set(kProduct, "Language", 3), kRegSuccess);
}

TEST(RegistryPlace, IsInTheUsersConfiguration) {
  ScratchEnvironment environment;
  environment.Set("HOME", "/home/somebody");
  environment.Set("XDG_CONFIG_HOME", "/elsewhere/config/");
  EXPECT_EQ(PosixRegistry::DefaultFile(), "/elsewhere/config/norvick-lorimet/registry.reg");
  environment.Set("XDG_CONFIG_HOME", "relative");
  EXPECT_EQ(PosixRegistry::DefaultFile(), "/home/somebody/.config/norvick-lorimet/registry.reg");
  environment.Set("XDG_CONFIG_HOME", std::nullopt);
  EXPECT_EQ(PosixRegistry::DefaultFile(), "/home/somebody/.config/norvick-lorimet/registry.reg");
}

}  // namespace
}  // namespace lorimet
