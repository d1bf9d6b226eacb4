// Healthy trailers, signed off by their operator at the program's own screens.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "autotests/signoff/screen_notes.h"
#include "tests/test_results.h"

namespace lorimet::testing_support {
namespace {

using Calls = std::vector<std::string>;
using Codes = std::vector<std::int16_t>;

// --- Every configuration ------------------------------------------------------------------------

struct Configuration {
  const char* lines;
  std::size_t sensors;
  const char* system;  // as the file has it
  const char* printed;
};

void PrintTo(const Configuration& configuration, std::ostream* stream) {
  *stream << configuration.system;
}

class HealthySignOff : public testing::TestWithParam<Configuration> {
 protected:
  static std::string Scenario(const char* suspension, const char* mounting, int seed) {
    return std::string("configuration ") + GetParam().lines + "\nsuspension " + suspension +
           "\nmounting " + mounting + "\nnoise seed=" + std::to_string(seed) + "\nflag 2";
  }
  static void ExpectResults(OperatedProgram& stand, bool mechanical) {
    const TestResults& results = stand.Results();
    const std::int16_t air_tests = OneModulator() ? 2 : 1;
    EXPECT_EQ(results.nPressureTest, air_tests);
    EXPECT_EQ(results.nRedundancyTest, air_tests);
    EXPECT_EQ(results.nSensorTest, 1);
    EXPECT_EQ(results.nLampTest, 1);
    EXPECT_EQ(results.nHeightCalCD, mechanical ? 1 : -1);
    for (std::size_t i = 2; i < 6; ++i)
      EXPECT_NEAR(results.dMaxSpeed[i], i < 2 + GetParam().sensors ? 7 : 0, 0.11) << i;
  }
  static bool OneModulator() { return std::strstr(GetParam().system, "/1M") != nullptr; }
  static void ExpectTrailer(OperatedProgram& stand) {
    const std::pair<const char*, const char*> ends[] = {
        {"faults", "0"},   {"flag", "1"},  {"mode", "normal"},    {"broadcast", "on"},
        {"access", "off"}, {"pedal", "0"}, {"channel 0", "none"}, {"channel 4", "none"}};
    for (const auto& [name, value] : ends) EXPECT_EQ(stand.Trailer().Get(name), value) << name;
  }
  static void ExpectReports(OperatedProgram& stand, bool mechanical) {
    ASSERT_EQ(stand.text_files.files.size(), 1u);
    const std::string& file = stand.text_files.files.begin()->second;
    EXPECT_NE(file.find(std::string("ABS System Config    : ") + GetParam().system + "\r\n"),
              std::string::npos);
    EXPECT_NE(file.find("\r\n\r\nNo Faults Detected - System OK\r\n"), std::string::npos);
    EXPECT_NE(file.find("   Sensor Test     : Passed\r\n"), std::string::npos);
    EXPECT_NE(file.find("     c                  7.0\r\n"), std::string::npos);
    EXPECT_NE(file.find("   Lamp Test       : Passed\r\n"), std::string::npos);
    EXPECT_EQ(file.find("   Height Sensor CD: Calibrated\r\n") != std::string::npos, mechanical);
    ASSERT_EQ(stand.printer.Documents().size(), 1u);
    const RecordingPrinter::Document& document = stand.printer.Documents()[0];
    EXPECT_EQ(document.state, RecordingPrinter::State::kEnded);
    EXPECT_EQ(document.pages, 1);
    const std::string page = RecordingPrinter::Transcript(document);
    EXPECT_NE(page.find(std::string("9.75: ") + GetParam().printed + "\n"), std::string::npos)
        << page;
    EXPECT_NE(page.find("Norvick End-of-Line Report"), std::string::npos);
  }
};

TEST_P(HealthySignOff, PassesWithEverySuspensionMountingAndSeed) {
  for (const char* suspension : {"air", "mechanical"})
    for (const char* mounting : {"forward", "rear"})
      for (int seed = 1; seed <= 5; ++seed) {
        const std::string scenario = Scenario(suspension, mounting, seed);
        SCOPED_TRACE(scenario);
        const bool mechanical = *suspension == 'm';
        OperatedProgram stand(scenario);
        const ScreenNotes notes(stand);
        stand.SignOff();
        EXPECT_EQ(stand.hand.GivenUp(), 0);
        EXPECT_FALSE(notes.red);
        EXPECT_EQ(notes.faults, 0) << "on the whole way";
        ExpectResults(stand, mechanical);
        ExpectTrailer(stand);
        ExpectReports(stand, mechanical);
      }
}

INSTANTIATE_TEST_SUITE_P(Systems, HealthySignOff,
                         testing::Values(Configuration{"2S/1M\naxles 1", 2, "2S/1M", "2S/1M"},
                                         Configuration{"2S/2M\naxles 2", 2, "2S/2M", "2S/2M"},
                                         Configuration{"4S/2M\naxles 2", 4, "4S/2M", "4S/2M"},
                                         Configuration{"4S/3M\naxles 3", 4, "4S/3M", "4S/3M"},
                                         Configuration{"2M+1M\naxles 3", 4, "4S/21M", "4S/?M"}));

// --- The whole sequence -------------------------------------------------------------------------

Calls Join(const std::vector<Calls>& parts) {
  Calls all;
  for (const Calls& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

std::string SetPressure(int channel, const char* word) {
  const std::string bytes = std::string(" ") + word;
  return "StartRoutine(0x06, 7, [0" + std::to_string(channel) + bytes + bytes + " E8 03])";
}
std::string BrakeMode(int mode) {
  return "StartRoutine(0x37, 3, [00 00 0" + std::to_string(mode) + "])";
}

const Calls kOpening = {"StartSession(0x83)", "Password()", "StartRoutine(0x42, 4, [00 00 01 00])"};
const Calls kFaults = {"FaultLock()", "FaultGetCount()", "FaultGetData()", "FaultUnlock()"};

// 0, 14.51 and 65.295 psi of control pressure.
constexpr const char* kNoPressure = "00 00";
constexpr const char* kFirstPoint = "04 14";
constexpr const char* kSecondPoint = "10 5A";

Calls PressureTest(bool mechanical) {
  const std::string laden = mechanical ? SetPressure(6, "58 6E") : SetPressure(4, "BC 60");
  const std::string unladen = mechanical ? SetPressure(6, "00 00") : SetPressure(4, "02 0E");
  const auto measure = [](const std::string& load, const char* control) {
    return Calls{load, SetPressure(0, control), "sleep 10 x 40"};
  };
  return Join({{BrakeMode(2)},
               measure(laden, kNoPressure),
               measure(laden, kFirstPoint),
               measure(laden, kSecondPoint),
               measure(unladen, kNoPressure),  // the exhaust needs two looks
               measure(unladen, kNoPressure),
               measure(unladen, kFirstPoint)});
}

const Calls kRedundancyTest = {BrakeMode(1), "sleep 10 x 500", "sleep 1000 x 3"};

// `modulators` of the tyres in the order of their spinning; 0 for the only one of a system.
Calls SensorTest(const std::vector<int>& modulators) {
  Calls calls = {BrakeMode(2)};
  for (const int own : modulators) {
    calls.push_back(SetPressure(0, "00 44"));
    if (own != 0) calls.push_back(SetPressure(own == 1 ? 2 : 1, "00 44"));
    calls.push_back(SetPressure(own == 0 ? 1 : own, kNoPressure));
    calls.push_back(SetPressure(own == 0 ? 1 : own, "00 44"));
    calls.emplace_back("sleep 500");
  }
  for (const int channel : {1, 2, 0}) calls.push_back(SetPressure(channel, kNoPressure));
  for (const char* step : {"01", "02", "00"})
    calls.push_back(std::string("StartRoutine(0x41, 2, [06 ") + step + "])");
  calls.push_back(BrakeMode(1));
  return calls;
}

const Calls kLampTest = {"StartRoutine(0x07, 3, [01 E8 03])", "StartRoutine(0x07, 3, [00 E8 03])",
                         "StartRoutine(0x07, 3, [01 E8 03])"};

// The sensor is looked at once more while the message stands.
const Calls kCalibration = {
    "IOControl(0x05, 1, [01])",    "StartSession(0x83)",        "Password()",
    "StartRoutine(0x3C, 1, [01])", "StartRoutine(0x05, 0, [])", "ClearAllFaults()",
    "IOControl(0x05, 1, [01])"};

const Calls kFlag = Join({{"WriteMemory(0x2A, 2, [01 00])", "StartRoutine(0x05, 0, [])",
                           "sleep 2000", "ClearAllFaults()", "sleep 2000"},
                          kFaults,
                          {"ResetECU()", "sleep 6000"},
                          kFaults});
const Calls kReport = Join({{"sleep 2000"}, kFaults});

struct SequenceRow {
  const char* lines;
  std::vector<int> modulators;
};

TEST(SignOffSequence, IsTheSameFromTheFirstCallToTheLast) {
  const SequenceRow rows[] = {
      {"configuration 2S/1M\naxles 1", {0, 0}},
      {"configuration 2S/2M\naxles 2", {1, 2}},
      {"configuration 2S/2M\naxles 2\nmounting rear", {2, 1}},
      {"configuration 4S/2M\naxles 2", {1, 1, 2, 2}},
      {"configuration 4S/2M\naxles 3\nmounting rear", {2, 2, 1, 1}},
  };
  for (const SequenceRow& row : rows)
    for (const bool mechanical : {false, true}) {
      OperatedProgram stand(std::string(row.lines) + (mechanical ? "\nsuspension mechanical" : ""));
      stand.desktop.Run(3000);  // the lamp check is over
      stand.TakeSequence();
      stand.SignOff();
      const bool one_modulator = row.modulators[0] == 0;
      EXPECT_EQ(stand.TakeSequence(),
                Join({kOpening, one_modulator ? Calls{} : PressureTest(mechanical),
                      one_modulator ? Calls{} : kRedundancyTest, SensorTest(row.modulators),
                      kLampTest, mechanical ? kCalibration : Calls{}, kFlag, kReport}))
          << row.lines << (mechanical ? ", mechanical" : ", air");
    }
}

// --- The same again -----------------------------------------------------------------------------

// Everything that a sign-off leaves: calls and waits, the record, the file, the page, the trailer.
std::string Traces(const std::string& scenario) {
  OperatedProgram stand(scenario);
  stand.SignOff();
  std::string traces;
  for (const std::string& entry : stand.TakeSequence()) traces += entry + "\n";
  traces.append(reinterpret_cast<const char*>(&stand.Ecu()), sizeof(ECUData));
  for (const auto& [name, text] : stand.text_files.files) traces += name + "\n" + text;
  for (const auto& document : stand.printer.Documents())
    traces += RecordingPrinter::Transcript(document);
  for (const MessageBox& box : stand.desktop.TakeBoxes()) traces += box.text + "\n";
  return traces + stand.Trailer().State() + std::to_string(stand.clock.Milliseconds()) + " " +
         stand.Trailer().Get("supply");
}

TEST(SignOffTwice, LeavesTheSameToTheByteAndAnotherSeedDoesNot) {
  const std::string scenario = "configuration 4S/3M\nsuspension mechanical\n";
  const std::hash<std::string> hash;
  const std::string first = Traces(scenario + "noise seed=1");
  EXPECT_EQ(hash(first), hash(Traces(scenario + "noise seed=1")));
  EXPECT_NE(hash(first), hash(Traces(scenario + "noise seed=2")));
}

// --- What is asked and told on the way ----------------------------------------------------------

TEST(SignOffBoxes, ComeInTheirOrder) {
  OperatedProgram stand("identity vehicle_id BOXES");
  stand.SignOff();
  std::vector<std::string> titles;
  for (const MessageBox& box : stand.desktop.TakeBoxes()) titles.push_back(box.title);
  EXPECT_EQ(titles, (std::vector<std::string>{"Sensor Test Warning", "Sign-off Complete",
                                              "Information", "Sign-off Complete", "Information"}));
}

}  // namespace
}  // namespace lorimet::testing_support
