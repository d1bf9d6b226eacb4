// The whole road of a parameter change: from the simulated ECU through the wizard and back, and the
// ECU's verdict on what was written.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "autotests/parameters/road_fixture.h"
#include "parameters/parameters_part.h"
#include "session/session_part.h"

namespace lorimet::testing_support {
namespace {

class WholeRoadTest : public RoadFixture<testing::TestWithParam<const char*>> {};

TEST_P(WholeRoadTest, HealthyTrailerPassesUnchangedWithoutAComplaint) {
  const std::string parameter = GetParam();
  const std::size_t blank = parameter.find(' ');
  Begin(Scenario(parameter.substr(0, blank), parameter.substr(blank + 1)));
  Walk(kNoEdit, &frmOVGParm3::cmdSaveToECU);
  EXPECT_EQ(Complaints(), std::vector<std::string>{});
  // Once the conversions have settled, a second pass changes no byte of the vehicle any more.
  const auto before = Stored();
  Walk(kNoEdit, &frmOVGParm3::cmdSaveToECU);
  EXPECT_EQ(Complaints(), std::vector<std::string>{});
  const auto after = Stored();
  for (const auto& [id, bytes] : before) {
    if (id == 0x03) continue;  // pressures may drift on
    EXPECT_EQ(bytes, after.at(id)) << id;
  }
  for (const int index : Changed(before.at(0x03), after.at(0x03)))
    EXPECT_TRUE(index == 33 || index == 34 || (index >= 42 && index <= 46)) << index;
}

INSTANTIATE_TEST_SUITE_P(Configurations, WholeRoadTest,
                         testing::Values("2S/1M air", "2S/2M air", "4S/2M air", "4S/2M mechanical",
                                         "2S/1M mechanical"));

class WholeRoad : public RoadFixture<testing::Test> {};

TEST_F(WholeRoad, OneValueChangedByHandChangesItsBytesAlone) {
  Begin(Scenario("2S/1M"));
  Walk(kNoEdit, &frmOVGParm3::cmdSaveToECU);
  desktop.TakeBoxes();
  const auto before = Stored();
  Walk(
      [](Form& page) {
        if (page.Name() != "frmOVGParm2") return;
        static_cast<frmOVGParm2&>(page).txtAxleLoadLaden[0].UserType("8500");
      },
      &frmOVGParm3::cmdSaveToECU);
  EXPECT_EQ(Complaints(), std::vector<std::string>{});
  const auto after = Stored();
  for (const auto& [id, bytes] : before) {
    if (id == 0x03) continue;
    EXPECT_EQ(bytes, after.at(id)) << id;
  }
  const Bytes& vehicle = after.at(0x03);
  EXPECT_EQ(vehicle[5] * 256 + vehicle[6], 8500);
  for (const int index : Changed(before.at(0x03), vehicle))
    EXPECT_TRUE(index == 5 || index == 6 || index == 33 || index == 34 ||
                (index >= 42 && index <= 46))
        << index;
}

struct Mistake {
  const char* what;
  const char* configuration;
  std::function<void(Form&)> edit;
  const char* complaint;
};

TEST_F(WholeRoad, WrongSetsAreRefusedInTheWordsOfTheCatalogue) {
  const auto load_page = [](const std::function<void(frmOVGParm2&)>& edit) {
    return [edit](Form& page) {
      if (page.Name() == "frmOVGParm2") edit(static_cast<frmOVGParm2&>(page));
    };
  };
  const std::vector<Mistake> mistakes = {
      {"unladen above laden", "4S/2M",
       load_page([](frmOVGParm2& p) { p.txtAxleLoadUnladen[0].UserType("9500"); }), "1-1 "},
      {"no loads at all", "4S/2M", load_page([](frmOVGParm2& p) {
         for (int i = 0; i < 3; ++i) {
           p.txtAxleLoadUnladen[i].UserType("0");
           p.txtAxleLoadLaden[i].UserType("0");
         }
       }),
       "1-6 "},
      {"bellows pressures in the wrong order", "4S/2M", load_page([](frmOVGParm2& p) {
         p.txtSuspensionPressUnladen[0].UserType("150");
         p.txtSuspensionPressLaden[0].UserType("20");
       }),
       "2-1 "},
      {"braking pressure unladen above laden", "4S/2M",
       load_page([](frmOVGParm2& p) { p.txtBrakingPressUnladen[0].UserType("140"); }), "7-2 "},
      {"teeth that do not fit the tyre", "4S/2M",
       [](Form& page) {
         if (page.Name() == "frmOVGParm3")
           static_cast<frmOVGParm3&>(page).txtNumTeeth[0].UserType("50");
       },
       "15-7"},
      {"no sensors on any axle", "2S/2M",
       [](Form& page) {
         if (page.Name() != "frmOVGParm1") return;
         auto& system = static_cast<frmOVGParm1&>(page);
         for (int i = 0; i < 5; ++i) system.optSensorCD[i].SetValue(false);
       },
       "2-7 "},
  };
  for (const Mistake& mistake : mistakes) {
    SCOPED_TRACE(mistake.what);
    Begin(Scenario(mistake.configuration));
    Walk(mistake.edit, &frmOVGParm3::cmdSaveToECU);
    const std::vector<std::string> complaints = Complaints();
    EXPECT_NE(std::ranges::find(complaints, mistake.complaint), complaints.end())
        << testing::PrintToString(complaints);
    program->session->main_form.Unload();
    desktop.TakeBoxes();
    program.reset();
  }
}

TEST_F(WholeRoad, GuardWithoutItsSensorIsRefused) {
  Begin(Scenario("4S/2M") + "lateral_sensor missing\n");
  Walk(
      [](Form& page) {
        if (page.Name() == "frmOVGParm3")
          static_cast<frmOVGParm3&>(page).optOVGStatus[2].UserClick();
      },
      &frmOVGParm3::cmdSaveToECU);
  const auto complaints = Complaints();
  EXPECT_NE(std::ranges::find(complaints, "2-2 "), complaints.end());
}

TEST_F(WholeRoad, FileCarriesTheSetFromOneTrailerToTheNext) {
  const std::string path =
      std::filesystem::path(testing::TempDir()) / ("road" + std::to_string(::getpid()) + ".ecu");
  std::filesystem::remove(path);
  // Texts that fill their fields: shorter ones lose their padding in a file and do not read back.
  Begin(Scenario("4S/2M") +
        "identity vehicle_id \"1NL4S2M30A00123456\"\n"
        "identity manufacturer \"NORTHLEA TRAILERS CO\"\n"
        "identity trailer_type \"CURTAIN SIDER 13.6 M\"\n");
  desktop.AnswerFileDialog(path);
  Walk(kNoEdit, &frmOVGParm3::cmdSaveToFile);
  const Boxes boxes = desktop.TakeBoxes();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0], PlainBox("Write to file complete.", "Parameter Data"));
  const ParameterImage saved = program->parameters->image;
  desktop.AnswerFileDialog(path);
  ASSERT_TRUE(program->parameters->parameter_file.ReadParmsFromFile());
  for (ParmBlock ParameterImage::*block :
       {&ParameterImage::EOL1, &ParameterImage::EOL2, &ParameterImage::EOL3, &ParameterImage::EOL5,
        &ParameterImage::EOL9}) {
    EXPECT_EQ((program->parameters->image.*block).bNumBytes, (saved.*block).bNumBytes);
    EXPECT_TRUE(std::equal((saved.*block).DataArr.begin() + 1, (saved.*block).DataArr.end(),
                           (program->parameters->image.*block).DataArr.begin() + 1));
  }
  std::filesystem::remove(path);
}

}  // namespace
}  // namespace lorimet::testing_support
