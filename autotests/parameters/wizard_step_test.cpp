// The number of the step that each page of the wizard shows.
#include <gtest/gtest.h>

#include "autotests/parameters/wizard_fixture.h"

namespace lorimet::testing_support {
namespace {

class WizardStepTest : public WizardFormTest {
 protected:
  std::vector<std::string> Steps() {
    std::vector<std::string> steps;
    const std::vector<std::pair<Form*, Label*>> pages = {{&System(), &System().lblStep},
                                                         {&Gio(), &Gio().lblStep},
                                                         {&LoadSensing(), &LoadSensing().lblStep},
                                                         {&Last(), &Last().lblStep}};
    for (const auto& [page, label] : pages) {
      page->Load();
      steps.push_back(label->Caption());
    }
    for (const auto& [page, label] : pages) page->Unload();
    return steps;
  }
};

TEST_F(WizardStepTest, ASystemWithTwoModulatorsHasFour) {
  Ecu().bNumModulators.Store(2);
  EXPECT_EQ(Steps(),
            (std::vector<std::string>{"Step 1 of 4", "Step 2 of 4", "Step 3 of 4", "Step 4 of 4"}));
}

TEST_F(WizardStepTest, ASystemWithOneModulatorHasThreeWithoutTheFunctions) {
  Ecu().bNumModulators.Store(1);
  const std::vector<std::string> steps = Steps();
  EXPECT_EQ(steps[0], "Step 1 of 3");
  EXPECT_EQ(steps[2], "Step 2 of 3");
  EXPECT_EQ(steps[3], "Step 3 of 3");
}

TEST_F(WizardStepTest, TheStepIsSaidInTheUsersLanguage) {
  Ecu().bNumModulators.Store(21);
  Speak(kFrench);
  EXPECT_EQ(Steps()[1], "Étape 2 sur 4");
  Speak(kSpanish);
  EXPECT_EQ(Steps()[3], "Paso 4 de 4");
}

}  // namespace
}  // namespace lorimet::testing_support
