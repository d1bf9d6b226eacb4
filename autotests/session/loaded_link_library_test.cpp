#include "session/loaded_link_library.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace lorimet {
namespace {

int* g_calls = nullptr;  // the operations below have no other way to be asked

std::int32_t g_answer = 42;

std::int32_t LORIMET32_CALL Answer() {
  ++*g_calls;
  return g_answer;
}

// Every operation that the contract lists, written down once more.
const std::set<std::string> kOperations = {
    "Connect",
    "Disconnect",
    "GetErrorText",
    "ResetECU",
    "ClearAllFaults",
    "FaultLock",
    "FaultGetCount",
    "FaultGetData",
    "FaultUnlock",
    "BusMonitorOpen",
    "BusMonitorClose",
    "BusMonitorGetData",
    "BusMonitorStartRecord",
    "BusMonitorStopRecord",
    "Trailer_ABS_QOR_ReadStaticData",
    "Trailer_ABS_QOR_DeleteODRData",
    "Trailer_ABS_KWP_StartSession",
    "Trailer_ABS_KWP_StopSession",
    "Trailer_ABS_KWP_Password",
    "Trailer_ABS_KWP_SwitchDiagMode",
    "Trailer_ABS_KWP_StartRoutineByLocId",
    "Trailer_ABS_KWP_WriteMemoryByLocId",
    "Trailer_ABS_KWP_WriteMemoryByAddress",
    "Trailer_ABS_KWP_ReadMemoryByAddress",
    "Trailer_ABS_KWP_IOControlByLocId",
    "Trailer_OVG_ReadDataByLocId",
    "Trailer_OVG_UploadData",
    "Trailer_OVG_UploadODRData",
    "Trailer_OVG_ExportODRData",
    "Trailer_OVG_StopLightActivation",
};

// A library whose operations without arguments can be called; the others are only looked for.
class FakeLoader : public LibraryLoader {
 public:
  class Library : public SharedLibrary {
   public:
    explicit Library(FakeLoader& loader) : loader_(loader) { ++loader_.open; }
    ~Library() override { --loader_.open; }
    void Keep() override { ++loader_.kept; }
    void* Symbol(const std::string& name) override {
      loader_.asked.insert(name);
      return loader_.missing.contains(name) ? nullptr : reinterpret_cast<void*>(&Answer);
    }

   private:
    FakeLoader& loader_;
  };

  std::string LinkLibraryPath() override { return "/program/libLorimet32.so"; }
  std::unique_ptr<SharedLibrary> Load(const std::string& path, std::string& error) override {
    loaded.push_back(path);
    if (!there) {
      error = "no such file";
      return nullptr;
    }
    return std::make_unique<Library>(*this);
  }

  bool there = true;
  std::set<std::string> missing;
  std::set<std::string> asked;
  std::vector<std::string> loaded;
  int open = 0;
  int kept = 0;
};

class LoadedLinkLibraryTest : public testing::Test {
 protected:
  LoadedLinkLibraryTest() { g_calls = &calls; }
  std::int32_t Connect() {
    return library.Connect(nullptr, 0, nullptr, 0, 0, nullptr, nullptr, nullptr, nullptr, nullptr,
                           nullptr, nullptr, nullptr);
  }
  std::string ErrorText(std::int32_t length = 1024) {
    std::vector<char> buffer(1025, ' ');
    EXPECT_EQ(library.GetErrorText(LoadedLinkLibrary::kLibraryMissing, buffer.data(), length), 0);
    std::string text(buffer.begin(), buffer.end());
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
  }

  int calls = 0;
  FakeLoader loader;
  LoadedLinkLibrary library{loader};
};

TEST_F(LoadedLinkLibraryTest, IsLoadedAtTheFirstConnectAndKept) {
  EXPECT_TRUE(loader.loaded.empty());
  EXPECT_EQ(Connect(), 42);
  EXPECT_EQ(Connect(), 42);
  EXPECT_EQ(loader.loaded, std::vector<std::string>{"/program/libLorimet32.so"});
  EXPECT_EQ(loader.open, 1);
  EXPECT_EQ(loader.kept, 1);
  EXPECT_EQ(loader.asked, kOperations);
  EXPECT_EQ(library.Disconnect(), 42);
  EXPECT_EQ(library.Trailer_ABS_KWP_StopSession(), 42);
  EXPECT_EQ(calls, 4);
  EXPECT_EQ(loader.open, 1);
}

TEST_F(LoadedLinkLibraryTest, AMissingFileIsAConnectErrorWithItsReason) {
  loader.there = false;
  EXPECT_EQ(Connect(), 128);
  EXPECT_EQ(ErrorText(),
            "The link library /program/libLorimet32.so cannot be loaded: no such file");
  EXPECT_EQ(ErrorText(8), "The link");  // cut at the buffer's length
}

TEST_F(LoadedLinkLibraryTest, EveryMissingOperationIsNamedAndNoneIsUsed) {
  loader.missing = {"ResetECU", "Trailer_OVG_UploadData"};
  EXPECT_EQ(Connect(), 128);
  EXPECT_EQ(ErrorText(),
            "The link library /program/libLorimet32.so lacks the operations ResetECU, "
            "Trailer_OVG_UploadData");
  EXPECT_EQ(library.FaultLock(), -1);
  EXPECT_EQ(calls, 0);
  EXPECT_EQ(loader.open, 0);
  EXPECT_EQ(loader.kept, 0);
}

TEST_F(LoadedLinkLibraryTest, MayRunFromAConnectToADisconnectThatSucceeds) {
  loader.there = false;
  EXPECT_EQ(Connect(), 128);
  EXPECT_FALSE(library.MayStillRun());
  loader.there = true;
  EXPECT_EQ(Connect(), 42);  // which is all the same whether it succeeded
  EXPECT_TRUE(library.MayStillRun());
  EXPECT_EQ(library.Disconnect(), 42);
  EXPECT_TRUE(library.MayStillRun());
  g_answer = 0;
  EXPECT_EQ(library.Disconnect(), 0);
  EXPECT_FALSE(library.MayStillRun());
  g_answer = 42;
}

TEST_F(LoadedLinkLibraryTest, EachSingleMissingOperationIsEnoughToRefuse) {
  for (const std::string& name : kOperations) {
    loader.missing = {name};
    EXPECT_EQ(Connect(), 128) << name;
    EXPECT_TRUE(ErrorText().ends_with("lacks the operations " + name)) << ErrorText();
  }
  EXPECT_EQ(calls, 0);
}

TEST_F(LoadedLinkLibraryTest, BeforeItIsLoadedEveryOtherOperationFails) {
  EXPECT_EQ(library.Disconnect(), -1);
  EXPECT_EQ(library.Trailer_ABS_KWP_StopSession(), -1);
  EXPECT_EQ(library.FaultGetCount(), -1);
  EXPECT_EQ(ErrorText(), "");
  EXPECT_TRUE(loader.loaded.empty());
}

TEST_F(LoadedLinkLibraryTest, TheNextConnectTriesAnew) {
  loader.there = false;
  EXPECT_EQ(Connect(), 128);
  loader.there = true;
  EXPECT_EQ(Connect(), 42);
  EXPECT_EQ(library.Disconnect(), 42);
}

}  // namespace
}  // namespace lorimet
