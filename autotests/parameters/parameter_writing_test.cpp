// Writing the parameter image to the ECU, and the ECU's verdict.
#include "parameters/parameter_writing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "autotests/common/program_fixture.h"
#include "faults/faults_part.h"
#include "parameters/block_table.h"
#include "parameters/parameters_part.h"
#include "parameters/record_refresh.h"
#include "support/support_part.h"

namespace lorimet::testing_support {
namespace {

using Calls = std::vector<std::string>;

const MessageBox kSaved = PlainBox(
    "               The Parameter Data has been saved.\r\n"
    "It is highly recommended that the End of Line Test be run again.",
    "Parameter Data");

class ParameterWritingTest : public ProgramTest {
 protected:
  ParameterImage& Image() { return program.parameters->image; }
  frmOVGParm3& Page() { return program.parameters->overturn_guard_page; }
  void Write() {
    WriteParmsToECU({link, desktop, program.support->dictionary, clock, program.faults->faults,
                     Image(), program.parameters->found, Page(), Page().txtStatus});
  }
  // Lets the page that shows the progress stand.
  void Open() {
    Start();
    Page().Load();
    link.TakeCalls();
    link.TakeSequence();
  }
  void FillAll() {
    ParameterImage& image = Image();
    std::uint8_t count = 11;
    for (ParmBlock* block : {&image.EOL1, &image.EOL2, &image.EOL3, &image.EOL4, &image.EOL5,
                             &image.EOL6, &image.EOL7, &image.EOL9})
      block->bNumBytes = count++;
    for (const BlockName block : kFunctionBlocks) (image.*block).bNumBytes = 111;
  }
  void AnswerErrors(const std::map<int, int>& bytes) {
    link.read_block = [bytes](std::uint8_t id, std::uint8_t* count, std::uint8_t* data) {
      EXPECT_EQ(id, 0x29);
      for (const auto& [index, value] : bytes) data[index] = static_cast<std::uint8_t>(value);
      *count = 21;
      return 0;
    };
  }
};

TEST_F(ParameterWritingTest, SendsEveryBlockInOrderThenChecksClearsResetsAndAsks) {
  Open();
  FillAll();
  desktop.on_repaint = [&] { link.sequence.push_back("shows " + Page().txtStatus.Text()); };
  AnswerErrors({});
  Write();
  // Each text and each wait has its place before or behind the step that it is for.
  EXPECT_EQ(link.TakeSequence(), (Calls{"StartSession 83",
                                        "Password",
                                        "StartRoutine 42:00000100",
                                        "shows Writing EOL5 Data to ECU",
                                        "WriteMemory 28:14",
                                        "shows Writing OVG Data to ECU ",
                                        "WriteMemory 3D:11",
                                        "shows Writing Vehicle Data to ECU",
                                        "WriteMemory 03:10",
                                        "shows Writing Trailer Data to ECU",
                                        "WriteMemory 06:16",
                                        "shows Writing EOL3 Data to ECU",
                                        "WriteMemory 27:12",
                                        "shows Writing EOL4 Data to ECU",
                                        "WriteMemory 17:13",
                                        "shows Writing EOL6 Data to ECU",
                                        "WriteMemory 05:15",
                                        "shows Writing EOL9 Data to ECU",
                                        "WriteMemory 42:17",
                                        "shows Writing FCF 1 Data to ECU",
                                        "WriteMemory 37:110",
                                        "shows Writing FCF 2 Data to ECU",
                                        "WriteMemory 38:110",
                                        "shows Writing FCF 3 Data to ECU",
                                        "WriteMemory 39:110",
                                        "shows Writing FCF 4 Data to ECU",
                                        "WriteMemory 3A:110",
                                        "shows Writing FCF 5 Data to ECU",
                                        "WriteMemory 3B:110",
                                        "shows Writing FCF 6 Data to ECU",
                                        "WriteMemory 3C:110",
                                        "shows Writing FCF 7 Data to ECU",
                                        "WriteMemory 44:110",
                                        "shows Writing FCF 8 Data to ECU",
                                        "WriteMemory 45:110",
                                        "StartRoutine 42:00000000",
                                        "sleep 100",
                                        "shows Updating Checksums",
                                        "StartRoutine 05:",
                                        "sleep 2000",
                                        "shows Clearing Faults",
                                        "ClearAllFaults",
                                        "sleep 2000",
                                        "shows Performing Reset of ECU",
                                        "ResetECU",
                                        "sleep 3000",
                                        "shows Checking for Parameter Errors",
                                        "ReadData 29"}));
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{kSaved});
  EXPECT_EQ(Page().txtStatus.Text(), " ");
  EXPECT_EQ(Page().Pointer(), MousePointer::kDefault);
}

TEST_F(ParameterWritingTest, StatusIsInTheUsersLanguageAndTheBoxesAreNot) {
  Open();
  program.support->dictionary.Open();
  program.support->dictionary.SetLanguage(kFrench);
  Image().EOL1.bNumBytes = 3;
  Image().FCF8.bNumBytes = 3;
  std::vector<std::string> shown;
  desktop.on_repaint = [&] { shown.push_back(Page().txtStatus.Text()); };
  AnswerErrors({});
  Write();
  EXPECT_EQ(shown, (Calls{"Écriture des données véhicule dans l'ECU",
                          "Écriture des données FCF 8 dans l'ECU",
                          "Mise à jour des sommes de contrôle", "Effacement des défauts",
                          "Redémarrage de l'ECU en cours", "Recherche d'erreurs de paramètres"}));
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{kSaved});
}

TEST_F(ParameterWritingTest, IndexZeroNeverTravels) {
  Open();
  Image().EOL9.bNumBytes = 4;
  Image().EOL9.DataArr[0] = 0x42;
  Image().EOL9(1) = 1;
  Image().EOL9(2) = 2;
  Image().EOL9(3) = 3;
  AnswerErrors({});
  Write();
  EXPECT_EQ(link.written[0x42], (std::vector<std::uint8_t>{1, 2, 3}));
  desktop.TakeBoxes();
}

TEST_F(ParameterWritingTest, AbsentBlocksMakeNoTraffic) {
  Open();
  Image().EOL4(1) = 5;  // bytes, but no count
  std::vector<std::string> shown;
  desktop.on_repaint = [&] { shown.push_back(Page().txtStatus.Text()); };
  AnswerErrors({});
  Write();
  EXPECT_TRUE(link.written.empty());
  EXPECT_EQ(shown.front(), "Updating Checksums");
  desktop.TakeBoxes();
}

TEST_F(ParameterWritingTest, CountBeyondTheBlockSendsZerosForTheRest) {
  Open();
  Image().EOL1.bNumBytes = 255;
  Image().EOL1(200) = 9;
  AnswerErrors({});
  Write();
  ASSERT_EQ(link.written[0x03].size(), 254u);
  EXPECT_EQ(link.written[0x03][199], 9);
  EXPECT_EQ(link.written[0x03][200], 0);
  EXPECT_EQ(link.written[0x03][253], 0);
  desktop.TakeBoxes();
}

TEST_F(ParameterWritingTest, BlockOfItsIdAloneSendsNoBytes) {
  Open();
  Image().EOL2.bNumBytes = 1;
  AnswerErrors({});
  Write();
  const Calls calls = link.TakeCalls();
  EXPECT_EQ(std::ranges::count(calls, "WriteMemory 3D:0"), 1);
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{kSaved});
}

TEST_F(ParameterWritingTest, PointerShowsTheWorkFromTheFirstCallToTheLastComplaint) {
  Open();
  Image().EOL2.bNumBytes = 3;
  std::vector<MousePointer> pointers;
  link.on_call = [&](const std::string&) { pointers.push_back(Page().Pointer()); };
  AnswerErrors({{1, 0x01}});
  desktop.OnBox([&](const MessageBox&) { pointers.push_back(Page().Pointer()); });
  MousePointer at_the_end = MousePointer::kHourglass;
  std::string status_at_the_end;
  desktop.OnBox([&](const MessageBox&) {
    at_the_end = Page().Pointer();
    status_at_the_end = Page().txtStatus.Text();
  });
  Write();
  EXPECT_EQ(desktop.TakeBoxes().size(), 2u);
  EXPECT_FALSE(pointers.empty());
  for (const MousePointer pointer : pointers) EXPECT_EQ(pointer, MousePointer::kHourglass);
  EXPECT_EQ(at_the_end, MousePointer::kDefault);
  EXPECT_EQ(status_at_the_end, " ");
}

TEST_F(ParameterWritingTest, RefusedSessionAndAccessDoNotStopTheWrite) {
  Open();
  Image().EOL2.bNumBytes = 3;
  link.always = {{"StartSession", 1}, {"Password", 1}, {"StartRoutine", 1}};
  AnswerErrors({});
  Write();
  const Calls calls = link.TakeCalls();
  for (const char* call :
       {"StartSession 83", "Password", "StartRoutine 42:00000100", "StartRoutine 42:00000000"})
    EXPECT_EQ(std::ranges::count(calls, call), 4) << call;
  EXPECT_EQ(std::ranges::count(calls, "StartRoutine 05:"), 1);
  EXPECT_EQ(std::ranges::count(calls, "WriteMemory 3D:2"), 1);
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{kSaved});
}

TEST_F(ParameterWritingTest, VerdictIsAskedUntilTheFirstAnswer) {
  Open();
  int tries = 0;
  link.read_block = [&](std::uint8_t, std::uint8_t* count, std::uint8_t* data) {
    EXPECT_EQ(*count, 0);
    if (++tries < 4) return 1;
    data[2] = 0x10;
    return 0;
  };
  Write();
  EXPECT_EQ(tries, 4);
  const Boxes boxes = desktop.TakeBoxes();
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_TRUE(boxes[0].text.starts_with("Parameter Error 2-4 : ")) << boxes[0].text;
}

TEST_F(ParameterWritingTest, TenBitsAreTenMessages) {
  Open();
  AnswerErrors({{3, 0xFF}, {4, 0x03}});
  Write();
  EXPECT_EQ(desktop.TakeBoxes().size(), 11u);
}

TEST_F(ParameterWritingTest, RefusedBlocksAreTriedFourTimesAndToldOneByOne) {
  Open();
  FillAll();
  link.always["WriteMemory"] = 1;
  AnswerErrors({});
  Write();
  const Calls calls = link.TakeCalls();
  EXPECT_EQ(std::ranges::count(calls, "WriteMemory 03:10"), 4);
  Boxes expected;
  for (const char* text :
       {"Error Writing EOL5 Parameters", "Error Writing OVG Parameters",
        "Error Writing Vehicle Parameters", "Error Writing Trailer Parameters",
        "Error Writing EOL3 Parameters", "Error Writing EOL4 Parameters",
        "Error Writing EOL6 Parameters", "Error Writing EOL9 Parameters",
        "Error Writing FCF1 GIO Parameters", "Error Writing FCF2 GIO Parameters",
        "Error Writing FCF3 GIO Parameters", "Error Writing FCF4 GIO Parameters",
        "Error Writing FCF5 GIO Parameters", "Error Writing FCF6 GIO Parameters",
        "Error Writing FCF7 GIO Parameters", "Error Writing FCF8 GIO Parameters"})
    expected.push_back(PlainBox(text, "Write Error"));
  expected.push_back(kSaved);
  EXPECT_EQ(desktop.TakeBoxes(), expected);
}

TEST_F(ParameterWritingTest, ThirdTryOfABlockIsEnough) {
  Open();
  Image().EOL2.bNumBytes = 3;
  link.answers["WriteMemory"] = {1, 1, 0};
  AnswerErrors({});
  Write();
  EXPECT_EQ(std::ranges::count(link.TakeCalls(), "WriteMemory 3D:2"), 3);
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{kSaved});
}

TEST_F(ParameterWritingTest, FailuresBehindTheBlocksAreSilent) {
  Open();
  link.answers["StartRoutine"] = {0, 0, 1};
  link.always["ClearAllFaults"] = 1;
  link.always["ResetECU"] = 1;
  AnswerErrors({});
  Write();
  const Calls calls = link.TakeCalls();
  EXPECT_EQ(std::ranges::count(calls, "StartRoutine 05:"), 1);
  EXPECT_EQ(std::ranges::count(calls, "ClearAllFaults"), 4);
  EXPECT_EQ(std::ranges::count(calls, "ResetECU"), 4);
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{kSaved});
}

TEST_F(ParameterWritingTest, UnreadableVerdictIsToldAndTheEndingClaimsSuccessAllTheSame) {
  Open();
  link.read_block = [](std::uint8_t, std::uint8_t*, std::uint8_t*) { return 3; };
  Write();
  EXPECT_EQ(std::ranges::count(link.TakeCalls(), "ReadData 29"), 4);
  EXPECT_EQ(desktop.TakeBoxes(),
            (Boxes{PlainBox("Unable to read the Parameter Errors", "Read Error"), kSaved}));
}

TEST_F(ParameterWritingTest, EachSetBitIsOneMessageLowestFirst) {
  Open();
  AnswerErrors({{0, 0xFF}, {1, 0x42}, {15, 0x80}, {19, 0x01}, {20, 0xFF}});
  Write();
  std::vector<std::string> heads;
  for (const MessageBox& box : desktop.TakeBoxes()) {
    if (box.title != "Parameter Error") continue;
    heads.push_back(box.text.substr(0, box.text.find(" :")));
  }
  EXPECT_EQ(heads, (Calls{"Parameter Error 1-1", "Parameter Error 1-6", "Parameter Error 15-7",
                          "Parameter Error 19-0"}));
}

TEST_F(ParameterWritingTest, LastByteAloneIsNeverTold) {
  Open();
  AnswerErrors({{20, 0xFF}});
  Write();
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{kSaved});
}

TEST_F(ParameterWritingTest, CountOfTheVerdictIsNotUsed) {
  Open();
  link.read_block = [](std::uint8_t, std::uint8_t* count, std::uint8_t* data) {
    *count = 2;
    data[18] = 0x08;
    return 0;
  };
  Write();
  const Boxes boxes = desktop.TakeBoxes();
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_EQ(boxes[0].text,
            "Parameter Error 18-3 : Incorrect checksum for the Bootloader Diagnostic Paramter "
            "section");
}

TEST_F(ParameterWritingTest, PairOutsideTheCatalogueShowsAnEmptyText) {
  ShowParmError(desktop, 21, 1);
  ShowParmError(desktop, 1, 3);
  EXPECT_EQ(desktop.TakeBoxes(),
            (Boxes{PlainBox("", "Parameter Error"), PlainBox("", "Parameter Error")}));
}

TEST_F(ParameterWritingTest, FieldsOfTheTestsFollowTheImage) {
  Image().EOL1(1) = 0x80;
  Image().EOL1(42) = 40;
  Image().EOL1(43) = 0;
  Image().EOL1(68) = 3;
  Image().EOL1(69) = 232;
  Ecu().dLadenHeightValue.Store(-1.0);
  RefreshTestFields(Image(), Ecu());
  EXPECT_EQ(Ecu().nMounting.Load(), 1);
  EXPECT_EQ(Ecu().nMechanicalSuspension.Load(), 0);
  EXPECT_DOUBLE_EQ(Ecu().dTargetPressure1.Load(), 40 * 1.451);
  EXPECT_DOUBLE_EQ(Ecu().dTargetPressure2.Load(), 0.0);
  EXPECT_DOUBLE_EQ(Ecu().dLadenHeightValue.Load(), -1.0);  // air suspension has none
  Image().EOL1(1) = 0x20;
  RefreshTestFields(Image(), Ecu());
  EXPECT_EQ(Ecu().nMounting.Load(), 0);
  EXPECT_EQ(Ecu().nMechanicalSuspension.Load(), 1);
  EXPECT_DOUBLE_EQ(Ecu().dLadenHeightValue.Load(), 100.0);
}

}  // namespace
}  // namespace lorimet::testing_support
