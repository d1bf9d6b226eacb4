// Every screen in French: what it shows is no English that has a French.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "adapters/headless/ui_design.h"
#include "autotests/common/program_fixture.h"
#include "faults/faults_part.h"
#include "monitor/monitor_part.h"
#include "parameters/parameters_part.h"
#include "reports/reports_part.h"
#include "session/session_part.h"
#include "support/support_part.h"
#include "tests/tests_part.h"

namespace lorimet::testing_support {
namespace {

using Texts = std::vector<std::string>;

// Shown as they stand whatever the language.
const std::set<std::string> kUntranslated = {
    "N/A",  // the literal of the live panel, where a value does not apply
};

Texts TextsOf(const Control& control) {
  Texts texts = {control.ToolTipText()};
  if (const auto* captioned = dynamic_cast<const CaptionedControl*>(&control))
    texts.push_back(captioned->Caption());
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) texts.push_back(box->Text());
  if (const auto* grid = dynamic_cast<const DataGrid*>(&control)) {
    for (const GridColumn& column : grid->Columns()) texts.push_back(column.caption);
    for (int row = 0; row < grid->RowCount(); ++row)
      texts.insert(texts.end(), grid->Row(row).begin(), grid->Row(row).end());
  }
  if (const auto* tabs = dynamic_cast<const TabStrip*>(&control))
    texts.insert(texts.end(), tabs->Tabs().begin(), tabs->Tabs().end());
  return texts;
}

class EveryScreenTest : public ProgramTest {
 protected:
  void SetUp() override {
    SetLanguage(kFrench);
    Ecu().bNumSensors.Store(4);
    Ecu().bNumModulators.Store(2);
    link.always["FaultGetCount"] = 3;
    link.fault_data = [](void* first) {
      const std::vector<FaultRecord> records = {
          {0, 5, 7, 0, 0, 0}, {0, 7, 3, 0, 1, 2}, {0, 13, 2, 0, 1, 1}};
      std::ranges::copy(records, static_cast<FaultRecord*>(first));
    };
    Start();
    desktop.Run(600);
  }

  // A text that the dictionary has another one for.
  bool IsEnglish(const std::string& text) {
    const auto& rows = translations.Rows(kFrench);
    const auto row = rows.find(text);
    return row != rows.end() && row->second != text && !kUntranslated.contains(text) &&
           !french_.contains(text);
  }
  void ExpectFrench(const std::string& text, const std::string& where) {
    // Each line by itself: some texts are put together of several.
    for (std::size_t start = 0; start <= text.size();) {
      const std::size_t end = std::min(text.find("\r\n", start), text.size());
      EXPECT_FALSE(IsEnglish(text.substr(start, end - start))) << where << ": " << text;
      start = end + 2;
    }
    EXPECT_FALSE(IsEnglish(text)) << where << ": " << text;
  }
  void ExpectFrench(const Form& form) {
    ExpectFrench(form.Caption(), form.Name());
    for (const Control* control : form.Controls())
      for (const std::string& text : TextsOf(*control))
        ExpectFrench(text, form.Name() + "." + control->Name());
    seen_.push_back(form.Name());
  }
  void ExpectBoxesInFrench() {
    for (const MessageBox& box : desktop.TakeBoxes())
      for (const std::string& text : {box.text, box.title, box.ok, box.cancel, box.yes, box.no})
        ExpectFrench(text, "a box");
  }
  Texts SeenForms() {
    std::ranges::sort(seen_);
    return seen_;
  }

 private:
  std::set<std::string> french_ = [this] {
    std::set<std::string> texts;
    translations.Open();
    for (const auto& [key, text] : translations.Rows(kFrench)) texts.insert(text);
    return texts;
  }();
  Texts seen_;
};

TEST_F(EveryScreenTest, ShowsNoEnglishInFrench) {
  SupportPart& support = *program.support;
  ParametersPart& parameters = *program.parameters;
  TestsPart& tests = *program.tests;
  ReportsPart& reports = *program.reports;
  Ecu().VehicleId.Store("1NL4S2M30A0012345");
  const std::vector<Form*> forms = {
      &Main(),
      &support.err,
      &support.rp1210_error,
      &support.about,
      &support.pdf_link,
      &program.faults->fault_list,
      &parameters.system_page,
      &parameters.gio_page,
      &parameters.special_gio,
      &parameters.lift_axle,
      &parameters.speed_switch,
      &parameters.load_sensing_page,
      &parameters.overturn_guard_page,
      &tests.pressure_test,
      &tests.redundancy_test,
      &tests.sensor_test,
      &tests.lamp_test,
      &tests.suspension_calibration,
      &tests.stop_light,
      &tests.eol_bit,
      &program.monitor->screen,
      &program.monitor->options,
      &reports.odr_view,
      &reports.odr_delete,
      &reports.save_eeprom,
      &reports.save_odr,
  };
  for (Form* form : forms) {
    form->Load();
    ASSERT_TRUE(form->Loaded()) << form->Name();
    ExpectFrench(*form);
  }
  ExpectBoxesInFrench();
  Texts all = UiFormNames();
  std::ranges::sort(all);
  EXPECT_EQ(SeenForms(), all) << "a screen that this test does not show";
}

TEST_F(EveryScreenTest, ItsBoxesAreFrenchToo) {
  link.answers["Disconnect"] = {-1};
  Main().RestartECU();
  link.answers["Connect"] = {128};
  desktop.OnModal("frmRP1210Err", [&](Form& form) {
    ExpectFrench(form);
    form.Unload();
  });
  Main().RestartECU();
  ExpectFrench(Main());
  Main().nECUType = 0;
  program.faults->fault_list.Load();
  program.faults->fault_list.grdFaults.UserClickHyperlink(0);
  process.files.clear();
  for (int use = 0; use < 2; ++use) {
    Main().mnuUtility[2].UserClick();
    ExpectFrench(Main());
  }
  Main().UserClose();
  ExpectBoxesInFrench();
}

}  // namespace
}  // namespace lorimet::testing_support
