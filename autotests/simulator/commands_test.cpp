// The command language: how many words each command takes, and which numbers.
#include <cstring>
#include <set>
#include <string>

#include "autotests/places.h"
#include "autotests/simulator/link_fixture.h"
#include "simulator/trailer/load_sensing.h"

namespace lorimet::simulator {
namespace {

using CommandsTest = LinkFixture;

struct Counts {
  const char* word;
  std::size_t least;
  std::size_t most;  // 0: any number
};

constexpr Counts kCounts[] = {
    {"configuration", 1, 1},
    {"suspension", 1, 1},
    {"axles", 1, 1},
    {"vehicle", 1, 1},
    {"mounting", 1, 1},
    {"lateral_sensor", 1, 1},
    {"session_timeout", 1, 1},
    {"client_id", 1, 1},
    {"adapter", 1, 2},
    {"answer", 2, 2},
    {"cable", 1, 1},
    {"post", 1, 1},
    {"failure", 1, 12},
    {"heal", 1, 1},
    {"field", 2, 2},
    {"transfer", 1, 20},
    {"export", 1, 2},
    {"release", 1, 1},
    {"identity", 2, 2},
    {"fault", 3, 4},
    {"parameter", 3, 0},
    {"checksum", 2, 2},
    {"parameter_error", 2, 2},
    {"flag", 1, 1},
    {"word", 4, 4},
    {"reset", 0, 0},
    {"reset_time", 1, 1},
    {"session", 1, 1},
    {"session_keep_alive", 1, 1},
    {"calibration", 1, 1},
    {"start_up", 1, 1},
    {"supply", 1, 1},
    {"compressor", 1, 1},
    {"press", 2, 2},
    {"load", 1, 1},
    {"spin", 2, 2},
    {"parking_brake", 1, 1},
    {"voltage", 1, 1},
    {"voltage_source", 1, 1},
    {"power", 1, 1},
    {"stop_light_power", 1, 1},
    {"stop_lights", 1, 1},
    {"distance", 2, 2},
    {"height", 1, 1},
    {"lever", 1, 1},
    {"drive", 1, 1},
    {"lateral", 1, 1},
    {"surface", 1, 1},
    {"towing_vehicle", 1, 1},
    {"bus", 1, 2},
    {"bus_load", 1, 1},
    {"record", 1, 3},
    {"defect", 1, 6},
    {"repair", 1, 1},
    {"noise", 1, 1},
    {"get", 1, 4},
    {"at", 2, 0},
    {"after", 2, 0},
    {"when", 2, 0},
    {"cancel", 1, 1},
    {"log", 1, 1},
    {"scenario", 1, 1},
};

std::string WithWords(const char* command, std::size_t count) {
  std::string line = command;
  for (std::size_t i = 0; i < count; ++i) line += " x";
  return line;
}

TEST_F(CommandsTest, EachTakesItsNumberOfWordsAndNoOther) {
  std::set<std::string_view> listed;
  for (const Counts& row : kCounts) {
    listed.insert(row.word);
    const std::string usage = std::string("use: ") + row.word + " ";
    if (row.least > 0) {
      EXPECT_TRUE(link_->Command(WithWords(row.word, row.least - 1)).starts_with(usage))
          << row.word;
    }
    EXPECT_FALSE(link_->Command(WithWords(row.word, row.least)).starts_with(usage)) << row.word;
    if (row.most == 0 && row.least > 0) continue;
    EXPECT_FALSE(link_->Command(WithWords(row.word, row.most)).starts_with(usage)) << row.word;
    EXPECT_TRUE(link_->Command(WithWords(row.word, row.most + 1)).starts_with(usage)) << row.word;
  }
  for (const CommandFacts& facts : Commands())
    EXPECT_TRUE(listed.contains(facts.word)) << facts.word;
  EXPECT_EQ(listed.size(), Commands().size());
}

struct Range {
  const char* before;  // the words in front of the number
  const char* inside[3];
  const char* outside[3];
};

TEST_F(CommandsTest, NumbersAreTakenUpToTheirBoundsAndNoFurther) {
  const Range ranges[] = {
      {"client_id", {"0", "127"}, {"-1", "128", "1.5"}},
      {"adapter device", {"-32768", "32767"}, {"-32769", "32768"}},
      {"post", {"-2147483648", "2147483647"}, {"-2147483649", "2147483648"}},
      {"supply", {"0", "1000"}, {"-0.1", "1000.1"}},
      {"press demand", {"0", "1000"}, {"-0.1", "1000.1"}},
      {"load", {"0", "1", "0.5"}, {"-0.01", "1.01", "nan"}},
      {"spin 2", {"0", "1000"}, {"-0.1", "1000.1"}},
      {"spin c", {"0", "1000"}, {"-0.1", "1000.1"}},
      {"voltage", {"0", "100"}, {"-0.1", "100.1"}},
      {"distance trip", {"-1e9", "1e9"}, {"-1.1e9", "1.1e9"}},
      {"height", {"0", "65535", "none"}, {"-1", "65536", "1.5"}},
      {"lever", {"-90", "90"}, {"-90.1", "90.1"}},
      {"drive", {"0", "100", "stop"}, {"-1", "100.1"}},
      {"lateral", {"0", "2"}, {"-0.1", "2.1"}},
      {"flag", {"0", "255"}, {"-1", "256"}},
      {"reset_time", {"0", "60"}, {"-0.1", "60.1"}},
      {"word 1 2 255", {"0", "65535"}, {"-1", "65536"}},
      {"word 256 2 3", {}, {"1"}},
      {"word 1 256 3", {}, {"1"}},
      {"word 1 2 256", {}, {"1"}},
      {"parameter EOL1 1", {"0", "255"}, {"-1", "256"}},
      {"parameter EOL1 80", {"1"}, {"1 2"}},
      {"parameter EOL1 81", {}, {"1"}},
      {"parameter EOL1 0", {}, {"1"}},
      {"parameter 0x45 110", {"1"}, {"1 2"}},
      {"at", {"0 reset", "1000000 reset"}, {"-1 reset", "1000001 reset"}},
      {"after", {"0 reset", "1000000 reset"}, {"-1 reset", "1000001 reset"}},
      {"defect supply_leak", {"0", "1000"}, {"-0.1", "1000.1"}},
      {"defect control_residual", {"0", "1000"}, {"-0.1", "1000.1"}},
      {"defect control_sensor", {"offset=-200", "offset=200"}, {"offset=-201", "offset=201"}},
      {"defect modulator H1", {"weak=0", "weak=2"}, {"weak=-0.1", "weak=2.1"}},
      {"defect modulator H2", {"residual=200", "slow=0.1"}, {"residual=201", "slow=0.05"}},
      {"defect modulator H3", {"dead", "leak=1000"}, {"leak=1001", "leak=-1", "alive"}},
      {"defect redundancy H1", {"kinked=0.01", "kinked=1000"}, {"kinked=0", "kinked=1001"}},
      {"defect sensor c", {"gap=0", "gap=1"}, {"gap=-0.1", "gap=1.1", "slow"}},
      {"defect wheel", {"1 no_brake", "6 no_brake"}, {"0 no_brake", "7 no_brake", "1 flat"}},
      {"defect mode_ignored", {"1", "2"}, {"0", "3"}},
      {"defect wire", {"c d", "e f"}, {"c c", "a b", "c g"}},
      {"failure refuse", {"times=1", "skip=0", "for=0.01"}, {"times=0", "skip=-1", "for=0"}},
      {"failure refuse", {"channel=255", "address=0xFFFFFF"}, {"channel=256", "address=0x1000000"}},
      {"noise", {"seed=0", "on"}, {"seed=-1", "seed=x", "loud"}},
  };
  for (const Range& range : ranges) {
    for (const char* value : range.inside) {
      if (value == nullptr) continue;
      const std::string line = std::string(range.before) + " " + value;
      EXPECT_EQ(link_->Command(line), "") << line;
    }
    for (const char* value : range.outside) {
      if (value == nullptr) continue;
      const std::string line = std::string(range.before) + " " + value;
      EXPECT_NE(link_->Command(line), "") << line;
    }
  }
}

TEST_F(CommandsTest, ARefusedDefectChangesNothing) {
  EXPECT_NE(link_->Command("defect modulator H1 dead weak=9"), "");
  EXPECT_FALSE(link_->TheTrailer().Wrong().modulators[0].dead);
  for (const char* line :
       {"defect", "defect rust", "defect modulator H4 dead", "defect modulator H0 dead",
        "defect modulator h1 dead", "defect pressure_sensor H3 none", "defect bellows soft",
        "defect lamp broken", "defect lines_swapped now", "defect sensor a open", "repair rust"})
    EXPECT_NE(link_->Command(line), "") << line;
}

TEST_F(CommandsTest, EveryDefectCanBeMended) {
  const char* defects[] = {"supply_leak 3",
                           "lines_swapped",
                           "control_residual 4",
                           "control_leak 2",
                           "control_sensor none",
                           "supply_sensor high",
                           "bellows_sensor offset=3",
                           "bellows burst",
                           "modulator H1 dead",
                           "pressure_sensor H2 none",
                           "redundancy H1 blocked",
                           "brake_lines crossed",
                           "wire c d",
                           "sensor c open",
                           "wheel 1 no_brake",
                           "mode_ignored 2",
                           "load_ignored",
                           "lamp dead",
                           "height_sensor open",
                           "stop_lights dead"};
  const Defects well;
  std::set<std::string> named;
  for (const char* defect : defects) {
    const std::string name = std::string(defect).substr(0, std::string_view(defect).find(' '));
    named.insert(name);
    const Defects& wrong = link_->TheTrailer().Wrong();
    ASSERT_EQ(link_->Command(std::string("defect ") + defect), "") << defect;
    EXPECT_FALSE(wrong == well) << defect;
    ASSERT_EQ(link_->Command("repair " + name), "") << defect;
    EXPECT_TRUE(wrong == well) << defect;
  }
  EXPECT_EQ(named.size(), DefectTable().size()) << "one row a defect";
  link_->Command("defect lamp shorted");
  link_->Command("defect supply_leak 3");
  ASSERT_EQ(link_->Command("repair all"), "");
  EXPECT_TRUE(link_->TheTrailer().Wrong() == well);
}

TEST_F(CommandsTest, EverythingThatCanBeSeenIsTold) {
  ConnectAndRead();
  const std::pair<const char*, const char*> rows[] = {
      {"pedal", "0"},
      {"control_line", "0"},
      {"h1", "0"},
      {"h2", "0"},
      {"h3", "0"},
      {"mode", "normal"},
      {"channel 0", "none"},
      {"load", "0"},
      {"bellows", "10.157"},
      {"wheel 1 speed", "0"},
      {"wheel 6 brake", "0"},
      {"wheel 3 turnable", "yes"},
      {"speed", "0"},
      {"distance trip", "412.3"},
      {"volts", "12.6"},
      {"ecu", "on"},
      {"lamp output", "off"},
      {"lamp lit", "off"},
      {"stop_lights", "off"},
      {"height", "none"},
      {"calibrated", "yes"},
      {"flag", "2"},
      {"session", "closed"},
      {"access", "off"},
      {"broadcast", "on"},
      {"odr abs", "0"},
      {"transfer", "none"},
      {"faults", "0"},
      {"fault 3 5", "none"},
      {"requests Connect", "1"},
      {"time", "2.5"},
      {"parking_brake", "off"},
      {"scenario", "none"},
      {"configuration", "4S/2M"},
      {"suspension", "air"},
      {"mounting", "forward"},
      {"wheel 5 sensor", "c"},
      {"wheel 3 sensor", "none"},
      {"connection", "on"},
      {"adapter", "on"},
      {"cable", "in"},
      {"power", "on"},
      {"compressor", "on"},
      {"defects", "none"},
      {"failures", "none"},
      {"told", "2"},
      {"request 2", "Trailer_ABS_QOR_ReadStaticData()"},
      {"request 3", "none"},
  };
  for (const auto& [name, value] : rows) EXPECT_EQ(link_->Get(name), value) << name;
  EXPECT_EQ(link_->Get("supply").substr(0, 3), "111");
  for (const char* wrong :
       {"get colour", "get wheel 7 speed", "get wheel 1 colour", "get wheel 1", "get channel 7",
        "get lamp", "get odr trips", "get last Fly", "get fault x 1", "get time now"})
    EXPECT_NE(link_->Command(wrong), "") << wrong;
  ConnectAndRead("axles 2");
  EXPECT_NE(link_->Command("get wheel 1 speed"), "") << "no such wheel";
}

TEST_F(CommandsTest, SwitchesDefectsAndFailuresAreToldAsTheyStand) {
  ConnectAndRead("configuration 2S/1M\naxles 1\nsuspension mechanical\nmounting rear");
  for (const char* command :
       {"adapter off", "cable out", "power off", "compressor off", "defect lamp dead",
        "defect modulator H2 weak=0.9", "failure refuse routine=0x37 skip=3"})
    ASSERT_EQ(link_->Command(command), "") << command;
  const std::pair<const char*, const char*> rows[] = {
      {"configuration", "2S/1M"},
      {"suspension", "mechanical"},
      {"mounting", "rear"},
      {"adapter", "off"},
      {"cable", "out"},
      {"power", "off"},
      {"compressor", "off"},
      {"defects", "modulator lamp"},
      {"failures", "cable_out refuse"},
  };
  for (const auto& [name, value] : rows) EXPECT_EQ(link_->Get(name), value) << name;
  link_->Command("repair all");
  link_->Command("heal all");
  EXPECT_EQ(link_->Get("defects"), "none");
  EXPECT_EQ(link_->Get("failures"), "none");
  link_->Disconnect();
  EXPECT_EQ(link_->Get("connection"), "off");
}

TEST_F(CommandsTest, AnotherTrailerIsToldByItsFileAndTheConnectionStands) {
  ConnectAndRead();
  const std::string file = InSource("simulator/scenarios/healthy_2s1m.scenario");
  ASSERT_EQ(link_->Command("scenario " + file), "");
  EXPECT_EQ(link_->Get("scenario"), file);
  EXPECT_EQ(link_->Get("configuration"), "2S/1M");
  EXPECT_EQ(link_->Get("connection"), "on");
  EXPECT_EQ(link_->Get("told"), "2");
}

// --- What stands beside a byte ------------------------------------------------------------------

TEST_F(CommandsTest, AStoredElementLeavesItsNeighboursAlone) {
  for (const RecordField& field : RecordFields()) {
    for (int i = 0; i < field.count; ++i) {
      for (const std::uint8_t ground : {0x00, 0xFF}) {
        ECUData record;
        std::memset(static_cast<void*>(&record), ground, sizeof record);
        const std::vector<std::uint8_t> bytes(field.size, static_cast<std::uint8_t>(~ground));
        StoreField(record, field, i, bytes);
        const auto* raw = reinterpret_cast<const std::uint8_t*>(&record);
        const std::size_t begin = field.offset + static_cast<std::size_t>(i) * field.size;
        for (std::size_t at = 0; at < sizeof record; ++at) {
          const bool own = at >= begin && at < begin + field.size;
          ASSERT_EQ(raw[at], own ? static_cast<std::uint8_t>(~ground) : ground)
              << field.name << " " << at;
        }
      }
    }
  }
}

TEST_F(CommandsTest, OneElementIsReleasedAndTheOthersStay) {
  ConnectAndRead("field dWheelSpeed 33");
  ASSERT_EQ(link_->Command("release dWheelSpeed(3)"), "");
  link_->Advance(0.2);
  for (std::size_t i = 0; i < 6; ++i)
    EXPECT_EQ(record_.dWheelSpeed[i].Load(), i == 3 ? 0 : 33) << i;
  ASSERT_EQ(link_->Command("release dWheelSpeed"), "");
  link_->Advance(0.2);
  EXPECT_EQ(record_.dWheelSpeed[2].Load(), 0);
  EXPECT_EQ(record_.dWheelSpeed[0].Load(), -1);
}

TEST_F(CommandsTest, TheMonitorsBuffersAreFilledAndNothingBehindThem) {
  ConnectAndRead();
  ASSERT_EQ(link_->BusMonitorOpen(), 0);
  link_->Advance(0.5);
  std::string text(151, ' ');
  std::string timing(26, ' ');
  text[150] = timing[25] = '#';
  ASSERT_EQ(link_->BusMonitorGetData(text.data(), timing.data(), 1, 1), 0);
  EXPECT_EQ(text[150], '#');
  EXPECT_EQ(timing[25], '#');
  EXPECT_NE(timing.find('.'), std::string::npos);
}

TEST_F(CommandsTest, ABlocksWriteReachesItsLastByteAndNoOtherBlock) {
  for (const BlockFacts& block : kBlocks) {
    ConnectAndRead();
    OpenParameters();
    std::vector<std::vector<std::uint8_t>> before;
    for (const BlockFacts& other : kBlocks)
      before.push_back(*link_->TheTrailer().Parameters().Read(other.id));
    const std::vector<std::uint8_t> data(static_cast<std::size_t>(block.size), 0x5A);
    ASSERT_EQ(Write(block.id, data), 0) << block.name;
    EXPECT_EQ(link_->TheTrailer().Parameters().Byte(block.id, block.size), 0x5A);
    for (std::size_t i = 0; i < kBlocks.size(); ++i) {
      if (kBlocks[i].id == block.id) continue;
      EXPECT_EQ(*link_->TheTrailer().Parameters().Read(kBlocks[i].id), before[i]) << block.name;
    }
    EXPECT_EQ(Write(block.id, std::vector<std::uint8_t>(data.size() + 1, 0x11)), kOutOfRange);
  }
}

TEST_F(CommandsTest, ALoadBeyondLadenBrakesAsLaden) {
  const LoadSensing sensing = LoadSensing::From(link_->TheTrailer().Vehicle());
  for (const double control : {20.0, 50.0, 80.0}) {
    const double laden = BrakeCharacteristic(sensing, control, 1);
    const double unladen = BrakeCharacteristic(sensing, control, 0);
    EXPECT_LT(unladen, laden);
    EXPECT_EQ(BrakeCharacteristic(sensing, control, 1.5), laden);
    EXPECT_EQ(BrakeCharacteristic(sensing, control, -0.5), unladen);
  }
  EXPECT_EQ(LoadOfBellows(sensing, sensing.laden_bellows + 20), 1);
  EXPECT_EQ(LoadOfBellows(sensing, 0), 0);
  EXPECT_NEAR(LoadOfBellows(sensing, (sensing.laden_bellows + sensing.unladen_bellows) / 2), 0.5,
              1e-9);
  ConnectAndRead("suspension mechanical");
  const LoadSensing path = LoadSensing::From(link_->TheTrailer().Vehicle());
  EXPECT_EQ(LoadOfPath(path, path.laden_path * 3), 1);
}

}  // namespace
}  // namespace lorimet::simulator
