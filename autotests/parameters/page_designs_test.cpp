// What the designs of the wizard's windows fix and no code touches: which fields are read-only, and
// that each window has a size.
#include <fstream>
#include <set>
#include <sstream>

#include "autotests/parameters/wizard_fixture.h"
#include "autotests/places.h"

namespace lorimet::testing_support {
namespace {

constexpr int kTwipsPerPixel = 15;

// The names of the widgets that are read-only.
std::set<std::string> ReadOnlyFields(const std::string& form) {
  std::stringstream stream;
  stream << std::ifstream(InSource("src/parameters/") + form + ".ui").rdbuf();
  const std::string text = stream.str();
  std::set<std::string> names;
  const std::string mark = "name=\"readOnly\"><bool>true";
  for (std::size_t at = 0; (at = text.find(mark, at)) != std::string::npos; ++at) {
    const std::size_t widget = text.rfind("<widget ", at);
    const std::size_t name = text.find("name=\"", widget) + 6;
    names.insert(text.substr(name, text.find('"', name) - name));
  }
  return names;
}

std::set<std::string> Numbered(std::initializer_list<std::pair<const char*, int>> arrays) {
  std::set<std::string> names;
  for (const auto& [name, count] : arrays)
    for (int i = 0; i < count; ++i) names.insert(std::string(name) + "_" + std::to_string(i));
  return names;
}

TEST(PageDesigns, WhatIsOnlyShownIsReadOnly) {
  EXPECT_EQ(ReadOnlyFields("frmOVGParm1"), Numbered({{"txtSensor", 6}}));
  std::set<std::string> shown = Numbered({{"txtNumAxles", 5},
                                          {"txtControlPressureUnladen", 1},
                                          {"txtControlPressureLaden", 3},
                                          {"txtSensor", 6}});
  shown.insert({"txtColHdrUnladen", "txtColHdrLaden", "txtLeverLengthHdr"});
  EXPECT_EQ(ReadOnlyFields("frmOVGParm2"), shown);
  EXPECT_EQ(ReadOnlyFields("frmOVGParm3"), (std::set<std::string>{"txtStatus"}));
  for (const char* form :
       {"frmGIOSelection", "frmGIOSpecial", "frmLiftAxlePressures", "frmSpeedSwitchThresh"})
    EXPECT_TRUE(ReadOnlyFields(form).empty()) << form;
}

class PageSizes : public WizardFormTest {};

TEST_F(PageSizes, EveryWindowHasASizeThatFitsTheSmallestScreen) {
  for (Form* form :
       {static_cast<Form*>(&System()), static_cast<Form*>(&Gio()), static_cast<Form*>(&Special()),
        static_cast<Form*>(&LiftAxle()), static_cast<Form*>(&SpeedSwitch()),
        static_cast<Form*>(&LoadSensing()), static_cast<Form*>(&Last())}) {
    form->Load();
    EXPECT_GE(form->Width(), 300 * kTwipsPerPixel) << form->Name();
    EXPECT_LE(form->Width(), 1024 * kTwipsPerPixel) << form->Name();
    EXPECT_GE(form->Height(), 120 * kTwipsPerPixel) << form->Name();
    EXPECT_LE(form->Height(), 768 * kTwipsPerPixel) << form->Name();
  }
}

}  // namespace
}  // namespace lorimet::testing_support
