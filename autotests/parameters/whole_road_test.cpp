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

#include "autotests/common/program_fixture.h"
#include "autotests/common/simulated_link.h"

namespace lorimet::testing_support {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::array<std::uint8_t, 16> kBlocks = {0x03, 0x3D, 0x27, 0x17, 0x28, 0x05, 0x06, 0x42,
                                                  0x37, 0x38, 0x39, 0x3A, 0x3B, 0x3C, 0x44, 0x45};

// A program on a simulated trailer; time passes in both at once.
class WholeRoadTest : public testing::TestWithParam<const char*> {
 protected:
  void Begin(const std::string& scenario) {
    link = std::make_unique<SimulatedLink>(scenario);
    ASSERT_EQ(link->link.ScenarioError(), "");
    link->link.SetStatusSink([this](std::int32_t status) { hook.Post(status); });
    link->link.SetWaiter(
        [this](double seconds) { clock.Advance(static_cast<std::uint32_t>(seconds * 1000)); });
    clock.on_advance = [this](std::uint32_t milliseconds) {
      link->link.Advance(milliseconds / 1000.0);
    };
    desktop.on_do_events = [this] { hook.Deliver(); };
    program = std::make_unique<Program>(Ports{desktop, clock, registry, hook, process, *link,
                                              help_viewer, translations, profile_file});
    ASSERT_EQ(program->Start(), EntryResult::kRunning);
  }
  static std::string Scenario(const std::string& configuration,
                              const std::string& suspension = "air") {
    return "configuration " + configuration + "\nsuspension " + suspension + "\n";
  }

  // Walks through the wizard and saves; `edit` may change a page on the way.
  void Walk(const std::function<void(Form&)>& edit, Button frmOVGParm3::*save) {
    const auto next = [&](const char* form, auto member) {
      desktop.OnModal(form, [this, edit, member](Form& page) {
        edit(page);
        Press(member(page));
      });
    };
    next("frmOVGParm1", [](Form& f) -> Button& { return static_cast<frmOVGParm1&>(f).cmdNext; });
    if (Ecu().bNumModulators.Load() != 1)
      next("frmGIOSelection",
           [](Form& f) -> Button& { return static_cast<frmGIOSelection&>(f).cmdNext; });
    next("frmOVGParm2", [](Form& f) -> Button& { return static_cast<frmOVGParm2&>(f).cmdNext; });
    next("frmOVGParm3", [save](Form& f) -> Button& { return static_cast<frmOVGParm3&>(f).*save; });
    program->main_form.mnuSystem[0].UserClick();
  }
  static void Press(Button& button) {
    button.Owner().UserFocus(&button);
    button.UserClick();
  }

  ECUData& Ecu() { return program->records.ecu_data; }
  // What the ECU holds, by local id.
  std::map<int, Bytes> Stored() {
    std::map<int, Bytes> stored;
    StartEcuSession(*link);
    SetParameterAccess(*link, 1);
    for (const std::uint8_t id : kBlocks) {
      Bytes data(512);
      std::uint8_t count = 0;
      if (link->Trailer_OVG_ReadDataByLocId(id, &count, data.data()) != 0) continue;
      data.resize(count);
      stored[id] = data;
    }
    SetParameterAccess(*link, 0);
    return stored;
  }
  std::vector<std::string> Complaints() {
    std::vector<std::string> complaints;
    for (const MessageBox& box : desktop.TakeBoxes())
      if (box.title == "Parameter Error") complaints.push_back(box.text.substr(16, 4));
    return complaints;
  }
  // The indices at which two states of a block differ.
  static std::vector<int> Changed(const Bytes& before, const Bytes& after) {
    std::vector<int> indices;
    for (std::size_t i = 0; i < std::min(before.size(), after.size()); ++i)
      if (before[i] != after[i]) indices.push_back(static_cast<int>(i));
    return indices;
  }

  VirtualClock clock;
  HeadlessDesktop desktop{clock};
  MemoryRegistry registry;
  HeadlessMessageHook hook;
  HeadlessProcess process;
  RecordingHelpViewer help_viewer;
  TsTranslations translations{LORIMET_SOURCE_ROOT "/translations"};
  PosixProfileFile profile_file;
  std::unique_ptr<SimulatedLink> link;
  std::unique_ptr<Program> program;
};

const auto kNoEdit = [](Form&) {};

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

class WholeRoad : public WholeRoadTest {};

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
    program->main_form.Unload();
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
  const ParameterImage saved = program->image;
  desktop.AnswerFileDialog(path);
  ASSERT_TRUE(program->parameter_file.ReadParmsFromFile());
  for (ParmBlock ParameterImage::*block :
       {&ParameterImage::EOL1, &ParameterImage::EOL2, &ParameterImage::EOL3, &ParameterImage::EOL5,
        &ParameterImage::EOL9}) {
    EXPECT_EQ((program->image.*block).bNumBytes, (saved.*block).bNumBytes);
    EXPECT_TRUE(std::equal((saved.*block).DataArr.begin() + 1, (saved.*block).DataArr.end(),
                           (program->image.*block).DataArr.begin() + 1));
  }
  std::filesystem::remove(path);
}

}  // namespace
}  // namespace lorimet::testing_support
