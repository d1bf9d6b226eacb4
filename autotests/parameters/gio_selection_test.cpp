// The GIO page and the recipes of its functions.
#include <algorithm>
#include <fstream>
#include <sstream>

#include "autotests/parameters/wizard_fixture.h"
#include "autotests/places.h"
#include "parameters/block_table.h"
#include "parameters/function_blocks.h"
#include "parameters/gio_functions.h"
#include "parameters/parameters_part.h"

namespace lorimet::testing_support {
namespace {

// One write of a recipe, a line of the listing: item, block, index, operation, value.
struct ListedWrite {
  int item = 0;
  std::string block;
  int index = 0;
  char operation = '=';
  int value = 0;
};

std::vector<ListedWrite> ReadListing() {
  std::ifstream file(InSource("autotests/parameters/gio_recipe_listing.txt"));
  std::vector<ListedWrite> rows;
  ListedWrite row;
  while (file >> row.item >> row.block >> row.index >> row.operation >> row.value)
    rows.push_back(row);
  return rows;
}

ParmBlock& BlockOf(const std::string& name, ParameterImage& image) {
  const auto* const row =
      std::ranges::find_if(kImageBlocks, [&](const auto& entry) { return name == entry.first; });
  return image.*row->second;
}

void Write(const ListedWrite& row, ParameterImage& image) {
  std::uint8_t& byte = BlockOf(row.block, image)(row.index);
  const int value = row.operation == '='   ? row.value
                    : row.operation == '|' ? byte | row.value
                                           : byte & ~row.value;
  byte = static_cast<std::uint8_t>(value);
}

class GioSelectionTest : public WizardFormTest {
 protected:
  GioSelectionTest() { Ecu().bNumModulators.Store(2); }
  frmGIOSelection& Page() { return program.parameters->gio_page; }
  // Ticks a box; a dialog that comes with it is confirmed.
  void Tick(int item) {
    if (item == kGioLiftAxle)
      desktop.OnModal("frmLiftAxlePressures", [&](Form&) { Press(LiftAxle().Command1); });
    if (item == kGioSpecial)
      desktop.OnModal("frmGIOSpecial", [&](Form&) { Press(Special().cmdClose); });
    Page().chkGIO[item].UserClick();
  }
  // Shows the page; presses Next, and closes the page that follows.
  void PassOn() {
    desktop.OnModal("frmGIOSelection", [&](Form&) { Press(Page().cmdNext); });
    desktop.OnModal("frmOVGParm2", [](Form& form) { form.UserClose(); });
    Page().Show(Modality::kModal);
  }
};

TEST_F(GioSelectionTest, TemplateHasTheListedBytesAndNoOthers) {
  std::array<std::uint8_t, ParmBlock::kSize> bytes{};
  bytes.fill(77);
  FillInDefaultFCF(0x3B, bytes);
  const std::map<int, int> kListed = {
      {0, 0x3B}, {3, 255},  {4, 255},  {5, 255},  {6, 255}, {7, 255},
      {8, 255},  {10, 100}, {11, 255}, {47, 255}, {48, 7},
  };
  for (int i = 0; i < ParmBlock::kSize; ++i) {
    const auto listed = kListed.find(i);
    const int other = i >= 51 && i <= 70 ? ' ' : 0;
    EXPECT_EQ(bytes[static_cast<std::size_t>(i)], listed == kListed.end() ? other : listed->second)
        << i;
  }
}

TEST_F(GioSelectionTest, LoadStartsTheFunctionBlocksFromTheTemplate) {
  FillImage();
  const ParameterImage before = Image();
  Page().Load();
  constexpr int kIds[] = {55, 56, 57, 58, 59, 60, 68, 69};
  ParameterImage expected = before;
  for (std::size_t i = 0; i < 8; ++i) {
    ParmBlock& block = expected.*kFunctionBlocks[i];
    FillInDefaultFCF(static_cast<std::uint8_t>(kIds[i]), block.DataArr);
    block.bNumBytes = 111;
  }
  expected.EOL5(83) = 0;
  expected.EOL5(84) = 0;
  expected.EOL3(35) = 3;
  expected.EOL3(36) = 3;
  expected.EOL3(38) = 1;
  EXPECT_EQ(Differences(expected, Image()), Lines{});
  EXPECT_NE(Differences(before, Image()), Lines{});
}

TEST_F(GioSelectionTest, LoadShowsNoBoxChecked) {
  FillImage();
  Page().Load();
  EXPECT_EQ(Page().Caption(), "GIO Selection");
  for (int i = 0; i < kGioFunctionCount; ++i) {
    EXPECT_FALSE(Page().chkGIO[i].Value()) << i;
    EXPECT_EQ(Page().chkGIO[i].Enabled(), i != 7) << i;
  }
  EXPECT_EQ(Page().chkGIO[1].ToolTipText(), "GIO3, single port Y-cable, P/N 310 662 517 0");
  EXPECT_EQ(Page().chkGIO[6].ToolTipText(), "GIO1, single port Y-cable, P/N 310 662 517 0");
  EXPECT_EQ(Page().chkGIO[0].ToolTipText(), "");
}

TEST_F(GioSelectionTest, CaptionsAndToolTipsAreTranslated) {
  Speak(kFrench);
  Page().Load();
  EXPECT_EQ(Page().Caption(), "Sélection GIO");
  EXPECT_EQ(Page().chkGIO[6].Caption(), "Essieu relevable");
  EXPECT_EQ(Page().chkGIO[6].ToolTipText(), "GIO1, câble en Y à un port, réf. 310 662 517 0");
  EXPECT_EQ(Page().chkGIO[1].ToolTipText(), "GIO3, câble en Y à un port, réf. 310 662 517 0");
}

TEST_F(GioSelectionTest, EveryChoiceWritesWhatIsListedInOrder) {
  const std::vector<ListedWrite> listing = ReadListing();
  ASSERT_EQ(listing.size(), 771u);
  FillImage();
  const ParameterImage start = Image();
  for (unsigned bits = 0; bits < 512; ++bits) {
    GioChoice chosen{};
    for (std::size_t i = 0; i < chosen.size(); ++i) chosen[i] = (bits >> i & 1u) != 0;
    ParameterImage expected = start;
    for (int i = 85; i <= 108; ++i) expected.EOL5(i) = 255;
    expected.EOL2(7) = expected.EOL2(8) = 0;
    for (int item = 0; item < kGioFunctionCount; ++item)
      for (const ListedWrite& row : listing)
        if (row.item == item && chosen[static_cast<std::size_t>(item)] != (item == 8))
          Write(row, expected);
    if (chosen[6])
      for (int i = 16; i <= 19; ++i) expected.FCF1(i) = start.FCF1(i);
    if (chosen[1])
      for (std::size_t i = 0; i < 5; ++i) (expected.*kFunctionBlocks[i]).bNumBytes = 111;
    ParameterImage image = start;
    ApplyGioFunctions(chosen, image);
    EXPECT_EQ(Differences(expected, image), Lines{}) << bits;
  }
}

TEST_F(GioSelectionTest, EachBoxStandsForItsFunction) {
  System().Load();
  for (int item = 0; item < kGioFunctionCount; ++item) {
    if (item == kGioDoorAjar) continue;
    Image() = {};
    Page().Load();
    Tick(item);
    ParameterImage expected = Image();
    GioChoice chosen{};
    chosen[static_cast<std::size_t>(item)] = true;
    ApplyGioFunctions(chosen, expected);
    PassOn();
    EXPECT_EQ(Differences(expected, Image()), Lines{}) << item;
    Page().Unload();
  }
}

TEST_F(GioSelectionTest, NoBoxCheckedLeavesTheTemplates) {
  Page().Load();
  const ParameterImage before = Image();
  PassOn();
  for (const BlockName block : kFunctionBlocks) EXPECT_EQ(Image().*block, before.*block);
  EXPECT_EQ(Image().FCF8.bNumBytes, 111);
  EXPECT_EQ(Image().EOL2(5), 176);
  EXPECT_EQ(Image().EOL5(108), 255);
}

TEST_F(GioSelectionTest, BothTireInflationsStandTogetherInBlocksOfTheirOwn) {
  GioChoice chosen{};
  chosen[0] = chosen[5] = true;
  ApplyGioFunctions(chosen, Image());
  EXPECT_EQ(Image().FCF1(47), 41);  // of item 5
  EXPECT_EQ(Image().FCF8(3), 118);  // of item 0
  EXPECT_EQ(Image().FCF7(3), 117);  // item 5's event takes item 0's block
  EXPECT_EQ(Image().FCF2(3), 112);
}

TEST_F(GioSelectionTest, NextHidesThePageAndGoesToTheLoadSensingPage) {
  PassOn();
  EXPECT_EQ(desktop.ModalForms(), (Lines{"frmGIOSelection", "frmOVGParm2"}));
  EXPECT_EQ(desktop.DeepestModal(), 1);
  EXPECT_TRUE(Page().Loaded());
  EXPECT_FALSE(Page().Visible());
  EXPECT_EQ(Page().Pointer(), MousePointer::kDefault);
}

TEST_F(GioSelectionTest, LiftAxleBoxOpensItsDialogWhenChecked) {
  link.always["ReadMemory"] = 1;
  Page().Load();
  desktop.OnModal("frmLiftAxlePressures", [&](Form&) {
    EXPECT_EQ(desktop.DeepestModal(), 1);
    LiftAxle().txtLoweringPress.UserType("50");
    Press(LiftAxle().Command1);
  });
  Page().chkGIO[6].UserClick();
  EXPECT_EQ(desktop.ModalForms(), Lines{"frmLiftAxlePressures"});
  EXPECT_EQ(Image().FCF1(16) * 256 + Image().FCF1(17), 18286);
  Page().chkGIO[6].UserClick();
  EXPECT_EQ(desktop.ModalForms().size(), 1u) << "unchecking opens nothing";
  // The recipe leaves the dialog's bytes alone, and the tag axle's gives way to them.
  GioChoice chosen{};
  chosen[6] = true;
  ApplyGioFunctions(chosen, Image());
  EXPECT_EQ(Image().FCF1(16) * 256 + Image().FCF1(17), 18286);
  chosen[1] = true;
  ApplyGioFunctions(chosen, Image());
  EXPECT_EQ(Image().FCF1(16) * 256 + Image().FCF1(17), 18286);
  EXPECT_EQ(Image().FCF1(18) * 256 + Image().FCF1(19), 10606);
  EXPECT_EQ(Image().FCF1(12), 10) << "the rest of the tag axle's recipe stands";
  chosen[6] = false;
  ApplyGioFunctions(chosen, Image());
  EXPECT_EQ(Image().FCF1(16) * 256 + Image().FCF1(17), 5 * 256 + 220);
}

TEST_F(GioSelectionTest, DialogLeftByItsCloseBoxTakesItsTickWithIt) {
  const auto close = [](Form& form) { form.UserClose(); };
  Page().Load();
  const ParameterImage before = Image();
  for (const auto& [item, dialog] :
       {std::pair(6, "frmLiftAxlePressures"), std::pair(8, "frmGIOSpecial")}) {
    desktop.OnModal(dialog, close);
    Page().chkGIO[item].UserClick();
    EXPECT_FALSE(Page().chkGIO[item].Value()) << dialog;
    Tick(item);
    EXPECT_TRUE(Page().chkGIO[item].Value()) << dialog;
    Page().chkGIO[item].UserClick();
    // Not what an earlier visit confirmed.
    desktop.OnModal(dialog, close);
    Page().chkGIO[item].UserClick();
    EXPECT_FALSE(Page().chkGIO[item].Value()) << dialog;
  }
}

// The program's own close unloads a page while its dialog stands.
TEST_F(GioSelectionTest, PageThatIsGoneBehindItsDialogIsNotLoadedAgain) {
  Page().Load();
  desktop.OnModal("frmLiftAxlePressures", [&](Form& form) {
    Page().Unload();
    form.Unload();
  });
  Page().chkGIO[6].UserClick();
  EXPECT_FALSE(Page().Loaded());
}

TEST_F(GioSelectionTest, SpecialBoxOpensItsDialogWhenChecked) {
  Page().Load();
  Tick(8);
  EXPECT_EQ(desktop.ModalForms(), Lines{"frmGIOSpecial"});
  Page().chkGIO[8].UserClick();
  EXPECT_EQ(desktop.ModalForms().size(), 1u);
  for (int item = 0; item < 6; ++item) Tick(item);
  EXPECT_EQ(desktop.ModalForms().size(), 1u) << "no other box has a dialog";
}

TEST_F(GioSelectionTest, SpecialBoxKeepsWhatItsDialogHasWritten) {
  Page().Load();
  desktop.OnModal("frmGIOSpecial", [&](Form&) {
    Special().chkPerkins[0].UserClick();
    Press(Special().cmdClose);
  });
  Page().chkGIO[8].UserClick();
  PassOn();
  EXPECT_EQ(Image().EOL2(5), 160);
  EXPECT_EQ(Image().EOL5(30), 147);
  EXPECT_EQ(Image().EOL2(3) & 0x40, 0x40);
}

TEST_F(GioSelectionTest, PreviousUnloadsThePageAndReturnsToTheSystemPage) {
  desktop.OnModal("frmGIOSelection", [&](Form&) {
    Page().chkGIO[0].UserClick();
    Press(Page().cmdPrev);
  });
  desktop.OnModal("frmOVGParm1", [&](Form& form) {
    EXPECT_FALSE(Page().Loaded());
    form.UserClose();
  });
  Page().Show(Modality::kModal);
  EXPECT_EQ(desktop.ModalForms(), (Lines{"frmGIOSelection", "frmOVGParm1"}));
  EXPECT_EQ(desktop.DeepestModal(), 1);
}

TEST_F(GioSelectionTest, ReturningFromTheLoadSensingPageDiscardsTheDialogsValues) {
  desktop.OnModal("frmGIOSelection", [&](Form&) {
    desktop.OnModal("frmLiftAxlePressures", [&](Form&) { Press(LiftAxle().Command1); });
    Page().chkGIO[6].UserClick();
    EXPECT_NE(Image().FCF1(16), 0);
    Press(Page().cmdNext);
  });
  desktop.OnModal("frmOVGParm2",
                  [&](Form&) { Press(program.parameters->load_sensing_page.cmdPrev); });
  desktop.OnModal("frmGIOSelection", [&](Form&) {
    EXPECT_FALSE(Page().chkGIO[6].Value());
    EXPECT_EQ(Image().FCF1(16), 0);
    EXPECT_EQ(Image().FCF1(51), ' ');
    Press(Page().cmdClose);
  });
  Page().Show(Modality::kModal);
  EXPECT_EQ(desktop.ModalForms(),
            (Lines{"frmGIOSelection", "frmLiftAxlePressures", "frmOVGParm2", "frmGIOSelection"}));
}

TEST_F(GioSelectionTest, CloseUnloadsTheSystemPageToo) {
  System().Load();
  Page().Load();
  Press(Page().cmdClose);
  EXPECT_FALSE(System().Loaded());
  EXPECT_FALSE(Page().Loaded());
}

}  // namespace
}  // namespace lorimet::testing_support
