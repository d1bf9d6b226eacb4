// What the library found, while a parameter file stands in its place in the ECU's record.
#include "parameters/found_configuration.h"

#include <cstring>

#include "autotests/parameters/wizard_fixture.h"
#include "autotests/places.h"
#include "session/session_part.h"

namespace lorimet::testing_support {
namespace {

class FoundConfigurationTest : public WizardFormTest {
 protected:
  // A draw-bar trailer 4S/2M with two axles, air suspension and the ECU facing the rear.
  void FindTrailer() {
    Ecu().bNumSensors.Store(4);
    Ecu().bNumModulators.Store(2);
    Ecu().nNumAxles.Store(2);
    Ecu().nVehicleType.Store(1);
    Ecu().nMechanicalSuspension.Store(0);
    Ecu().nMounting.Store(1);
    for (std::size_t i = 0; i < 3; ++i) {
      Ecu().nAxleLift[i].Store(static_cast<std::int16_t>(3 - i));
      Ecu().nAxleFlag[i].Store(static_cast<std::int16_t>(i % 2));
      Ecu().nAxleSensors[i].Store(static_cast<std::int16_t>((i + 2) % 3));
    }
    Ecu().VehicleId.Store("FOUND BY LIBRARY", ' ');
    Ecu().Manufacturer.Store("FOUND MAKER");
    Ecu().TrailerType.Store("FOUND TYPE");
  }
  // Opens the file of a 2S/1M trailer and closes its wizard.
  void OpenAndCloseFile(const char* name = "flatbed_2s1m") {
    desktop.AnswerFileDialog(InSource("docs/samples/") + name + ".ecu");
    desktop.OnModal("frmOVGParm1", [](Form& form) { form.UserClose(); });
    Main().mnuSystem[1].UserClick();
  }
  Lines ReadFromEcu() {
    desktop.OnModal("frmOVGParm1", [](Form& form) { form.UserClose(); });
    link.TakeCalls();
    Main().mnuSystem[0].UserClick();
    return link.TakeCalls();
  }
  // The record as it stands, less the live values, which the panel's timer does not touch.
  ECUData Record() { return Ecu(); }
  static bool Same(const ECUData& a, const ECUData& b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
  }
};

TEST_F(FoundConfigurationTest, ComesBackBeforeAReadFromTheEcuWithoutACallMore) {
  Start();
  link.read_block = [](std::uint8_t, std::uint8_t*, std::uint8_t*) { return 1; };
  FindTrailer();
  const Lines plain = ReadFromEcu();
  const ECUData found = Record();
  OpenAndCloseFile();
  EXPECT_EQ(Ecu().bNumModulators.Load(), 1);
  EXPECT_FALSE(Same(found, Record()));
  // Of two files the first has found what the library found.
  OpenAndCloseFile("tipper_mechanical_4s2m");
  EXPECT_EQ(Ecu().nMechanicalSuspension.Load(), 1);
  EXPECT_EQ(ReadFromEcu(), plain);
  EXPECT_TRUE(Same(found, Record()));
  EXPECT_EQ(Ecu().nNumAxles.Load(), 2);
  // It comes back once: what the library finds later stays.
  Ecu().nNumAxles.Store(3);
  ReadFromEcu();
  EXPECT_EQ(Ecu().nNumAxles.Load(), 3);
}

TEST_F(FoundConfigurationTest, ReadItselfSeesWhatWasFound) {
  Start();
  FindTrailer();
  OpenAndCloseFile();
  int modulators = 0;
  link.on_call = [&](const std::string& call) {
    if (call == "StartSession 83") modulators = Ecu().bNumModulators.Load();
  };
  ReadFromEcu();
  EXPECT_EQ(modulators, 2);
}

TEST_F(FoundConfigurationTest, NewStaticReadTakesItsPlace) {
  Start();
  FindTrailer();
  OpenAndCloseFile();
  link.on_static_read = [this] {
    Ecu().bNumSensors.Store(2);
    Ecu().bNumModulators.Store(2);
    Ecu().nNumAxles.Store(3);
    Ecu().nLinkJobDone.Store(-1);
  };
  Main().RestartECU();
  ReadFromEcu();
  EXPECT_EQ(Ecu().bNumSensors.Load(), 2);
  EXPECT_EQ(Ecu().nNumAxles.Load(), 3);
}

TEST_F(FoundConfigurationTest, FileThatTheEcuAcceptedStays) {
  Start();
  FindTrailer();
  OpenAndCloseFile("tipper_mechanical_4s2m");
  System().Load();
  Image().EOL1(19) = 0x2B;  // axle 3: second lift axle, flag, sensors e-f
  SaveToEcu();
  // Axles, type and suspension are the ECU's now; sensors and modulators are what they were.
  EXPECT_EQ(Ecu().nVehicleType.Load(), Image().EOL1(1) & 0x03);
  EXPECT_EQ(Ecu().nMechanicalSuspension.Load(), 1);
  EXPECT_EQ(Ecu().nNumAxles.Load(), 3);
  EXPECT_EQ(Ecu().nAxleLift[2].Load(), 3);
  EXPECT_EQ(Ecu().nAxleFlag[2].Load(), 1);
  EXPECT_EQ(Ecu().nAxleSensors[2].Load(), 2);
  EXPECT_EQ(Ecu().bNumSensors.Load(), 4);
  EXPECT_EQ(Ecu().bNumModulators.Load(), 2);
  link.read_block = [](std::uint8_t, std::uint8_t*, std::uint8_t*) { return 1; };
  ReadFromEcu();
  EXPECT_EQ(Ecu().nMechanicalSuspension.Load(), 1);
  EXPECT_EQ(Ecu().nNumAxles.Load(), 3);
}

TEST_F(FoundConfigurationTest, SensorsAndModulatorsStayWhatTheLibraryFoundThroughAWrite) {
  Start();
  FindTrailer();
  OpenAndCloseFile();  // 2S/1M
  System().Load();
  SaveToEcu();
  EXPECT_EQ(Ecu().bNumSensors.Load(), 4);
  EXPECT_EQ(Ecu().bNumModulators.Load(), 2);
}

TEST_F(FoundConfigurationTest, FileThatTheEcuRefusedGivesWay) {
  Start();
  link.read_block = [](std::uint8_t, std::uint8_t*, std::uint8_t*) { return 1; };
  FindTrailer();
  OpenAndCloseFile("tipper_mechanical_4s2m");
  System().Load();
  link.always["WriteMemory"] = 1;
  SaveToEcu();
  EXPECT_EQ(Ecu().nMechanicalSuspension.Load(), 1);
  ReadFromEcu();
  EXPECT_EQ(Ecu().nMechanicalSuspension.Load(), 0);
  EXPECT_EQ(Ecu().nNumAxles.Load(), 2);
  EXPECT_EQ(Ecu().nAxleLift[0].Load(), 3);
}

TEST_F(FoundConfigurationTest, NumberOfAxlesFollowsTheChoiceOfTheSystemPage) {
  Start();
  FindTrailer();
  Image().EOL1.bNumBytes = 80;
  System().Load();
  System().optNumAxles[2].UserClick();
  SaveToEcu();
  EXPECT_EQ(Ecu().nNumAxles.Load(), 3);
}

TEST_F(FoundConfigurationTest, RefusedWriteLeavesTheAxlesAlone) {
  Start();
  FindTrailer();
  Image().EOL1.bNumBytes = 80;
  System().Load();
  System().optNumAxles[2].UserClick();
  link.always["WriteMemory"] = 1;
  SaveToEcu();
  EXPECT_EQ(Ecu().nNumAxles.Load(), 2);
  EXPECT_EQ(Ecu().nAxleSensors[0].Load(), 2);
}

}  // namespace
}  // namespace lorimet::testing_support
