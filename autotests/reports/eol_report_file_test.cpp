// The end-of-line report as a text file: five trailers byte for byte, its name, and its failures.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "autotests/places.h"
#include "autotests/reports/report_fixture.h"
#include "support/text.h"

namespace lorimet::testing_support {
namespace {

const std::string kFolder = "/opt/lorimet";

std::string Golden(const std::string& name) {
  std::ifstream file(InSource("autotests/reports/golden/") + name, std::ios::binary);
  EXPECT_TRUE(file) << name;
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

class ReportFileTest : public ReportTest {
 protected:
  void SetUp() override {
    ReportTest::SetUp();
    program.support->dictionary.Open();
    program.support->dictionary.SetLanguage(kNative);
    process.folder = kFolder;
  }

  // Saves, and gives the only file that there is then.
  std::string SaveAndRead() {
    Save();
    desktop.TakeBoxes();
    EXPECT_EQ(text_files.files.size(), 1u);
    return text_files.files.empty() ? "" : text_files.files.begin()->second;
  }

  void Equip(int sensors, int modulators, int mounting, int mechanical) {
    Ecu().bNumSensors.Store(static_cast<std::uint8_t>(sensors));
    Ecu().bNumModulators.Store(static_cast<std::uint8_t>(modulators));
    Ecu().nMounting.Store(static_cast<std::int16_t>(mounting));
    Ecu().nMechanicalSuspension.Store(static_cast<std::int16_t>(mechanical));
  }
};

TEST_F(ReportFileTest, HealthyTrailerWithZeroFilledFields) {
  Equip(4, 2, 0, 0);
  Ecu().Manufacturer.Store("NORTHLEA TRAILERS");
  Ecu().VehicleId.Store("1NL4S2M30A0012345");
  Ecu().TrailerType.Store("CURTAIN SIDER 13.6");
  Ecu().SWRev.Store("3.07");
  Ecu().PartNum.Store("NL320417-02M");
  Ecu().SerialNum.Store("000417723518");
  Ecu().MfgDate.Store("14/2024");
  Results().nPressureTest = Results().nRedundancyTest = Results().nSensorTest = kTestPassed;
  Results().nLampTest = kTestPassed;
  Results().dMaxSpeed = {99.0, 99.0, 6.9, 7.0, 0.0, 12.25};
  EXPECT_EQ(SaveAndRead(), Golden("healthy_4s2m.txt"));
}

TEST_F(ReportFileTest, FaultsOfEveryLengthStatusAndCount) {
  clock.SetDate(Date(2027, 3, 5, 0, 0));
  Equip(2, 1, 0, 0);
  Ecu().Manufacturer.Store(ToCp1252("GÖTE & SÖHNE"), ' ');
  Ecu().VehicleId.Store("  1NL2S1M20B 0099 ");
  Ecu().SWRev.Store("4.00 rev b12");
  Ecu().PartNum.Store("123");
  Ecu().SerialNum.Store("0123456789ABCDEF");
  Results().nPressureTest = Results().nRedundancyTest = kTestNotApplicable;
  Results().nSensorTest = kTestFailed;
  Results().dMaxSpeed = {0.0, 0.0, 106.0, 7.25, 0.0, 0.0};
  Hold({{0, 5, 7, 0, 2, 4},
        {0, 13, 2, 0, 1, -1},
        {0, 4, 5, 0, 1, 0},
        {0, 99, 31, 0, 0, 1},
        {0, 7, 6, 0, 0, 12},
        {0, 62, 12, 0, 1, 3},
        {0, 59, 3, 0, 0, 100},
        {0, 59, 11, 0, 1, 2},
        {0, 0, 0, 0, 0, 32767},
        {0, 4, 5, 0, 1, 7}});
  EXPECT_EQ(SaveAndRead(), Golden("faulty_2s1m.txt"));
}

TEST_F(ReportFileTest, MechanicalSuspensionHasItsHeightSensor) {
  clock.SetDate(Date(2026, 1, 1, 12, 59));
  Equip(4, 3, 1, 1);
  Ecu().Manufacturer.Store("NORTHLEA TRAILERS");
  Ecu().VehicleId.Store("ABCDEFGHIJKLMNOPQR");
  Ecu().TrailerType.Store("LOW LOADER");
  Ecu().PartNum.Store("4005001230");
  Ecu().SerialNum.Store("77");
  Ecu().MfgDate.Store("01/2026");
  Results().nPressureTest = kTestFailed;
  Results().nHeightCalCD = kTestPassed;
  Results().nLampTest = kTestFailed;
  EXPECT_EQ(SaveAndRead(), Golden("mechanical_4s3m.txt"));
}

TEST_F(ReportFileTest, NothingIsKnownButTheNameOfTheFile) {
  clock.SetDate(Date(2026, 12, 31, 23, 5));
  Equip(0, 0, 2, 0);
  WizardVin() = "X";
  EXPECT_EQ(SaveAndRead(), Golden("nothing_known.txt"));
}

TEST_F(ReportFileTest, SensorsBeyondTheFourthTakeOneEmptyPlace) {
  clock.SetDate(Date(2026, 6, 30, 9, 30));
  Equip(6, 21, -1, 1);
  Ecu().PartNum.Store("12345678901     ");
  Ecu().SerialNum.Store("SN 1");
  Results().nPressureTest = Results().nRedundancyTest = Results().nSensorTest = kTestFailed;
  Results().nHeightCalCD = kTestFailed;
  Results().nLampTest = kTestPassed;
  Results().dMaxSpeed = {0.0, 0.0, 0.05, 999.95, 4.12, 63.0};
  EXPECT_EQ(SaveAndRead(), Golden("six_sensors_2m1m.txt"));
}

TEST_F(ReportFileTest, EveryKnownWordIsTranslatedAndTheOutcomesAreNot) {
  program.support->dictionary.SetLanguage(kFrench);
  Equip(4, 2, 1, 0);
  Ecu().SerialNum.Store("1");
  const std::string french = FromCp1252(SaveAndRead());
  EXPECT_NE(french.find("\r\n" + translations.Lookup(kFrench, "Norvick OVG End-of-Line Report")),
            std::string::npos);
  EXPECT_NE(french.find(translations.Lookup(kFrench, "Facing Rear")), std::string::npos);
  EXPECT_NE(french.find("novembre 21, 2026"), std::string::npos);
  EXPECT_NE(french.find(": Not Tested"), std::string::npos);
  for (const char* english : {"Manufacturer", "Trailer Type", "Date of Manufacture", "Fault #",
                              "No Faults", "Results", "Facing", "November", "N/A"})
    EXPECT_EQ(french.find(english), std::string::npos) << english;
}

// --- The name of the file ----------------------------------------------------------------------

TEST_F(ReportFileTest, IsNamedAfterTheVehicleIdOfTheWizardFirst) {
  WizardVin() = "  VIN 7  ";
  Ecu().SerialNum.Store("4711");
  Save();
  EXPECT_EQ(text_files.files.begin()->first, kFolder + kPathSeparator + "VIN 7.txt");
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{DictionaryBox("File saved successfully in " + kFolder +
                                                         kPathSeparator + "VIN 7.txt",
                                                     "Information", BoxIcon::kInformation)});
}

TEST_F(ReportFileTest, IsNamedAfterTwelveCharactersOfTheSerialNumber) {
  WizardVin() = "   ";
  Ecu().SerialNum.Store("  0123456789ABCD");
  SaveAndRead();
  EXPECT_EQ(text_files.files.begin()->first, kFolder + kPathSeparator + "0123456789AB.txt");
}

TEST_F(ReportFileTest, TheSerialNumberOfTheNameEndsAtItsFirstNul) {
  Ecu().SerialNum.Store(std::string("77\0xy", 5));
  SaveAndRead();
  EXPECT_EQ(text_files.files.begin()->first, kFolder + kPathSeparator + "77.txt");
}

TEST_F(ReportFileTest, ReplacesAnEarlierOneWithoutAQuestion) {
  WizardVin() = "V";
  const std::string path = kFolder + kPathSeparator + "V.txt";
  text_files.files[path] = "old";
  SaveAndRead();
  EXPECT_GT(text_files.files[path].size(), 100u);
}

TEST_F(ReportFileTest, WithoutAnyNameNothingIsWrittenAndThePointerStays) {
  Save();
  EXPECT_TRUE(text_files.files.empty());
  EXPECT_EQ(desktop.TakeBoxes(),
            Boxes{PlainBox("Cannot save.\r\nThe ECU information has not been successfully read.",
                           "Information", BoxIcon::kWarning)});
  EXPECT_EQ(Main().Pointer(), MousePointer::kHourglass);
  EXPECT_TRUE(link.TakeCalls().empty());
}

TEST_F(ReportFileTest, WordsOfThatBoxAreNeverTranslated) {
  program.support->dictionary.SetLanguage(kFrench);
  Save();
  const Boxes boxes = desktop.TakeBoxes();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].title, "Information");
  EXPECT_TRUE(boxes[0].text.starts_with("Cannot save.\r\n"));
}

TEST_F(ReportFileTest, AnotherFamilyOfEcuWritesNothingAndSaysNothing) {
  Records().lECUFamily = 2;
  WizardVin() = "V";
  Save();
  EXPECT_TRUE(text_files.files.empty());
  EXPECT_TRUE(link.TakeCalls().empty());
}

// --- Calls and failures ------------------------------------------------------------------------

TEST_F(ReportFileTest, ReadsTheFaultsOnceUnderTheirLock) {
  WizardVin() = "V";
  SaveAndRead();
  EXPECT_EQ(link.TakeCalls(), (std::vector<std::string>{"FaultLock", "FaultGetCount",
                                                        "FaultGetData", "FaultUnlock"}));
}

TEST_F(ReportFileTest, AProgramThatIsClosedBeforeItWritesAndAsksNothing) {
  WizardVin() = "V";
  desktop.on_do_events = [this] { desktop.life.Close(); };
  Save();
  EXPECT_TRUE(text_files.files.empty());
  EXPECT_TRUE(link.TakeCalls().empty());
}

TEST_F(ReportFileTest, RefusedFaultLockReadsAsNoFaults) {
  Hold({{0, 5, 7, 0, 0, 1}});
  link.always["FaultLock"] = 1;
  WizardVin() = "V";
  EXPECT_NE(SaveAndRead().find("No Faults Detected - System OK"), std::string::npos);
}

TEST_F(ReportFileTest, ThePointerIsTheHourglassMeanwhileAndThenAsItWas) {
  WizardVin() = "V";
  Main().SetMousePointer(MousePointer::kArrow);
  MousePointer meanwhile{};
  link.on_call = [&](const std::string&) { meanwhile = Main().Pointer(); };
  SaveAndRead();
  EXPECT_EQ(meanwhile, MousePointer::kHourglass);
  EXPECT_EQ(Main().Pointer(), MousePointer::kArrow);
}

struct Trouble {
  FileTrouble trouble;
  const char* text;
};
class ReportFileTroubleTest : public ReportFileTest, public testing::WithParamInterface<Trouble> {};

TEST_P(ReportFileTroubleTest, IsShownAndTheOldFileStands) {
  WizardVin() = "V";
  const std::string path = kFolder + kPathSeparator + "V.txt";
  text_files.files[path] = "old";
  text_files.trouble = GetParam().trouble;
  Main().SetMousePointer(MousePointer::kArrow);
  Save();
  EXPECT_EQ(desktop.TakeBoxes(),
            Boxes{DictionaryBox(std::string("An error occurred while saving:  ") + GetParam().text,
                                "Error", BoxIcon::kCritical)});
  EXPECT_EQ(text_files.files[path], "old");
  EXPECT_EQ(text_files.open_files, 0);
  EXPECT_EQ(Main().Pointer(), MousePointer::kArrow);
}

INSTANTIATE_TEST_SUITE_P(
    Disks, ReportFileTroubleTest,
    testing::Values(Trouble{FileTrouble::kFull, "61\r\nDisk full"},
                    Trouble{FileTrouble::kLocked, "70\r\nPermission denied"},
                    Trouble{FileTrouble::kNoPermission, "75\r\nPath/File access error"},
                    Trouble{FileTrouble::kNoFolder, "76\r\nPath not found"},
                    Trouble{FileTrouble::kDeviceFails, "57\r\nDevice I/O error"}));

TEST_F(ReportFileTest, AFileThatCannotBeOpenedLeavesTheFaultStoreAlone) {
  WizardVin() = "V";
  text_files.trouble = FileTrouble::kNoPermission;
  Save();
  desktop.TakeBoxes();
  EXPECT_TRUE(link.TakeCalls().empty());
}

TEST_F(ReportFileTest, ANameThatLeavesItsFolderIsRefused) {
  for (const char* name : {"../V", "a/b", "a\\b", "C:V", "NUL", "con.x", "a\tb"}) {
    WizardVin() = name;
    Save();
    const Boxes boxes = desktop.TakeBoxes();
    ASSERT_EQ(boxes.size(), 1u) << name;
    EXPECT_EQ(boxes[0].text, "An error occurred while saving:  52\r\nBad file name or number")
        << name;
    EXPECT_TRUE(text_files.files.empty()) << name;
  }
}

TEST_F(ReportFileTest, ACountOfFaultsThatNoNumberHoldsIsShown) {
  WizardVin() = "V";
  link.always["FaultGetCount"] = 40000;
  Save();
  const Boxes boxes = desktop.TakeBoxes();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].text, "An error occurred while saving:  6\r\nOverflow");
  EXPECT_TRUE(text_files.files.empty());
}

}  // namespace
}  // namespace lorimet::testing_support
