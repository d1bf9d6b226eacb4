#include "session/link_library.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "autotests/common/fake_link.h"

namespace lorimet::testing_support {
namespace {

using Calls = std::vector<std::string>;

TEST(LinkCallTest, IsTriedUntilItSucceedsAndFourTimesAtTheMost) {
  struct Row {
    std::vector<std::int32_t> answers;
    int calls;
    std::int32_t result;
  };
  const std::vector<Row> kRows = {
      {{0}, 1, 0},          {{1, 0}, 2, 0},          {{1, 2, 0}, 3, 0},
      {{1, 2, 3, 0}, 4, 0}, {{1, 2, 3, 4, 0}, 4, 4}, {{-1, 65536, 1, -7}, 4, -7},
  };
  for (const Row& row : kRows) {
    int calls = 0;
    const std::int32_t result =
        TryLinkCall([&] { return row.answers[static_cast<std::size_t>(calls++)]; });
    EXPECT_EQ(calls, row.calls);
    EXPECT_EQ(result, row.result);
  }
}

TEST(ParameterAccessTest, StartsItsRoutineWithTheFlagInTheThirdByte) {
  FakeLink link;
  SetParameterAccess(link, 1);
  SetParameterAccess(link, 0);
  EXPECT_EQ(link.TakeCalls(), (Calls{"StartRoutine 42:00000100", "StartRoutine 42:00000000"}));
  link.answers["StartRoutine"] = {1, 1, 1};
  SetParameterAccess(link, 1);
  EXPECT_EQ(link.TakeCalls(), Calls(4, "StartRoutine 42:00000100"));
}

TEST(EcuSessionTest, SendsThePasswordWhateverTheSessionAchieved) {
  FakeLink link;
  link.always["StartSession"] = -1;
  StartEcuSession(link);
  EXPECT_EQ(link.TakeCalls(), (Calls{"StartSession 83", "StartSession 83", "StartSession 83",
                                     "StartSession 83", "Password"}));
}

TEST(LinkErrorTextTest, GivesTheLibraryBlanksWithATerminatorBehindThem) {
  FakeLink link;
  link.error_text = [](std::int32_t code, char* buffer, std::int32_t length) {
    EXPECT_EQ(code, -5);
    EXPECT_EQ(length, 256);
    EXPECT_EQ(std::string(buffer), std::string(256, ' '));
  };
  EXPECT_EQ(LinkErrorText(link, -5, 256), std::string(256, ' '));
  EXPECT_EQ(link.TakeCalls(), Calls{"GetErrorText -5 256"});
}

TEST(LinkErrorTextTest, IsReadAsCodePage1252UpToTheFirstNul) {
  FakeLink link;
  link.error_text = [](std::int32_t, char* buffer, std::int32_t) {
    std::copy_n("\x80 \xFC\0rest", 8, buffer);
  };
  EXPECT_EQ(LinkErrorText(link, 1, 1024), "€ ü");
}

}  // namespace
}  // namespace lorimet::testing_support
