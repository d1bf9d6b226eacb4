// The sample files in docs/samples: what the program writes of five simulated trailers.
//
// LORIMET_WRITE_SAMPLES=1 writes them anew.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "autotests/parameters/road_fixture.h"
#include "parameters/parameters_part.h"
#include "session/session_part.h"

namespace lorimet::testing_support {
namespace {

const std::filesystem::path kSamples = LORIMET_SOURCE_ROOT "/docs/samples";

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

class SampleFiles : public RoadFixture<testing::TestWithParam<Sample>> {
 protected:
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
    Begin(Scenario(sample.configuration, sample.suspension) + "axles " +
          std::to_string(sample.axles) + "\nidentity vehicle_id \"" + sample.vehicle_id +
          "\"\nidentity manufacturer \"" + sample.manufacturer + "\"\nidentity trailer_type \"" +
          sample.type + "\"\n");
  }
};

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

}  // namespace
}  // namespace lorimet::testing_support
