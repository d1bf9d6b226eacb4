// The profile file of the tests: the same answers and bytes as on the disk, and failures on order.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "adapters/headless/headless_files.h"
#include "adapters/posix/posix_profile_file.h"
#include "autotests/platform/native_fixture.h"

namespace lorimet {
namespace {

constexpr std::size_t kRoom = 1024;

TEST(MemoryProfileFileTest, AnswersAndWritesAsTheDiskDoes) {
  const ScratchFolder folder;
  const std::string path = folder / "trailer.ecu";
  const std::string before = ";c\r\n[A]\r\n k = 'v'\r\n\r\n[b]\nm=1\n";
  WriteFile(path, before);
  PosixProfileFile disk;
  MemoryProfileFile memory;
  memory.files[path] = before;
  for (ProfileFile* file : {static_cast<ProfileFile*>(&disk), static_cast<ProfileFile*>(&memory)}) {
    EXPECT_EQ(file->GetString("a", "K", "d", kRoom, path), "v");
    EXPECT_EQ(file->GetString("a", "none", "d  ", kRoom, path), "d");
    EXPECT_EQ(file->GetString("a", "none", "long", 3, path), "lo");
    EXPECT_EQ(file->GetString("a", "k", "d", 0, path), "");
    EXPECT_TRUE(file->WriteString("a", "k", "2", path));
    EXPECT_TRUE(file->WriteString("a", "new", "3", path));
    EXPECT_TRUE(file->WriteString("c", "k", "4", path));
    EXPECT_EQ(file->GetString("c", "k", "d", kRoom, path), "4");
    EXPECT_TRUE(file->Flush());
    EXPECT_TRUE(file->Flush());
  }
  EXPECT_EQ(memory.files[path], ReadFile(path));
  EXPECT_EQ(memory.files[path], ";c\r\n[A]\r\nk=2\r\nnew=3\r\n\r\n[b]\nm=1\n[c]\r\nk=4\r\n");
}

TEST(MemoryProfileFileTest, WritesAreInTheFileAfterTheFlush) {
  MemoryProfileFile file;
  EXPECT_TRUE(file.WriteString("a", "k", "1", "/x"));
  EXPECT_EQ(file.GetString("a", "k", "d", kRoom, "/x"), "1");
  EXPECT_EQ(file.files.size(), 0U);
  EXPECT_TRUE(file.Flush());
  EXPECT_EQ(file.files["/x"], "[a]\r\nk=1\r\n");
}

TEST(MemoryProfileFileTest, FailsOnOrder) {
  struct Row {
    FileTrouble trouble;
    bool writes;
    bool reads;
    std::optional<ErrorNumber> error;
  };
  constexpr Row kRows[] = {
      {FileTrouble::kNone, true, true, {}},
      {FileTrouble::kFull, true, true, ErrorNumber::kDiskFull},
      {FileTrouble::kDeviceFails, true, false, ErrorNumber::kDeviceIoError},
      {FileTrouble::kLocked, false, false, ErrorNumber::kPermissionDenied},
      {FileTrouble::kNoPermission, false, false, ErrorNumber::kPathFileAccessError},
      {FileTrouble::kNoFolder, false, false, ErrorNumber::kPathNotFound},
  };
  for (const Row& row : kRows) {
    MemoryProfileFile file;
    file.files["/x"] = "[a]\r\nk=1\r\n";
    file.trouble = row.trouble;
    EXPECT_EQ(file.GetString("a", "k", "d", kRoom, "/x"), row.reads ? "1" : "d");
    EXPECT_EQ(file.WriteString("a", "k", "2", "/x"), row.writes);
    EXPECT_EQ(file.Flush(), !row.writes || !row.error);
    EXPECT_EQ(row.error.value_or(file.LastError()), file.LastError());
    file.trouble = FileTrouble::kNone;
    EXPECT_EQ(file.GetString("a", "k", "d", kRoom, "/x"), row.error ? "1" : "2");
  }
}

}  // namespace
}  // namespace lorimet
