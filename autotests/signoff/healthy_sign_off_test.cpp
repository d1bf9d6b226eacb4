// Healthy trailers, signed off by their operator at the program's own screens.
#include <gtest/gtest.h>

#include "autotests/common/operated_program.h"

namespace lorimet::testing_support {
namespace {

TEST(HealthySignOff, IsDoneByTheOperatorAloneAndEndsInFileAndPage) {
  OperatedProgram stand("configuration 4S/2M\naxles 2");
  stand.SignOff();
  EXPECT_EQ(stand.hand.GivenUp(), 0);
  EXPECT_EQ(stand.Trailer().Get("flag"), "1");
  EXPECT_EQ(stand.text_files.files.size(), 1u);
  ASSERT_EQ(stand.printer.Documents().size(), 1u);
  EXPECT_EQ(stand.printer.Documents()[0].state, RecordingPrinter::State::kEnded);
}

}  // namespace
}  // namespace lorimet::testing_support
