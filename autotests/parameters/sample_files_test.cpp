// The sample files in docs/samples: what the program writes of five simulated trailers.
//
// LORIMET_WRITE_SAMPLES=1 writes them anew.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <tuple>

#include "autotests/parameters/road_fixture.h"
#include "autotests/places.h"
#include "parameters/parameters_part.h"
#include "session/session_part.h"

namespace lorimet::testing_support {
namespace {

const std::filesystem::path kSamples = InSource("docs/samples");

struct Sample {
  const char* name;
  const char* configuration;
  const char* suspension;
  int axles;
  const char* vehicle_id;    // 18 characters
  const char* manufacturer;  // 20
  const char* type;          // 20
};

// Each text fills its field, because a shorter one would not read back.
const Sample kTrailers[] = {
    {"curtain_sider_4s2m", "4S/2M", "air", 3, "1NL4S2M30A00123456", "NORTHLEA TRAILERS CO",
     "CURTAIN SIDER 13.6 M"},
    {"flatbed_2s1m", "2S/1M", "air", 2, "1NL2S1M20A00456123", "NORTHLEA TRAILERS CO",
     "FLATBED TWO AXLES 10"},
    {"tanker_2s2m", "2S/2M", "air", 3, "1NL2S2M30A00789456", "HALDEN TANKERS LTD 2",
     "FUEL TANKER 38000 LT"},
    {"tipper_mechanical_4s2m", "4S/2M", "mechanical", 3, "1NL4S2M30M00321654",
     "BRODIE TIPPERS LTD 1", "STEEL TIPPER 24 CBM."},
    {"low_loader_4s3m", "4S/3M", "air", 3, "1NL4S3M30A00654987", "VANTAGE LOW LOADERS.",
     "LOW LOADER GOOSENECK"},
};

std::string PathOf(const Sample& sample) { return kSamples / (std::string(sample.name) + ".ecu"); }

template <typename Parameter>
class SampleFixture : public RoadFixture<testing::TestWithParam<Parameter>> {
 protected:
  using Road = RoadFixture<testing::TestWithParam<Parameter>>;
  using Road::clock;

  static std::string TextOf(const std::filesystem::path& path) {
    std::stringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
  }
  // Everything but the version of the program that wrote it.
  static std::string WithoutVersions(std::string text) {
    const std::string key = "DataVersion=";
    for (std::size_t at = 0; (at = text.find(key, at)) != std::string::npos; at += key.size())
      text.erase(at + key.size(), text.find('\r', at) - at - key.size());
    return text;
  }
  void BeginSample(const Sample& sample) {
    std::tm date{};
    date.tm_year = 126;
    date.tm_mon = 10;
    date.tm_mday = 2;
    date.tm_hour = 8;
    clock.SetDate(date);
    Road::Begin(Road::Scenario(sample.configuration, sample.suspension) + "axles " +
                std::to_string(sample.axles) + "\nidentity vehicle_id \"" + sample.vehicle_id +
                "\"\nidentity manufacturer \"" + sample.manufacturer +
                "\"\nidentity trailer_type \"" + sample.type + "\"\n");
  }
};

class SampleFiles : public SampleFixture<Sample> {};

TEST_P(SampleFiles, AreWhatTheProgramWrites) {
  const Sample& sample = GetParam();
  BeginSample(sample);
  const std::filesystem::path written =
      std::filesystem::path(testing::TempDir()) / (std::string(sample.name) + ".ecu");
  std::filesystem::remove(written);
  desktop.AnswerFileDialog(written.string());
  Walk(kNoEdit, &frmOVGParm3::cmdSaveToFile);
  ASSERT_EQ(desktop.TakeBoxes().size(), 1u);
  const std::filesystem::path kept = kSamples / (std::string(sample.name) + ".ecu");
  if (std::getenv("LORIMET_WRITE_SAMPLES") != nullptr) {
    std::filesystem::create_directories(kSamples);
    std::filesystem::copy_file(written, kept, std::filesystem::copy_options::overwrite_existing);
  }
  EXPECT_EQ(WithoutVersions(TextOf(written)), WithoutVersions(TextOf(kept)));
  std::filesystem::remove(written);
}

TEST_P(SampleFiles, ReadBackIntoTheImage) {
  const Sample& sample = GetParam();
  BeginSample(sample);
  desktop.AnswerFileDialog((kSamples / (std::string(sample.name) + ".ecu")).string());
  ASSERT_TRUE(program->parameters->parameter_file.ReadParmsFromFile());
  EXPECT_EQ(program->session->records.ecu_data.nNumAxles.Load(), sample.axles);
  EXPECT_EQ(program->session->records.ecu_data.VehicleId.Load(), sample.vehicle_id);
}

INSTANTIATE_TEST_SUITE_P(Trailers, SampleFiles, testing::ValuesIn(kTrailers),
                         [](const auto& info) { return std::string(info.param.name); });

// A file is opened and closed on the way to another trailer's ECU: nothing of it gets there.
class FileBetweenTrailers : public SampleFixture<std::tuple<Sample, Sample>> {
 protected:
  // Opens the file and closes its wizard.
  void OpenAndClose(const Sample& sample) {
    desktop.AnswerFileDialog(PathOf(sample));
    desktop.OnModal("frmOVGParm1",
                    [](Form& form) { Press(static_cast<frmOVGParm1&>(form).cmdClose); });
    program->session->main_form.mnuSystem[1].UserClick();
  }
};

TEST_P(FileBetweenTrailers, OnlyEditedBytesMove) {
  const auto& [file, trailer] = GetParam();
  BeginSample(trailer);
  Walk(kNoEdit, &frmOVGParm3::cmdSaveToECU);  // once the conversions have settled
  const auto before = Stored();
  OpenAndClose(file);
  Walk(
      [](Form& page) {
        if (page.Name() == "frmOVGParm2")
          static_cast<frmOVGParm2&>(page).txtAxleLoadLaden[0].UserType("8500");
      },
      &frmOVGParm3::cmdSaveToECU);
  auto expected = before;
  expected[0x03][5] = 8500 / 256;
  expected[0x03][6] = 8500 % 256;
  EXPECT_EQ(Stored(), expected);
  // And once more, from a file that has been opened in vain.
  OpenAndClose(file);
  Walk(kNoEdit, &frmOVGParm3::cmdSaveToECU);
  EXPECT_EQ(Stored(), expected);
  desktop.TakeBoxes();
}

INSTANTIATE_TEST_SUITE_P(Pairs, FileBetweenTrailers,
                         testing::Combine(testing::ValuesIn(kTrailers),
                                          testing::ValuesIn(kTrailers)),
                         [](const auto& info) {
                           return std::string(std::get<0>(info.param).name) + "_" +
                                  std::get<1>(info.param).name;
                         });

// What was saved is what the next read shows, and a further save changes nothing.
class SavedAndReadAgain : public SampleFixture<Sample> {};

TEST_P(SavedAndReadAgain, AxlesStandAsTheyWereMoved) {
  BeginSample(GetParam());
  const int axles = GetParam().axles;
  Walk(kNoEdit, &frmOVGParm3::cmdSaveToECU);
  int sensed = 0;
  while (Ecu().nAxleSensors[static_cast<std::size_t>(sensed)].Load() != 1) ++sensed;
  const int moved = (sensed + 1) % axles;
  Walk(
      [&](Form& page) {
        if (page.Name() == "frmOVGParm1")
          static_cast<frmOVGParm1&>(page).optSensorCD[moved].UserClick();
        // A low byte of 0, which a file would not count as an axle.
        if (page.Name() == "frmOVGParm2")
          static_cast<frmOVGParm2&>(page).txtAxleLoadLaden[axles - 1].UserType("4096");
      },
      &frmOVGParm3::cmdSaveToECU);
  const auto saved = Stored();
  EXPECT_EQ(saved.at(0x03)[static_cast<std::size_t>(7 + 6 * moved)] & 0x10, 0x10);
  EXPECT_EQ(saved.at(0x03)[static_cast<std::size_t>(7 + 6 * sensed)] & 0x10, 0);
  int seen = 0;
  Walk(
      [&](Form& page) {
        if (page.Name() != "frmOVGParm1") return;
        const auto& system = static_cast<frmOVGParm1&>(page);
        for (int i = 0; i < 3; ++i) EXPECT_EQ(system.optSensorCD[i].Value(), i == moved) << i;
        EXPECT_TRUE(system.optNumAxles[axles - 1].Value());
        ++seen;
      },
      &frmOVGParm3::cmdSaveToECU);
  EXPECT_EQ(seen, 1);
  EXPECT_EQ(Stored(), saved);
  desktop.TakeBoxes();
}

INSTANTIATE_TEST_SUITE_P(Trailers, SavedAndReadAgain, testing::ValuesIn(kTrailers),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace lorimet::testing_support
