// The numbered run-time errors and the boxes that report them.
#include "platform/runtime_error.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "adapters/headless/headless_desktop.h"
#include "support/error_report.h"

namespace lorimet {
namespace {

struct Row {
  ErrorNumber error;
  std::int32_t number;
  const char* words;
};

// clang-format off
constexpr Row kRows[] = {
    {ErrorNumber::kOverflow,             6,   "Overflow"},
    {ErrorNumber::kSubscriptOutOfRange,  9,   "Subscript out of range"},
    {ErrorNumber::kTypeMismatch,         13,  "Type mismatch"},
    {ErrorNumber::kBadFileNameOrNumber,  52,  "Bad file name or number"},
    {ErrorNumber::kFileNotFound,         53,  "File not found"},
    {ErrorNumber::kDeviceIoError,        57,  "Device I/O error"},
    {ErrorNumber::kDiskFull,             61,  "Disk full"},
    {ErrorNumber::kPermissionDenied,     70,  "Permission denied"},
    {ErrorNumber::kPathFileAccessError,  75,  "Path/File access error"},
    {ErrorNumber::kPathNotFound,         76,  "Path not found"},
    {ErrorNumber::kPrinterError,         482, "Printer error"},
};
// clang-format on

TEST(RuntimeError, HasItsCustomaryNumberAndWords) {
  for (const Row& row : kRows) {
    const RuntimeError error(row.error);
    EXPECT_EQ(error.Number(), row.number);
    EXPECT_EQ(error.Description(), row.words);
    EXPECT_STREQ(error.what(), row.words);
    EXPECT_EQ(ErrorDescription(row.number), row.words);
  }
}

TEST(RuntimeError, HasGeneralWordsForAnyOtherNumber) {
  for (const std::int32_t number : {0, -1, 5, 7, 1000, kObjectError})
    EXPECT_EQ(ErrorDescription(number), "Application-defined or object-defined error") << number;
}

TEST(RuntimeError, KeepsTheWordsThatItIsGiven) {
  const RuntimeError error(53, "manual.txt is not there");
  EXPECT_EQ(error.Number(), 53);
  EXPECT_EQ(error.Description(), "manual.txt is not there");
}

class ErrorReportTest : public testing::Test {
 protected:
  static MessageBox Box(const std::string& text, const std::string& title, BoxIcon icon) {
    MessageBox box;
    box.text = text;
    box.title = title;
    box.icon = icon;
    return box;
  }
  VirtualClock clock;
  HeadlessDesktop desktop{clock};
};

TEST_F(ErrorReportTest, ShowsTheErrorOfAProcedureOnceAndRaisesTheObjectError) {
  const auto procedure = [&] {
    return WithErrorReport(desktop, []() -> int { throw RuntimeError(ErrorNumber::kOverflow); });
  };
  const auto outer = [&] { return WithErrorReport(desktop, procedure); };
  try {
    outer();
    FAIL() << "the error was not raised on";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), -2147221504);
  }
  EXPECT_EQ(desktop.TakeBoxes(), std::vector{Box("6:  Overflow", "Error", BoxIcon::kNone)});
}

TEST_F(ErrorReportTest, GivesTheResultOfAProcedureThatSucceeds) {
  EXPECT_EQ(WithErrorReport(desktop, [] { return 42; }), 42);
  EXPECT_TRUE(desktop.TakeBoxes().empty());
}

TEST_F(ErrorReportTest, WordsTheErrorThatNobodyHandles) {
  EXPECT_EQ(UnhandledErrorBox(RuntimeError(ErrorNumber::kOverflow)),
            Box("Run-time error '6':\r\n\r\nOverflow", "Norvick Lorimet", BoxIcon::kCritical));
}

}  // namespace
}  // namespace lorimet
