// The tour fails loudly: each of these trailers has something that one of its steps does not
// survive.
#include <gtest/gtest.h>
#include <stdio.h>
#include <sys/wait.h>

#include <filesystem>
#include <string>

#include "autotests/common/scratch_folder.h"
#include "autotests/places.h"
#include "autotests/platform/native_fixture.h"

namespace lorimet {
namespace {

class Tour : public testing::Test {
 protected:
  // Runs the tour to its end with words as a shell takes them.
  void Go(const std::string& words, const std::string& library = InBuild("libLorimet32.so")) {
    const std::string command = "QT_QPA_PLATFORM=offscreen LORIMET32='" + library + "' '" +
                                InBuild("lorimet_tour") + "' " + words + " 2>&1";
    FILE* pipe = popen(command.c_str(), "r");
    ASSERT_NE(pipe, nullptr);
    char bytes[4096];
    while (fgets(bytes, sizeof bytes, pipe) != nullptr) told += bytes;
    const int ended = pclose(pipe);
    status = WIFEXITED(ended) ? WEXITSTATUS(ended) : -1;
  }
  testing::AssertionResult Tells(const std::string& words) const {
    if (told.find(words) != std::string::npos) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "it says nothing of \"" << words << "\":\n" << told;
  }
  std::string Page() const { return ReadFile(album / "index.html"); }
  std::string Quoted() const { return "'" + album.Path() + "'"; }

  ScratchFolder album;
  std::string told;
  int status = -1;
};

TEST_F(Tour, FailsWhenWhatItWaitsForNeverComes) {
  Go(Quoted() + " en --trailer 'adapter off'");
  EXPECT_EQ(status, 1);
  EXPECT_TRUE(
      Tells("The tour cannot go on: it waits for what frmZeltMain.txtOdom should show, and "
            "there stands frmRP1210Err, frmZeltMain"));
  EXPECT_NE(Page().find("It failed: The tour cannot go on"), std::string::npos) << Page();
}

TEST_F(Tour, FailsAtTheStepThatTheEcuRefuses) {
  Go(Quoted() + " fr --trailer 'failure refuse operation=ClearAllFaults'");
  EXPECT_EQ(status, 1);
  EXPECT_TRUE(Tells("Four faults read, with their repair instructions"));
  EXPECT_TRUE(Tells("it waits for an empty list, and there stands frmFaults"));
  EXPECT_FALSE(Tells("All faults cleared"));
  EXPECT_NE(Page().find("05-faults.png"), std::string::npos) << "what it reached is shown";
}

TEST_F(Tour, FailsWhenAPictureShowsAnError) {
  Go(Quoted() + " es --trailer 'after 2 cable out'");
  EXPECT_EQ(status, 1);
  EXPECT_TRUE(Tells("01-main.png shows frmZeltMain in an error state: frmErr is in front of it"));
  EXPECT_NE(Page().find("in Spanish. It failed: 01-main.png"), std::string::npos) << Page();
}

TEST_F(Tour, FailsWithoutASimulatedTrailer) {
  Go(Quoted(), "/nowhere.so");
  EXPECT_EQ(status, 1);
  EXPECT_TRUE(Tells("/nowhere.so"));
}

TEST_F(Tour, DoesNotGuessWhatItsWordsMean) {
  for (const std::string& words :
       {std::string(), Quoted() + " de", Quoted() + " --fast", Quoted() + " --trailer"}) {
    told.clear();
    Go(words);
    EXPECT_EQ(status, 2) << words;
    EXPECT_TRUE(Tells("lorimet_tour FOLDER [en|fr|es]"));
  }
  EXPECT_TRUE(std::filesystem::is_empty(album.Path()));
}

}  // namespace
}  // namespace lorimet
