// Reading the parameter image from the ECU.
#include "parameters/parameter_reading.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "autotests/common/program_fixture.h"
#include "parameters/block_table.h"
#include "parameters/parameters_part.h"
#include "session/session_part.h"
#include "support/support_part.h"

namespace lorimet::testing_support {
namespace {

using Calls = std::vector<std::string>;

const Calls kOpening = {"StartSession 83", "Password", "StartRoutine 42:00000100"};

class ParameterReadingTest : public ProgramTest {
 protected:
  ParameterImage& Image() { return program.parameters->image; }
  std::int32_t Read() {
    return ReadParmsFromECU({link, desktop, program.support->dictionary, Ecu(), Image(),
                             program.parameters->found, Main(), Main().txtError});
  }
  // Answers each block with its id as echo and its index plus an offset in each byte.
  void Answer(std::uint8_t count) {
    link.read_block = [count](std::uint8_t id, std::uint8_t* out, std::uint8_t* data) {
      data[0] = id;
      for (int i = 1; i < count; ++i) data[i] = static_cast<std::uint8_t>(i + id);
      *out = count;
      return 0;
    };
  }
  Calls WithOpening(Calls calls) {
    calls.insert(calls.begin(), kOpening.begin(), kOpening.end());
    return calls;
  }
};

TEST_F(ParameterReadingTest, ReadsSixBlocksInOrder) {
  Answer(80);
  Start();
  EXPECT_EQ(Read(), 0);
  EXPECT_EQ(link.TakeCalls(), WithOpening({"ReadData 3D", "ReadData 03", "ReadData 06",
                                           "ReadData 28", "ReadData 27", "ReadData 42"}));
  EXPECT_EQ(Image().EOL1.bNumBytes, 80);
  EXPECT_EQ(Image().EOL1(0), 0x03);
  EXPECT_EQ(Image().EOL9(5), 5 + 0x42);
}

TEST_F(ParameterReadingTest, CountsAreAsReturnedButForThoseThatAreForced) {
  Answer(80);
  Start();
  Image().EOL4.bNumBytes = 9;
  Image().EOL6.bNumBytes = 9;
  for (const BlockName block : kFunctionBlocks) (Image().*block).bNumBytes = 111;
  Read();
  EXPECT_EQ(Image().EOL2.bNumBytes, 80);
  EXPECT_EQ(Image().EOL7.bNumBytes, 123);
  EXPECT_EQ(Image().EOL4.bNumBytes, 0);
  EXPECT_EQ(Image().EOL6.bNumBytes, 0);
  for (const BlockName block : kFunctionBlocks) EXPECT_EQ((Image().*block).bNumBytes, 0);
}

TEST_F(ParameterReadingTest, DeadLinkIsTriedFourTimesABlockAndKeepsTheImage) {
  Start();
  Image().EOL1(5) = 77;
  Image().EOL1.bNumBytes = 60;
  Image().EOL2.bNumBytes = 60;
  link.read_block = [](std::uint8_t, std::uint8_t* count, std::uint8_t* data) {
    *count = 99;
    std::fill_n(data, 512, std::uint8_t{0xEE});
    return 5;
  };
  EXPECT_EQ(Read(), 5);
  Calls expected = kOpening;
  for (const char* id : {"3D", "03", "06", "28", "27", "42"})
    expected.insert(expected.end(), 4, std::string("ReadData ") + id);
  EXPECT_EQ(link.TakeCalls(), expected);
  EXPECT_EQ(Image().EOL1(5), 77);
  EXPECT_EQ(Image().EOL1.bNumBytes, 60);
  EXPECT_EQ(Image().EOL2.bNumBytes, 0);  // emptied before each try
  EXPECT_EQ(Image().EOL7.bNumBytes, 123);
}

TEST_F(ParameterReadingTest, RetriesUntilTheFirstSuccess) {
  Start();
  std::map<int, int> tries;
  link.read_block = [&](std::uint8_t id, std::uint8_t* count, std::uint8_t*) {
    *count = 50;
    return ++tries[id] < 3 ? 1 : 0;
  };
  EXPECT_EQ(Read(), 0);
  for (const auto& [id, count] : tries) EXPECT_EQ(count, 3) << id;
}

TEST_F(ParameterReadingTest, ShortAnswerLeavesTheTail) {
  Start();
  Image().EOL1(100) = 42;
  Answer(10);
  Read();
  EXPECT_EQ(Image().EOL1(9), 9 + 3);
  EXPECT_EQ(Image().EOL1(100), 42);
  EXPECT_EQ(Image().EOL1.bNumBytes, 10);
}

TEST_F(ParameterReadingTest, LongAnswerFillsTheBlockAndNoMore) {
  Start();
  link.read_block = [](std::uint8_t, std::uint8_t* count, std::uint8_t* data) {
    std::fill_n(data, 512, std::uint8_t{0xAB});
    *count = 255;
    return 0;
  };
  Image().EOL3.bNumBytes = 1;
  Read();
  EXPECT_EQ(Image().EOL1(200), 0xAB);
  EXPECT_EQ(Image().EOL1.bNumBytes, 255);
}

TEST_F(ParameterReadingTest, UserSeesTheWorkBeforeTheBlockingReads) {
  Start();
  std::vector<std::string> shown;
  std::vector<MousePointer> pointers;
  desktop.on_repaint = [&] {
    shown.push_back(Main().txtError.Text());
    pointers.push_back(Main().Pointer());
  };
  Read();
  EXPECT_EQ(shown, (Calls{"Reading Parameter Data...", " "}));
  EXPECT_EQ(pointers,
            (std::vector<MousePointer>{MousePointer::kHourglass, MousePointer::kHourglass}));
  EXPECT_EQ(Main().Pointer(), MousePointer::kArrow);
}

TEST_F(ParameterReadingTest, ProgressIsInTheUsersLanguage) {
  Start();
  program.support->dictionary.SetLanguage(kFrench);
  std::vector<std::string> shown;
  desktop.on_repaint = [&] { shown.push_back(Main().txtError.Text()); };
  Read();
  EXPECT_EQ(shown, (Calls{"Lecture des données de paramètres...", " "}));
}

TEST_F(ParameterReadingTest, GoodBlocksRefreshTheFieldsThatNobodyElseFills) {
  Start();
  link.read_block = [](std::uint8_t id, std::uint8_t* count, std::uint8_t* data) {
    *count = 123;
    if (id == 0x03) {
      data[1] = 0x02 | 0x20 | 0x80;  // single axle, mechanical, rear
      data[7] = 0x01 | 0x10;
      data[13] = 0x08 | 0x20;
      data[19] = 0x03;
    }
    if (id == 0x06) {
      std::copy_n("VEHICLE 1         ", 18, data + 4);
      std::copy_n("MAKER               ", 20, data + 22);
      std::copy_n("TYPE                ", 20, data + 42);
    }
    return 0;
  };
  Ecu().nMechanicalSuspension.Store(0);
  Ecu().nMounting.Store(0);
  Ecu().nNumAxles.Store(2);
  Read();
  EXPECT_EQ(Ecu().nVehicleType.Load(), 2);
  EXPECT_EQ(Ecu().nAxleLift[0].Load(), 1);
  EXPECT_EQ(Ecu().nAxleLift[2].Load(), 3);
  EXPECT_EQ(Ecu().nAxleFlag[1].Load(), 1);
  EXPECT_EQ(Ecu().VehicleId.Load(), "VEHICLE 1         ");
  EXPECT_EQ(Ecu().Manufacturer.Load().substr(0, 20), "MAKER               ");
  EXPECT_EQ(Ecu().TrailerType.Load().substr(0, 20), "TYPE                ");
  // The fields that the library fills stay its own.
  EXPECT_EQ(Ecu().nMechanicalSuspension.Load(), 0);
  EXPECT_EQ(Ecu().nMounting.Load(), 0);
  EXPECT_EQ(Ecu().nNumAxles.Load(), 2);
}

TEST_F(ParameterReadingTest, FailedBlocksRefreshNothing) {
  Start();
  Ecu().nVehicleType.Store(1);
  Ecu().VehicleId.Store("KEPT", ' ');
  link.read_block = [](std::uint8_t, std::uint8_t*, std::uint8_t*) { return 1; };
  Read();
  EXPECT_EQ(Ecu().nVehicleType.Load(), 1);
  EXPECT_EQ(Ecu().VehicleId.Load().substr(0, 4), "KEPT");
}

TEST_F(ParameterReadingTest, ResultIsTheStatusOfTheLastBlockAlone) {
  Start();
  link.read_block = [](std::uint8_t id, std::uint8_t*, std::uint8_t*) {
    return id == 0x42 ? 0 : 7;
  };
  EXPECT_EQ(Read(), 0);
  link.read_block = [](std::uint8_t id, std::uint8_t*, std::uint8_t*) {
    return id == 0x42 ? 7 : 0;
  };
  EXPECT_EQ(Read(), 7);
}

TEST_F(ParameterReadingTest, RefusedSessionAndAccessDoNotStopTheRead) {
  Start();
  link.always = {{"StartSession", 1}, {"Password", 1}, {"StartRoutine", 1}};
  Answer(80);
  EXPECT_EQ(Read(), 0);
  Calls expected(4, "StartSession 83");
  expected.insert(expected.end(), 4, "Password");
  expected.insert(expected.end(), 4, "StartRoutine 42:00000100");
  for (const char* id : {"3D", "03", "06", "28", "27", "42"})
    expected.push_back(std::string("ReadData ") + id);
  EXPECT_EQ(link.TakeCalls(), expected);
  EXPECT_EQ(Image().EOL1.bNumBytes, 80);
}

TEST_F(ParameterReadingTest, AccessStaysOpenBehindTheRead) {
  Start();
  Read();
  EXPECT_EQ(std::ranges::count(link.TakeCalls(), "StartRoutine 42:00000000"), 0);
}

TEST_F(ParameterReadingTest, CountOfTheGuardIsEmptiedBeforeEachTryAndNoOther) {
  Start();
  Image().EOL2.bNumBytes = 33;
  Image().EOL1.bNumBytes = 44;
  std::map<int, std::vector<int>> given;
  link.read_block = [&](std::uint8_t id, std::uint8_t* count, std::uint8_t*) {
    given[id].push_back(*count);
    *count = 99;
    return 1;
  };
  Read();
  EXPECT_EQ(given[0x3D], (std::vector<int>{0, 0, 0, 0}));
  EXPECT_EQ(given[0x03], (std::vector<int>{44, 44, 44, 44}));
}

TEST_F(ParameterReadingTest, AnyCountAndAnotherBlocksAnswerAreTakenAsTheyAre) {
  Start();
  for (const int returned : {0, 1, 2, 200, 201, 202, 255}) {
    link.read_block = [returned](std::uint8_t, std::uint8_t* count, std::uint8_t* data) {
      std::fill_n(data, 512, std::uint8_t{0x99});  // the echo of no block at all
      *count = static_cast<std::uint8_t>(returned);
      return 0;
    };
    Image() = {};
    EXPECT_EQ(Read(), 0);
    for (const ParmBlock* block :
         {&Image().EOL1, &Image().EOL2, &Image().EOL3, &Image().EOL5, &Image().EOL9}) {
      EXPECT_EQ(block->bNumBytes, returned);
      EXPECT_EQ((*block)(0), 0x99);
      EXPECT_EQ((*block)(200), 0x99);
    }
    EXPECT_EQ(Image().EOL7.bNumBytes, 123);
    EXPECT_EQ(Image().EOL4, ParmBlock());
    // The wizard opens and closes on it.
    desktop.OnModal("frmOVGParm1", [](Form& form) { form.UserClose(); });
    Main().mnuSystem[0].UserClick();
  }
}

TEST_F(ParameterReadingTest, MenuOpensTheWizardWhateverTheReadReturned) {
  Start();
  link.read_block = [](std::uint8_t, std::uint8_t*, std::uint8_t*) { return 1; };
  desktop.OnModal("frmOVGParm1", [](Form& form) { form.UserClose(); });
  Main().mnuSystem[0].UserClick();
  EXPECT_EQ(desktop.ModalForms(), (Calls{"frmOVGParm1"}));
}

}  // namespace
}  // namespace lorimet::testing_support
