#include "faults/repair_instructions.h"
#include "autotests/places.h"

#include "faults/fault_catalogue.h"
#include "platform/desktop.h"
#include "platform/forms.h"
#include "platform/runtime_error.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace lorimet {
namespace {

constexpr const char* kNotAvailable = "Repair instruction not available for the current fault.";

struct ListedInstruction {
  int catalogue_rows;
  std::string text;
};

// One instruction a line: index, number of faults that point at it, text; the line "other" stands
// for every index that is not listed.
std::map<int, ListedInstruction> ReadListing() {
  std::ifstream file(InSource("autotests/faults/repair_listing.txt"));
  std::map<int, ListedInstruction> instructions;
  std::string line;
  while (std::getline(file, line)) {
    std::istringstream cells(line);
    std::string index, count, text;
    std::getline(cells, index, '\t');
    std::getline(cells, count, '\t');
    std::getline(cells, text);
    if (index == "other")
      EXPECT_EQ(text, kNotAvailable);
    else
      instructions[std::stoi(index)] = {std::stoi(count), text};
  }
  return instructions;
}

// A desktop with no windows.
class NoDesktop : public Desktop {
 public:
  std::unique_ptr<FormView> CreateView(Form&) override { return std::make_unique<NoView>(); }
  void RunModal(Form&) override {}
  void DoEvents() override {}
  void Repaint() override {}
  void Beep() override {}
  int ScreenWidth() const override { return 0; }
  int ScreenHeight() const override { return 0; }
  BoxButton ShowMessageBox(const MessageBox&) override { return kBoxOk; }
  std::optional<std::string> ShowFileDialog(const FileDialog&) override { return {}; }
  std::optional<int> ChooseFromList(const std::string&, const std::vector<std::string>&,
                                    int) override {
    return {};
  }

 private:
  class NoView : public FormView {
   public:
    void Changed(Control*) override {}
    void Show(bool, Form*) override {}
    void Hide() override {}
    void SetFocus(Control&) override {}
    void Flush() override {}
  };
};

class ShowRepairInstructionTest : public testing::Test {
 protected:
  ShowRepairInstructionTest() {
    txtRepair.SetText("before");
    txtRepair.on_change = [this] { shown_.push_back(txtRepair.Text()); };
  }
  void Show(int index) {
    ShowRepairInstruction(static_cast<std::int16_t>(index), txtRepair,
                          [this](const std::string& text) {
                            asked_.push_back(text);
                            return prefix_ + text;
                          });
  }

  NoDesktop desktop_;
  Form form_{desktop_, "frmFaults"};
  TextBox txtRepair{form_, "txtRepair"};
  std::string prefix_;
  std::vector<std::string> asked_;
  std::vector<std::string> shown_;
};

TEST(RepairInstruction, EveryIndexGivesTheListedTextOrTheSentence) {
  const auto listing = ReadListing();
  ASSERT_EQ(listing.size(), 42u);
  for (int index = std::numeric_limits<std::int16_t>::min();
       index <= std::numeric_limits<std::int16_t>::max(); ++index) {
    const auto row = listing.find(index);
    const std::string expected = row == listing.end() ? kNotAvailable : row->second.text;
    ASSERT_EQ(RepairInstruction(static_cast<std::int16_t>(index)), expected) << index;
  }
}

TEST(RepairInstruction, HundredIsKnownAndEmptyAndZeroIsUnknown) {
  EXPECT_STREQ(RepairInstruction(100), "");
  EXPECT_STREQ(RepairInstruction(0), kNotAvailable);
  EXPECT_STREQ(RepairInstruction(40), kNotAvailable);
}

TEST(RepairInstruction, TextsThatDifferInTheirBlanksOnlyStayDifferent) {
  EXPECT_STREQ(RepairInstruction(3), RepairInstruction(32));
  EXPECT_STRNE(RepairInstruction(21), RepairInstruction(22));
  EXPECT_TRUE(std::string(RepairInstruction(27)).ends_with("right/left > ."));
}

TEST(RepairInstruction, TheCataloguePointsAtEachIndexAsOftenAsListed) {
  std::map<int, int> counts;
  for (const FaultCatalogueRow& row : kFaultCatalogue) ++counts[row.repair_index];
  std::set<int> unused;
  for (const auto& [index, instruction] : ReadListing()) {
    EXPECT_EQ(counts[index], instruction.catalogue_rows) << index;
    if (instruction.catalogue_rows == 0) unused.insert(index);
    counts.erase(index);
  }
  EXPECT_TRUE(counts.empty()) << "an index of the catalogue has no instruction";
  EXPECT_EQ(unused, (std::set<int>{13, 15, 21, 22, 23, 35, 36, 37, 38, 58, 100}));
}

TEST_F(ShowRepairInstructionTest, EmptiesTheBoxAndThenShowsTheText) {
  Show(6);
  EXPECT_EQ(shown_, (std::vector<std::string>{"", "Switch ignition off for 5 seconds."}));
}

TEST_F(ShowRepairInstructionTest, UnknownIndexShowsTheSentence) {
  Show(0);
  EXPECT_EQ(txtRepair.Text(), kNotAvailable);
}

TEST_F(ShowRepairInstructionTest, HundredLeavesTheBoxEmptyAndTranslatesNothing) {
  prefix_ = "fr:";
  Show(100);
  EXPECT_EQ(txtRepair.Text(), "");
  EXPECT_EQ(shown_, (std::vector<std::string>{""}));
  EXPECT_TRUE(asked_.empty());
}

TEST_F(ShowRepairInstructionTest, TextsAreTranslatedAtEveryCall) {
  Show(16);
  EXPECT_EQ(txtRepair.Text(), "Turn ignition off for 5 seconds.");
  prefix_ = "fr:";
  Show(16);
  EXPECT_EQ(txtRepair.Text(), "fr:Turn ignition off for 5 seconds.");
  Show(-1);
  EXPECT_EQ(txtRepair.Text(), std::string("fr:") + kNotAvailable);
  EXPECT_EQ(asked_.size(), 3u);
}

TEST_F(ShowRepairInstructionTest, AFailedTranslationLeavesTheBoxEmpty) {
  EXPECT_THROW(ShowRepairInstruction(6, txtRepair,
                                     [](const std::string&) -> std::string {
                                       throw RuntimeError(ErrorNumber::kDeviceIoError);
                                     }),
               RuntimeError);
  EXPECT_EQ(txtRepair.Text(), "");
}

}  // namespace
}  // namespace lorimet
