#include "platform/shared_library.h"

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <link.h>

#include <cstdlib>

#include "adapters/posix/posix_shared_library.h"
#include "autotests/platform/native_fixture.h"

namespace lorimet {
namespace {

// The file of a library that every program on this system can load.
std::string LibraryFile() {
  void* handle = dlopen("libm.so.6", RTLD_NOW | RTLD_LOCAL);
  Dl_info info{};
  std::string file =
      handle != nullptr && dladdr(dlsym(handle, "cbrt"), &info) != 0 ? info.dli_fname : "";
  dlclose(handle);
  return file;
}

TEST(SharedLibraryTest, FindsTheOperationsOfALibraryAndNoOthers) {
  PosixLibraryLoader loader;
  std::string error;
  const std::unique_ptr<SharedLibrary> library = loader.Load(LibraryFile(), error);
  ASSERT_NE(library, nullptr) << error;
  EXPECT_EQ(error, "");
  auto* const cbrt = reinterpret_cast<double (*)(double)>(library->Symbol("cbrt"));
  ASSERT_NE(cbrt, nullptr);
  EXPECT_DOUBLE_EQ(cbrt(27.0), 3.0);
  EXPECT_EQ(library->Symbol("Trailer_ABS_KWP_Password"), nullptr);
  EXPECT_EQ(library->Symbol("CBRT"), nullptr);
}

// A library of the system that nobody has loaded.
constexpr char kIdle[] = "libanl.so.1";

std::string FileOfIdleLibrary() {
  void* handle = dlopen(kIdle, RTLD_NOW | RTLD_LOCAL);
  link_map* map = nullptr;
  if (handle == nullptr || dlinfo(handle, RTLD_DI_LINKMAP, &map) != 0) return "";
  const std::string file = map->l_name;
  dlclose(handle);
  return file;
}

bool IsIdleLibraryLoaded() {
  void* handle = dlopen(kIdle, RTLD_NOW | RTLD_NOLOAD);
  if (handle != nullptr) dlclose(handle);
  return handle != nullptr;
}

TEST(SharedLibraryTest, ALibraryStaysLoadedOnlyWhereItIsKept) {
  const std::string file = FileOfIdleLibrary();
  ASSERT_FALSE(IsIdleLibraryLoaded());
  PosixLibraryLoader loader;
  std::string error;
  ASSERT_NE(loader.Load(file, error), nullptr) << error;
  EXPECT_FALSE(IsIdleLibraryLoaded());
  loader.Load(file, error)->Keep();
  EXPECT_TRUE(IsIdleLibraryLoaded());
}

TEST(SharedLibraryTest, AFileThatCannotBeLoadedIsToldInWords) {
  const ScratchFolder folder;
  WriteFile(folder / "text.so", "no library\n");
  WriteFile(folder / "empty.so", "");
  PosixLibraryLoader loader;
  for (const char* name : {"missing.so", "text.so", "empty.so"}) {
    std::string error;
    EXPECT_EQ(loader.Load(folder / name, error), nullptr);
    EXPECT_NE(error.find(name), std::string::npos) << error;
  }
}

TEST(SharedLibraryTest, ABareNameIsAFileAndNotLookedForInTheSystem) {
  PosixLibraryLoader loader;
  std::string error;
  EXPECT_EQ(loader.Load("libm.so.6", error), nullptr);
  EXPECT_NE(error, "");
  error.clear();
  EXPECT_EQ(loader.Load("", error), nullptr);
  EXPECT_NE(error, "");
}

TEST(SharedLibraryTest, TheLinkLibraryLiesBesideTheProgramUnlessAnotherIsNamed) {
  ScratchEnvironment environment;
  PosixLibraryLoader loader;
  const std::string beside =
      std::filesystem::read_symlink("/proc/self/exe").parent_path().string() + "/libLorimet32.so";
  environment.Set("LORIMET32", std::nullopt);
  EXPECT_EQ(loader.LinkLibraryPath(), beside);
  environment.Set("LORIMET32", "");
  EXPECT_EQ(loader.LinkLibraryPath(), beside);
  environment.Set("LORIMET32", "/opt/bench/other.so");
  EXPECT_EQ(loader.LinkLibraryPath(), "/opt/bench/other.so");
}

}  // namespace
}  // namespace lorimet
