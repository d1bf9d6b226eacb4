// Names of files that come from data.
#include "support/file_names.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/runtime_error.h"

namespace lorimet {
namespace {

// The number of the error that the name raises, 0 for none.
int NumberFor(const std::string& name) {
  try {
    CheckFileName(name);
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(CheckFileName, RefusesEveryDeviceWithAnyExtensionAndInAnyCase) {
  for (const char* device :
       {"CON",  "PRN",  "AUX",  "NUL",  "COM1", "COM2", "COM3", "COM4", "COM5", "COM6", "COM7",
        "COM8", "COM9", "LPT1", "LPT2", "LPT3", "LPT4", "LPT5", "LPT6", "LPT7", "LPT8", "LPT9"}) {
    const std::string name = device;
    std::string small = name;
    for (char& c : small) c = static_cast<char>(c | (c >= 'A' ? 0x20 : 0));
    for (const std::string& spelling :
         {name, small, name + ".txt", name + ".", name + " ", name + " .txt", small + ".a.b"})
      EXPECT_EQ(NumberFor(spelling), 52) << spelling;
    EXPECT_EQ(NumberFor(name + "A"), 0) << name;
    EXPECT_EQ(NumberFor("A" + name), 0) << name;
    EXPECT_EQ(NumberFor("A." + name), 0) << name;
  }
  for (const char* name : {"COM", "COM0", "COM10", "LPT", "LPT0", "CONS", "NULL"})
    EXPECT_EQ(NumberFor(name), 0) << name;
}

TEST(CheckFileName, RefusesWhatLeavesTheFolderOrIsNoName) {
  for (const char* name : {"", " ", ".", "..", "...", ". .", "/", "\\", "a/b", "a\\b", "../a",
                           "C:", "C:a", "a:stream", "a\tb", "a\nb", "a\x1F", "a\x7F"})
    EXPECT_EQ(NumberFor(name), 52) << name;
  EXPECT_EQ(NumberFor(std::string("a\0b", 3)), 52);
}

TEST(CheckFileName, TakesWhatATrailerMayBeCalled) {
  for (const char* name : {"1M9AB1234", "AB 1234", "AB.1234", ".a", "a.", "~", "a\x20z",
                           "Anh\xC3\xA4nger \xE2\x82\xAC", "\"AB\"", "COMMON", "a'b"})
    EXPECT_EQ(NumberFor(name), 0) << name;
}

}  // namespace
}  // namespace lorimet
