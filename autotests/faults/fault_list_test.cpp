// The fault list as a technician uses it.
#include "faults/frmFaults.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "autotests/common/program_fixture.h"
#include "faults/faults_part.h"
#include "session/session_part.h"
#include "support/support_part.h"

namespace lorimet::testing_support {
namespace {

using Calls = std::vector<std::string>;
using Row = std::vector<std::string>;

const Calls kFill = {"FaultLock", "FaultGetCount", "FaultGetData", "FaultUnlock"};

Calls operator+(Calls calls, const Calls& more) {
  calls.insert(calls.end(), more.begin(), more.end());
  return calls;
}

class FaultListTest : public ProgramTest {
 protected:
  void Hold(const std::vector<FaultRecord>& records) {
    link.always["FaultGetCount"] = static_cast<std::int32_t>(records.size());
    link.fault_data = [records](void* first) {
      std::copy(records.begin(), records.end(), static_cast<FaultRecord*>(first));
    };
  }
  frmFaults& List() { return program.faults->fault_list; }
  DataGrid& Grid() { return List().grdFaults; }
  // Starts the program and opens the list without its modal loop.
  void Open() {
    Start();
    List().Load();
  }
  std::vector<Row> Rows() {
    std::vector<Row> rows;
    for (int i = 0; i < Grid().RowCount(); ++i) rows.push_back(Grid().Row(i));
    return rows;
  }
};

TEST_F(FaultListTest, OpensAfterAWaitWithTheFirstRowFocusedAndItsAdvice) {
  Hold({{0, 5, 7, 0, 0, 3}});
  Start();
  List().Load();
  EXPECT_EQ(link.TakeSequence(), Calls{"sleep 1500"} + kFill);
  EXPECT_EQ(Rows(),
            (std::vector<Row>{{"1", "Sensor e tone wheel defect", "ACTIVE", "3", "5", "7"}}));
  EXPECT_EQ(Grid().FocusedRow(), 0);
  EXPECT_EQ(List().txtRepair.Text(),
            "Push sensor into holding block for zero gap to tooth wheel.  Check tone ring for "
            "damaged teeth.  Check for excessive wheel bearing play.");
}

TEST_F(FaultListTest, HasSixColumnsOfWhichTheNameIsALink) {
  Open();
  std::vector<std::string> captions;
  for (const GridColumn& column : Grid().Columns()) {
    captions.push_back(column.caption);
    EXPECT_EQ(column.hyperlink, column.field == "Name");
  }
  EXPECT_EQ(captions, (Row{"Num", "Name", "Type", "Times", "SID", "FMI"}));
}

TEST_F(FaultListTest, ActiveFaultsComeFirstThenStoredOnesAndNoOthers) {
  Hold({{0, 59, 12, 0, 1, 1},
        {0, 5, 7, 0, 0, 3},
        {0, 7, 3, 0, 2, 9},
        {0, 3, 1, 0, 0, 2},
        {0, 4, 5, 0, 1, 4},
        {0, 4, 6, 0, -1, 4}});
  Open();
  std::vector<Row> shown;
  for (const Row& row : Rows()) shown.push_back({row[0], row[2], row[4], row[5]});
  EXPECT_EQ(shown, (std::vector<Row>{{"1", "ACTIVE", "5", "7"},
                                     {"2", "ACTIVE", "3", "1"},
                                     {"3", "Stored", "59", "12"},
                                     {"4", "Stored", "4", "5"}}));
}

TEST_F(FaultListTest, CountsThatAreNotHeldShowNoData) {
  Hold({{0, 5, 7, 0, 0, 0}, {0, 5, 7, 0, 0, -1}, {0, 5, 7, 0, 0, -2}, {0, 5, 7, 0, 0, 70000}});
  Open();
  std::vector<std::string> times;
  for (const Row& row : Rows()) times.push_back(row[3]);
  EXPECT_EQ(times, (Row{"N/A", "N/A", "-2", "70000"}));
}

TEST_F(FaultListTest, FaultOutsideTheCatalogueShowsItsOwnNumbersAndNoAdvice) {
  Hold({{0, 13, 2, 0, 0, 1}, {0, 65541, 7, 0, 0, 1}, {0, -5, 100000, 0, 0, 1}});
  Open();
  EXPECT_EQ(Rows()[0], (Row{"1", "The description is not available", "ACTIVE", "1", "13", "2"}));
  // Compared as 32-bit numbers: this is not SID 5.
  EXPECT_EQ(Rows()[1], (Row{"2", "The description is not available", "ACTIVE", "1", "65541", "7"}));
  EXPECT_EQ(Rows()[2][4], "-5");
  EXPECT_EQ(List().txtRepair.Text(), "");
  Grid().UserFocusRow(1);
  EXPECT_EQ(List().txtRepair.Text(), "");
}

TEST_F(FaultListTest, ZeroFaultMatchesTheBlankRow) {
  Hold({{0, 0, 0, 0, 0, 1}});
  Open();
  EXPECT_EQ(Rows()[0], (Row{"1", "", "ACTIVE", "1", "0", "0"}));
  EXPECT_EQ(List().txtRepair.Text(), "Repair instruction not available for the current fault.");
}

TEST_F(FaultListTest, FirstOfTwoDescriptionsIsShown) {
  Hold({{0, 117, 3, 0, 0, 1}});
  Open();
  EXPECT_EQ(Rows()[0][1], "SLEV control unit - bad connection");
}

TEST_F(FaultListTest, RecordsThatTheLibraryLeavesOutAreShownAsZeros) {
  link.always["FaultGetCount"] = 3;
  link.fault_data = [](void* first) {
    const FaultRecord record{0, 5, 7, 0, 0, 3};
    std::memcpy(first, &record, sizeof record);
  };
  Open();
  ASSERT_EQ(Rows().size(), 3u);
  EXPECT_EQ(Rows()[2], (Row{"3", "", "ACTIVE", "N/A", "0", "0"}));
}

TEST_F(FaultListTest, EmptyStoreLeavesTheRowsThatStand) {
  Hold({{0, 5, 7, 0, 0, 3}});
  Open();
  link.TakeCalls();
  for (const std::int32_t count : {0, -1}) {
    link.always["FaultGetCount"] = count;
    List().cmdUpdate.UserClick();
    EXPECT_EQ(link.TakeCalls(), (Calls{"FaultLock", "FaultGetCount", "FaultUnlock"}));
    EXPECT_EQ(Rows().size(), 1u);
  }
}

TEST_F(FaultListTest, RefusedLockLeavesTheRowsThatStand) {
  Hold({{0, 5, 7, 0, 0, 3}});
  Open();
  link.TakeCalls();
  link.always["FaultLock"] = 1;
  List().cmdUpdate.UserClick();
  EXPECT_EQ(link.TakeCalls(), (Calls{"FaultLock"}));
  EXPECT_EQ(Rows().size(), 1u);
}

TEST_F(FaultListTest, RefusedReadLeavesTheStoreLockedAndTheGridEmpty) {
  Hold({{0, 5, 7, 0, 0, 3}});
  Open();
  link.TakeCalls();
  link.always["FaultGetData"] = 1;
  List().cmdUpdate.UserClick();
  EXPECT_EQ(link.TakeCalls(), (Calls{"FaultLock", "FaultGetCount", "FaultGetData"}));
  EXPECT_TRUE(Rows().empty());
  EXPECT_EQ(List().txtRepair.Text(), "");
}

TEST_F(FaultListTest, ErrorWhileFillingIsShownInTwoBoxes) {
  Open();
  link.TakeCalls();
  link.always["FaultGetCount"] = 40000;
  List().cmdUpdate.UserClick();
  EXPECT_EQ(
      desktop.TakeBoxes(),
      (Boxes{PlainBox("6:  Overflow", "ERROR"),
             PlainBox("Error in insert fault record.\r\niCol = 0\r\niNbrOfRows = 0\r\niRow = 0",
                      "ERROR")}));
  // The lock is left as it stands.
  EXPECT_EQ(link.TakeCalls(), (Calls{"FaultLock", "FaultGetCount"}));
}

TEST_F(FaultListTest, ClearingRunsWholeWhateverFails) {
  Hold({{0, 5, 7, 0, 0, 3}});
  Open();
  link.TakeCalls();
  link.TakeSequence();
  link.always["ClearAllFaults"] = 1;
  link.always["ResetECU"] = 1;
  std::vector<MousePointer> pointers;
  int rows_while_clearing = -1;
  desktop.on_do_events = [&] {
    pointers.push_back(List().Pointer());
    rows_while_clearing = Grid().RowCount();
  };
  List().cmdClearAll.UserClick();
  EXPECT_EQ(link.TakeSequence(),
            Calls(4, "ClearAllFaults") + Calls(4, "ResetECU") + Calls{"sleep 8000"} + kFill);
  EXPECT_EQ(pointers, std::vector<MousePointer>(pointers.size(), MousePointer::kHourglass));
  EXPECT_FALSE(pointers.empty());
  EXPECT_EQ(rows_while_clearing, 0);
  EXPECT_EQ(List().Pointer(), MousePointer::kDefault);
  EXPECT_EQ(Rows().size(), 1u);  // what the ECU still holds
}

TEST_F(FaultListTest, ClearingStopsTryingAtTheFirstSuccess) {
  Open();
  link.TakeCalls();
  link.answers["ResetECU"] = {1, 0};
  List().cmdClearAll.UserClick();
  EXPECT_EQ(link.TakeCalls(), (Calls{"ClearAllFaults", "ResetECU", "ResetECU", "FaultLock",
                                     "FaultGetCount", "FaultUnlock"}));
}

TEST_F(FaultListTest, ListClosedWhileClearingStaysClosed) {
  Hold({{0, 5, 7, 0, 0, 3}});
  Open();
  desktop.on_do_events = [&] { List().UserClose(); };
  List().cmdClearAll.UserClick();
  EXPECT_FALSE(List().Loaded());
}

TEST_F(FaultListTest, ClearingEmptiesAListOfManyRows) {
  Hold({{0, 5, 7, 0, 0, 3}, {0, 3, 1, 0, 0, 2}, {0, 13, 2, 0, 1, 1}});
  Open();
  ASSERT_EQ(Grid().RowCount(), 3);
  int rows_while_clearing = -1;
  desktop.on_do_events = [&] { rows_while_clearing = Grid().RowCount(); };
  Hold({});  // the ECU has forgotten them
  List().cmdClearAll.UserClick();
  EXPECT_EQ(rows_while_clearing, 0);
  EXPECT_EQ(Rows(), std::vector<Row>{});
  EXPECT_EQ(List().txtRepair.Text(), "");
}

TEST_F(FaultListTest, UpdatingReplacesAListOfManyRows) {
  Hold({{0, 5, 7, 0, 0, 3}, {0, 3, 1, 0, 0, 2}, {0, 13, 2, 0, 1, 1}});
  Open();
  Hold({{0, 7, 3, 0, 0, 1}, {0, 5, 7, 0, 1, 2}});
  List().cmdUpdate.UserClick();
  ASSERT_EQ(Grid().RowCount(), 2);
  EXPECT_EQ(Rows()[0][4], "7");
  EXPECT_EQ(Rows()[1][4], "5");
}

TEST_F(FaultListTest, NoManualIsToldInTheUsersLanguage) {
  SetLanguage(kFrench);
  Hold({{0, 7, 3, 0, 0, 3}});
  Open();
  Main().nECUType = 0;
  Grid().UserClickHyperlink(0);
  const Boxes boxes = desktop.TakeBoxes();
  ASSERT_EQ(boxes.size(), 1u);
  const auto& rows = translations.Rows(kFrench);
  EXPECT_EQ(boxes[0].text,
            rows.at("No help manual currently exists for this Trailer configuration."));
  EXPECT_EQ(boxes[0].title, rows.at("Missing Help File"));
  EXPECT_NE(boxes[0].title, "Missing Help File");
}

TEST_F(FaultListTest, LinkBeforeAnyIdentityTellsThatThereIsNoManual) {
  Hold({{0, 7, 3, 0, 0, 3}});
  Open();
  registry.SetText(RegistryHive::kLocalMachine, std::string(kAppPathsKey) + "QORABS.exe", "Path",
                   "C:\\Norvick");
  for (const std::int16_t type : {0, 1, 3}) {
    Main().nECUType = type;
    Grid().UserClickHyperlink(0);
    EXPECT_EQ(
        desktop.TakeBoxes(),
        (Boxes{DictionaryBox("No help manual currently exists for this Trailer configuration.",
                             "Missing Help File", BoxIcon::kInformation)}));
  }
  EXPECT_EQ(List().TopicKey(), "SID007FMI003");
  EXPECT_EQ(List().ManualPath(), "C:\\Norvick\\");
}

TEST_F(FaultListTest, LinkWithAnIdentityOnlyKeepsTheKey) {
  Hold({{0, 117, 4, 0, 0, 3}, {0, 13, 2, 0, 0, 1}, {0, 0, 0, 0, 0, 1}});
  Open();
  EXPECT_EQ(Main().nECUType, 2);
  Grid().UserClickHyperlink(0);
  EXPECT_EQ(List().TopicKey(), "SID117FMI004");
  EXPECT_EQ(List().ManualPath(), "\\");
  Grid().UserClickHyperlink(1);
  EXPECT_EQ(List().TopicKey(), "SIDunkFMIunk");
  Grid().UserClickHyperlink(2);  // its advice is the sentence that there is none
  EXPECT_EQ(List().TopicKey(), "SIDunkFMIunk");
}

TEST_F(FaultListTest, ErrorInTheLinkIsShownWithItsPlace) {
  Hold({{0, 7, 3, 0, 0, 3}});
  Open();
  List().ecu_type = []() -> std::int16_t { throw RuntimeError(ErrorNumber::kOverflow); };
  Grid().UserClickHyperlink(0);
  EXPECT_EQ(desktop.TakeBoxes(),
            (Boxes{PlainBox("frmFaults\r\nFunc: grdFaults_OnHyperLinkEditStartClick\r\n"
                            "Error = 0x6\r\nOverflow",
                            "")}));
}

TEST(PadNumber, BringsShortNumbersToThreeDigits) {
  EXPECT_EQ(PadNumber("7"), "007");
  EXPECT_EQ(PadNumber("42"), "042");
  EXPECT_EQ(PadNumber("117"), "117");
  EXPECT_EQ(PadNumber("65541"), "65541");
  EXPECT_EQ(PadNumber(""), "");
}

TEST_F(FaultListTest, RepairBoxTakesNoKeys) {
  Open();
  EXPECT_FALSE(List().txtRepair.UserKeyDown({'A', 0}));
}

TEST_F(FaultListTest, ReportsAreDisabledWhereThereIsNone) {
  List().save_report = nullptr;
  List().print_report = nullptr;
  Open();
  EXPECT_FALSE(List().cmdSave.Enabled());
  EXPECT_FALSE(List().cmdPrint.Enabled());
  List().Unload();
  int saved = 0;
  int printed = 0;
  List().save_report = [&] { ++saved; };
  List().print_report = [&] { ++printed; };
  List().Load();
  EXPECT_TRUE(List().cmdSave.Enabled());
  List().cmdSave.UserClick();
  List().cmdPrint.UserClick();
  EXPECT_EQ(saved, 1);
  EXPECT_EQ(printed, 1);
}

TEST_F(FaultListTest, ExitUnloads) {
  Hold({{0, 5, 7, 0, 0, 3}});
  Start();
  desktop.OnModal("frmFaults",
                  [](Form& form) { static_cast<frmFaults&>(form).cmdExit.UserClick(); });
  Main().mnuDiagnostics[0].UserClick();
  EXPECT_FALSE(List().Loaded());
}

TEST_F(FaultListTest, SpeaksTheLanguageOnScreen) {
  SetLanguage(kFrench);
  Hold({{0, 5, 7, 0, 0, 0}, {0, 13, 2, 0, 1, 1}});
  Open();
  const auto in_french = [&](const char* key) { return translations.Lookup(kFrench, key); };
  EXPECT_EQ(List().Caption(), in_french("Fault Information"));
  EXPECT_EQ(Rows()[0], (Row{"1", in_french("Sensor e tone wheel defect"), in_french("ACTIVE"),
                            in_french("N/A"), "5", "7"}));
  EXPECT_EQ(Rows()[1][1], in_french("The description is not available"));
  EXPECT_EQ(Rows()[1][2], in_french("Stored"));
  EXPECT_NE(Rows()[0][2], "ACTIVE");
  Row heads;
  for (const GridColumn& column : Grid().Columns()) heads.push_back(column.caption);
  EXPECT_EQ(heads, (Row{in_french("Num"), in_french("Name"), in_french("Type"), in_french("Times"),
                        in_french("SID"), in_french("FMI")}));
  EXPECT_EQ(heads[1], "Nom");
  // The description that is missing is known by its translated words.
  Grid().UserClickHyperlink(1);
  EXPECT_EQ(List().TopicKey(), "SIDunkFMIunk");
}

TEST_F(FaultListTest, ColumnsAreHeadedInSpanishToo) {
  SetLanguage(kSpanish);
  Open();
  Row heads;
  for (const GridColumn& column : Grid().Columns()) heads.push_back(column.caption);
  EXPECT_EQ(heads, (Row{"N.º", "Nombre", "Tipo", "Veces", "SID", "FMI"}));
}

TEST_F(FaultListTest, ChangeOfLanguageRenamesTheTableInPlace) {
  Start();
  const std::size_t size = program.faults->fault_table.Size();
  const std::string before = program.faults->fault_table[1].Name;
  program.support->dictionary.SetLanguage(kSpanish);
  EXPECT_EQ(program.faults->fault_table.Size(), size);
  EXPECT_NE(program.faults->fault_table[1].Name, before);
  EXPECT_EQ(program.faults->fault_table[1].Name, translations.Lookup(kSpanish, before));
}

TEST_F(FaultListTest, AdviceFollowsTheLanguageAtTheNextSelection) {
  Hold({{0, 5, 7, 0, 0, 1}, {0, 7, 3, 0, 0, 1}});
  Open();
  program.support->dictionary.SetLanguage(kSpanish);
  Grid().UserFocusRow(1);
  EXPECT_EQ(List().txtRepair.Text(),
            translations.Lookup(kSpanish, "Check cable for pinch/cut and check connectors."));
}

}  // namespace
}  // namespace lorimet::testing_support
