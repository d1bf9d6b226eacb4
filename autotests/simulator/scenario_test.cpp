#include "simulator/trailer/scenario.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

#include "autotests/places.h"
#include "autotests/simulator/link_fixture.h"
#include "simulator/trailer/command.h"
#include "simulator/trailer/persistence.h"

namespace lorimet::simulator {
namespace {

using Words = std::vector<std::string>;

TEST(CommandWordsTest, AreParted) {
  EXPECT_EQ(*SplitWords(""), Words{});
  EXPECT_EQ(*SplitWords("  \t # all comment"), Words{});
  EXPECT_EQ(*SplitWords("a  b\tc\r"), (Words{"a", "b", "c"}));
  EXPECT_EQ(*SplitWords("a b#c # d"), (Words{"a", "b#c"}));
  EXPECT_EQ(*SplitWords(R"(a "b c # d" "")"), (Words{"a", "b c # d", ""}));
  EXPECT_EQ(*SplitWords(R"("\"\\\x41\xFF")"), (Words{"\"\\A\xFF"}));
  for (const char* broken : {R"(a "b)", R"("\)", R"("\x4")", R"("\xZZ")"})
    EXPECT_FALSE(SplitWords(broken).has_value()) << broken;
}

TEST(CommandWordsTest, CrossIntoTheCodePage) {
  EXPECT_EQ(*SplitWords("M\xC3\xBCller"), Words{"M\xFCller"});
  EXPECT_EQ(*SplitWords("\xE2\x82\xAC"
                        "5 \xC2\x81"),
            (Words{"?5", "?"}));
}

TEST(CommandWordsTest, AreNumbersAsAWholeOnly) {
  EXPECT_EQ(ParseNumber("1.5"), 1.5);
  EXPECT_EQ(ParseNumber("-1"), -1.0);
  EXPECT_EQ(ParseNumber("0x10"), 16.0);
  EXPECT_EQ(ParseInteger("0xFF", 0, 255), 255);
  for (const char* text : {"", "1 ", "1x", "x", "0x", "0x-1", "0xG", "1,5"}) {
    EXPECT_FALSE(ParseNumber(text)) << text;
    EXPECT_FALSE(ParseInteger(text, -10, 10)) << text;
  }
  EXPECT_FALSE(ParseInteger("256", 0, 255));
  EXPECT_FALSE(ParseInteger("99999999999999999999", 0, INT64_MAX));
}

TEST(ScenarioTest, EveryFileOfTheRepositoryIsValid) {
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(InSource("simulator/scenarios"))) {
    std::ifstream file(entry.path());
    const std::string text((std::istreambuf_iterator<char>(file)),
                           std::istreambuf_iterator<char>());
    EXPECT_EQ(BuildScenario(text).error, "") << entry.path();
    EXPECT_TRUE(text.starts_with("# ")) << entry.path() << " says what it is for";
    ++files;
  }
  EXPECT_GE(files, 10);
}

TEST(ScenarioTest, BuildsWhateverTheOrderOfItsLines) {
  const auto result = BuildScenario("parameter EOL1 1 7\nconfiguration 2S/1M\nsupply 50\n");
  ASSERT_EQ(result.error, "");
  EXPECT_EQ(result.simulation->trailer.Setup().system, System::k2S1M);
  EXPECT_EQ(result.simulation->trailer.Parameters().Byte(kEol1, 1), 7);
  EXPECT_EQ(result.simulation->trailer.Supply().Pressure(), 50);
}

TEST(ScenarioTest, SaysWhichLineIsWrongAndFallsBackToTheDefault) {
  const auto result = BuildScenario("configuration 2S/1M\n\n# comment\nsupply lots\nfault 1\n");
  EXPECT_EQ(result.error, "line 4: 'lots' is not a valid value");
  EXPECT_EQ(result.simulation->trailer.Setup().system, System::k4S2M);
  EXPECT_EQ(BuildScenario("fault 1\nsupply lots").error,
            "line 1: use: fault SID FMI active|stored|gone|none|STATUS [TIMES]");
}

TEST(ScenarioTest, RefusesWhatItDoesNotUnderstand) {
  for (const char* line : {"fly",
                           "configuration 6S/3M",
                           "configuration",
                           "configuration 2S/1M 4S/2M",
                           "suspension water",
                           "axles 0",
                           "axles 4",
                           "axles 1.5",
                           "vehicle boat",
                           "mounting up",
                           "lateral_sensor maybe",
                           "session_timeout -1",
                           "client_id 128",
                           "client_id -1",
                           "adapter colour red",
                           "adapter device 70000",
                           "answer nothing x",
                           "cable loose",
                           "post 3000000000",
                           "failure rain",
                           "failure refuse operation=Fly",
                           "failure refuse often",
                           "failure refuse times=0",
                           "failure refuse times=2x",
                           "failure refuse colour=red",
                           "failure refuse block=EOL8",
                           "failure refuse block=256",
                           "failure refuse value=x",
                           "heal rain",
                           "identity shoe_size 9",
                           "identity system_name 1234567890123456789",
                           "identity vehicle_id 1234567890123456789",
                           "fault x 1 active",
                           "fault 1 x active",
                           "fault 1 1 sleeping",
                           "fault 1 1 active x",
                           "parameter EOL8 1 1",
                           "parameter EOL1 0 1",
                           "parameter EOL1 81 1",
                           "parameter EOL1 80 1 2",
                           "parameter EOL1 1 256",
                           "checksum EOL1 ok",
                           "checksum 0x99 wrong",
                           "parameter_error 21-0 on",
                           "parameter_error 1-8 on",
                           "parameter_error 1 on",
                           "parameter_error 1-1 perhaps",
                           "flag 256",
                           "word 1 2 3 65536",
                           "word 256 2 3 1",
                           "session begin",
                           "supply -1",
                           "compressor broken",
                           "press harder 5",
                           "press demand x",
                           "load 1.1",
                           "load heavy",
                           "spin g 5",
                           "spin cc 5",
                           "spin c -1",
                           "voltage x",
                           "voltage_source sun",
                           "distance moon 5",
                           "distance trip x",
                           "height -1",
                           "field x",
                           "release x",
                           "identity part_number \"open"})
    EXPECT_NE(BuildScenario(line).error, "") << line;
}

TEST(ScenarioTest, ACommandThatBuildsCannotRunOnALivingTrailer) {
  const auto simulation = DefaultSimulation();
  EXPECT_EQ(RunCommand(*simulation, "configuration 2S/1M"),
            "'configuration' can stand only in a scenario file");
  EXPECT_EQ(RunCommand(*simulation, "  # nothing"), "");
}

TEST(ScenarioTest, IdentityMayBeEmptyAndTheVehiclesOwnStandsInItsParameters) {
  const auto result = BuildScenario(
      "identity serial_number \"\"\nidentity vehicle_id \"AB 12\"\nidentity manufacturer X\n"
      "identity trailer_type \"\"");
  ASSERT_EQ(result.error, "");
  EXPECT_EQ(result.simulation->trailer.Ident().serial_number, "");
  EXPECT_EQ(result.simulation->trailer.Vehicle().VehicleId(), "AB 12             ");
  EXPECT_EQ(result.simulation->trailer.Vehicle().Manufacturer(), "X" + std::string(19, ' '));
  EXPECT_EQ(result.simulation->trailer.Vehicle().TrailerType(), std::string(20, ' '));
}

// --- State --------------------------------------------------------------------------------------

constexpr char kScenario[] = "fault 3 5 active 7\nfault 7 3 stored 2\n";

std::string ChangedState() {
  Link link(kScenario);
  Trailer& trailer = link.TheTrailer();
  trailer.Parameters().SetByte(kEol3, 1, 99);
  trailer.Parameters().SpoilChecksum(kEol5);
  trailer.SetEndOfLineFlag(1);
  trailer.Faults().Set({3, 5, kFaultActive, 12});
  trailer.Faults().Set({4, 4, kFaultActive, -1});
  trailer.Faults().Remove(7, 3);
  return link.State();
}

TEST(StateTest, OutlivesTheTrailer) {
  Link link(kScenario);
  ASSERT_TRUE(link.Restore(ChangedState()));
  const Trailer& trailer = link.TheTrailer();
  EXPECT_EQ(trailer.Parameters().Byte(kEol3, 1), 99);
  EXPECT_FALSE(trailer.Parameters().ChecksumRight(kEol5));
  EXPECT_TRUE(trailer.Parameters().ChecksumRight(kEol3));
  EXPECT_EQ(trailer.EndOfLineFlag(), 1);
  const std::vector<Fault> expected = {
      {3, 5, kFaultActive, 12}, {4, 4, kFaultStored, -1}, {253, 12, kFaultActive, 1}};
  EXPECT_EQ(trailer.Faults().Faults(), expected)
      << "no cause of 4/4 stands any more, and a checksum is wrong";
}

TEST(StateTest, AClearedFaultWhoseCauseStandsIsBackInTheNextLife) {
  Link link(kScenario);
  link.TheTrailer().ClearFaults();
  Link next(kScenario);
  ASSERT_TRUE(next.Restore(link.State()));
  EXPECT_EQ(next.TheTrailer().Faults().Faults(), (std::vector<Fault>{{3, 5, kFaultActive, 1}}));
}

TEST(StateTest, OfAnotherScenarioIsIgnored) {
  Link link("configuration 2S/1M");
  const std::string before = link.State();
  EXPECT_FALSE(link.Restore(ChangedState()));
  EXPECT_EQ(link.State(), before);
}

TEST(StateTest, DamagedAnywhereIsIgnoredAsAWhole) {
  const std::string state = ChangedState();
  Link link(kScenario);
  const std::string before = link.State();
  EXPECT_FALSE(link.Restore(""));
  EXPECT_FALSE(link.Restore("end "));
  for (std::size_t i = 0; i < state.size(); i += 7) {
    std::string damaged = state;
    damaged[i] = damaged[i] == '0' ? '1' : '0';
    EXPECT_FALSE(link.Restore(damaged)) << i;
    EXPECT_FALSE(link.Restore(state.substr(0, i))) << i;
  }
  EXPECT_EQ(link.State(), before);
}

TEST(StateTest, EveryChangeThatOutlivesPowerIsNoticed) {
  Link link(kScenario);
  Trailer& trailer = link.TheTrailer();
  std::uint64_t last = link.StateRevision();
  const auto changed = [&] { return std::exchange(last, link.StateRevision()) != last; };
  link.Advance(10);
  EXPECT_FALSE(changed());
  trailer.SetEndOfLineFlag(1);
  EXPECT_TRUE(changed());
  trailer.ClearFaults();
  EXPECT_TRUE(changed());
  link.Advance(2);
  EXPECT_TRUE(changed()) << "the standing cause is a fault again";
  const std::uint8_t data[] = {1};
  trailer.Parameters().Write(kEol3, data);
  EXPECT_TRUE(changed());
  trailer.Parameters().RebuildChecksums();
  EXPECT_TRUE(changed());
}

}  // namespace
}  // namespace lorimet::simulator
