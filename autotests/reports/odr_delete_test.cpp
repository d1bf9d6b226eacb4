// The screen that erases recorder data.
#include <gtest/gtest.h>

#include "autotests/reports/recorder_fixture.h"

namespace lorimet::testing_support {
namespace {

class OdrDeleteTest : public RecorderTest {
 protected:
  frmODRDelete& Screen() { return program.reports->odr_delete; }
};

const std::vector<Calls> kDeletes = {
    {"DeleteODRData 03", "DeleteODRData 05", "DeleteODRData 08"},
    {"DeleteODRData 06"},
    {"DeleteODRData 07"},
};

TEST_F(OdrDeleteTest, EachClickDeletesAtOnceAndUntickingDeletesAgain) {
  Screen().Load();
  ExpectCalls({});
  for (const int box : {0, 1, 2}) {
    for (const bool ticked : {true, false, true}) {
      Screen().chkODRDel[box].UserClick();
      EXPECT_EQ(Screen().chkODRDel[box].Value(), ticked);
      ExpectCalls(kDeletes[static_cast<std::size_t>(box)]);
    }
  }
}

TEST_F(OdrDeleteTest, AFailedDeleteIsTriedOnceAndToldToNobody) {
  link.always["DeleteODRData"] = 0x10;
  Screen().Load();
  for (const int box : {0, 1, 2}) {
    Screen().chkODRDel[box].UserClick();
    ExpectCalls(kDeletes[static_cast<std::size_t>(box)]);
  }
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{});
}

TEST_F(OdrDeleteTest, ItsCommandIsGreyAndShowsItModallyAllTheSame) {
  EXPECT_FALSE(Main().mnuUtility[5].Enabled());
  desktop.OnModal("frmODRDelete", [&](Form& form) {
    EXPECT_EQ(form.Caption(), "ODR Delete");
    Screen().cmdClose.UserClick();
  });
  Main().mnuUtility[5].UserClick();
  EXPECT_FALSE(Screen().Loaded());
  ExpectCalls({});
}

TEST_F(OdrDeleteTest, TicksAreForgottenWithTheScreen) {
  Screen().Load();
  Screen().chkODRDel[1].UserClick();
  Screen().cmdClose.UserClick();
  Screen().Load();
  EXPECT_FALSE(Screen().chkODRDel[1].Value());
  ExpectCalls(kDeletes[1]);
}

}  // namespace
}  // namespace lorimet::testing_support
