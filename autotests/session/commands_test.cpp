// The command tree: what each command of the menu and the toolbar does, in its order.
#include "autotests/places.h"
#include "session/command_routing.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "adapters/headless/xml_reader.h"
#include "autotests/common/program_fixture.h"
#include "session/session_part.h"
#include "support/support_part.h"

namespace lorimet::testing_support {
namespace {

using Calls = std::vector<std::string>;

const Calls kSession = {"StartSession 83", "Password"};
const std::string kAccessOn = "StartRoutine 42:00000100";
const std::string kAccessOff = "StartRoutine 42:00000000";

Calls operator+(Calls calls, const Calls& more) {
  calls.insert(calls.end(), more.begin(), more.end());
  return calls;
}

// The screens stand for themselves as notes among the calls of the library.
class CommandsTest : public ProgramTest {
 protected:
  void SetUp() override {
    Start();
    const std::map<const char*, std::function<void()> CommandActions::*> kActions = {
        {"faults", &CommandActions::show_faults},
        {"parameters from ECU", &CommandActions::edit_parameters_from_ecu},
        {"parameters from file", &CommandActions::edit_parameters_from_file},
        {"bus monitor", &CommandActions::show_bus_monitor},
        {"start recording", &CommandActions::start_recording},
        {"stop recording", &CommandActions::stop_recording},
        {"sign-off", &CommandActions::sign_off},
        {"pressure test", &CommandActions::pressure_test},
        {"redundancy test", &CommandActions::redundancy_test},
        {"sensor test", &CommandActions::sensor_test},
        {"lamp test", &CommandActions::lamp_test},
        {"suspension calibration", &CommandActions::suspension_calibration},
        {"stop light activation", &CommandActions::stop_light_activation},
        {"toolbar lamp test", &CommandActions::toolbar_lamp_test},
        {"toolbar sensor test", &CommandActions::toolbar_sensor_test},
        {"panel redundancy test", &CommandActions::panel_redundancy_test},
        {"EOL bit", &CommandActions::set_end_of_line_bit},
        {"save report", &CommandActions::save_report},
        {"print report", &CommandActions::print_report},
        {"EEPROM", &CommandActions::save_eeprom},
        {"ODR overview", &CommandActions::show_odr_overview},
        {"ODR export", &CommandActions::export_odr},
        {"ODR delete", &CommandActions::delete_odr},
        {"about", &CommandActions::show_about},
    };
    static_assert(sizeof(CommandActions) == 24 * sizeof(std::function<void()>));
    ASSERT_EQ(kActions.size(), 24u);
    for (const auto& [note, action] : kActions) Main().actions.*action = Note(note);
  }
  std::function<void()> Note(const std::string& note) {
    return [this, note] { link.calls.push_back(note); };
  }
  MenuItem& Item(const std::string& name) {
    return dynamic_cast<MenuItem&>(*Main().FindControl(name));
  }
  ToolButton& Tool(const std::string& key) {
    return dynamic_cast<ToolButton&>(*Main().FindControl("tbrABS_" + key));
  }
  // Runs `command` while a restart is under way; gives the calls that it made.
  Calls DuringARestart(const std::function<void()>& command) {
    Calls made;
    link.on_connect = [&] {
      link.TakeCalls();
      command();
      made = link.TakeCalls();
    };
    Main().RestartECU();
    link.on_connect = nullptr;
    link.TakeCalls();
    return made;
  }
};

struct MenuRow {
  const char* item;
  const char* caption;
  Calls calls;
  bool guarded;
};

const std::vector<MenuRow> kMenu = {
    {"mnuDiagnostics_0", "&Display Faults", {"faults"}, true},
    {"mnuDiagnostics_1", "&Clear Faults", {"faults"}, true},
    {"mnuDiagnostics_2", "&Restart ECU Communications",
     Calls{"Disconnect", "Connect", "ReadStaticData"} + kSession, true},
    {"mnuSignOff_0", "&Begin Sign-off Procedure", {"sign-off"}, true},
    {"mnuTests_0", "&Pressure Test", {"pressure test"}, true},
    {"mnuTests_1", "&Redundancy Test", {"redundancy test"}, true},
    {"mnuTests_2", "&Sensor Test", {"sensor test"}, true},
    {"mnuTests_3", "&Lamp Test", {"lamp test"}, true},
    {"mnuTests_4", "Suspension &Calibration", {"suspension calibration"}, true},
    {"mnuTests_5", "Stop Light &Activation", {"stop light activation"}, true},
    {"mnuSystem_0", "Edit Parameters From &ECU", {"parameters from ECU"}, false},
    {"mnuSystem_1", "Edit Parameters From &File", {"parameters from file"}, false},
    {"mnuTools_0", "Save &EEPROM Data", {"EEPROM"}, true},
    {"mnuTools_1", "&Reset ECU", {"ResetECU"}, true},
    {"mnuODR_0", "&Display ODR Overview Data", {"ODR overview"}, false},
    {"mnuODR_1", "&Export ODR Data", {"ODR export"}, false},
    {"mnuUtility_0", "&Set Customer EOL Bit", {"EOL bit"}, true},
    {"mnuUtility_1", "Bus &Monitor", {"bus monitor"}, true},
    {"mnuUtility_2", "Start Data&log Only", {"stop recording"}, true},
    {"mnuUtility_3", "&Disable Broadcast", kSession + Calls{kAccessOn}, true},
    {"mnuUtility_4", "Enable &Broadcast", kSession + Calls{kAccessOff}, true},
    {"mnuUtility_5", "ODR Delete", {"ODR delete"}, true},
    {"mnuHelp_3", "&About Lorimet...", {"about"}, true},
};

TEST_F(CommandsTest, EachMenuItemHasItsCaptionAndItsAction) {
  for (const MenuRow& row : kMenu) {
    EXPECT_EQ(Item(row.item).Caption(), row.caption);
    Item(row.item).UserClick();
    EXPECT_EQ(link.TakeCalls(), row.calls) << row.item;
  }
}

TEST_F(CommandsTest, WhileARestartRunsGuardedItemsDoNothingAndTheOthersWork) {
  for (const MenuRow& row : kMenu)
    EXPECT_EQ(DuringARestart([&] { Item(row.item).UserClick(); }),
              row.guarded ? Calls{} : row.calls)
        << row.item;
  EXPECT_EQ(Main().mnuUtility[2].Caption(), "Start Data&log Only");
}

TEST_F(CommandsTest, TheMenusHaveTheirCaptionsAndTheirStart) {
  const std::vector<std::pair<int, const char*>> kTop = {
      {0, "&Diagnostics"}, {1, "&Sign-off"}, {2, "&Tests"},   {3, "S&ystem"},
      {4, "&Tools"},       {6, "&ODR"},      {7, "&Utility"}, {8, "&Help"}};
  for (const auto& [index, caption] : kTop) {
    EXPECT_EQ(Main().mnuABS[index].Caption(), caption);
    EXPECT_TRUE(Main().mnuABS[index].Enabled()) << index;
    EXPECT_EQ(Main().mnuABS[index].Visible(), index != 7) << index;
  }
  EXPECT_EQ(Main().mnuABS.Size(), 8);
  EXPECT_THROW(Main().mnuABS[5], RuntimeError);
  EXPECT_THROW(Main().mnuHelp[2], RuntimeError);
  EXPECT_FALSE(Main().mnuODR[1].Enabled());
  EXPECT_FALSE(Main().mnuUtility[5].Enabled());
}

TEST_F(CommandsTest, ResultsOfTheLibraryAreDropped) {
  link.always = {{"ResetECU", -1}, {"StartSession", -1}, {"Password", -1}, {"StartRoutine", -1}};
  Main().mnuTools[1].UserClick();
  EXPECT_EQ(link.TakeCalls(), Calls{"ResetECU"});
  Main().mnuUtility[3].UserClick();
  EXPECT_EQ(link.TakeCalls(), Calls(4, kSession[0]) + Calls(4, kSession[1]) + Calls(4, kAccessOn));
}

TEST_F(CommandsTest, HelpShowsContentsAndSearch) {
  Main().mnuHelp[0].UserClick();
  Main().mnuHelp[1].UserClick();
  Tool("help").UserClick();
  EXPECT_EQ(help_viewer.calls, (std::vector<RecordingHelpViewer::Call>{
                                   {"/program/Trailer.hlp", HelpCommand::kContents, ""},
                                   {"/program/Trailer.hlp", HelpCommand::kPartialKey, ""},
                                   {"/program/Trailer.hlp", HelpCommand::kContents, ""}}));
  help_viewer.calls.clear();
  DuringARestart([&] {
    Main().mnuHelp[0].UserClick();
    Main().mnuHelp[1].UserClick();
    Tool("help").UserClick();
  });
  EXPECT_TRUE(help_viewer.calls.empty());
}

struct ToolRow {
  int index;
  const char* key;
  const char* tip;
  Calls calls;
};

const std::vector<ToolRow> kTools = {
    {3, "print", "Print Fault and Sensor\\Valve Test Information", {"print report"}},
    {4, "save", "Save Fault and Sensor\\Valve Test Information", {"save report"}},
    {6, "restart", "Restart the Trailer Diagnostics",
     Calls{"Disconnect", "Connect", "ReadStaticData"} + kSession},
    {7, "faults", "View the Faults", {"faults"}},
    {8, "valve", "Test Lamp", {"toolbar lamp test"}},
    {9, "sensor", "Test the Sensors", {"toolbar sensor test"}},
    {10, "notebook", "View the Notebook", {}},
};

TEST_F(CommandsTest, EachToolButtonHasItsTipAndItsAction) {
  EXPECT_EQ(Tool("exit").ToolTipText(), "Exit Trailer Zelt");
  EXPECT_EQ(Tool("help").ToolTipText(), "Help");
  for (const ToolRow& row : kTools) {
    EXPECT_EQ(Tool(row.key).ToolTipText(), row.tip);
    Tool(row.key).UserClick();
    EXPECT_EQ(link.TakeCalls(), row.calls) << row.key;
  }
}

TEST_F(CommandsTest, WhileARestartRunsTheToolbarDoesNothing) {
  for (const ToolRow& row : kTools)
    EXPECT_EQ(DuringARestart([&] { Tool(row.key).UserClick(); }), Calls{}) << row.key;
}

// The toolbar's actions in the order of its design; a separator is "-".
Calls DrawnToolbar() {
  std::ifstream file(InSource("src/session/frmZeltMain.ui"));
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  XmlReader reader(text);
  Calls actions;
  bool inside = false;
  while (reader.Next()) {
    if (reader.Kind() == XmlReader::Token::kStart && reader.Name() == "widget")
      inside = reader.Attribute("name") == "tbrABS";
    if (reader.Kind() == XmlReader::Token::kStart && reader.Name() == "addaction" && inside)
      actions.push_back(reader.Attribute("name") == "separator" ? "-" : reader.Attribute("name"));
    if (reader.Kind() == XmlReader::Token::kEnd && reader.Name() == "widget") inside = false;
  }
  return actions;
}

TEST_F(CommandsTest, TheButtonsStandAtTheirPlacesOfTheToolbar) {
  EXPECT_EQ(DrawnToolbar(), (Calls{"tbrABS_exit", "-", "tbrABS_print", "tbrABS_save", "-",
                                   "tbrABS_restart", "tbrABS_faults", "tbrABS_valve",
                                   "tbrABS_sensor", "tbrABS_notebook", "-", "tbrABS_help"}));
}

TEST_F(CommandsTest, TheDatalogItemStopsAtItsFirstUseAndTogglesFromThenOn) {
  for (int round = 0; round < 2; ++round) {
    Main().mnuUtility[2].UserClick();
    EXPECT_EQ(Main().mnuUtility[2].Caption(), "Start &Datalog Only");
    EXPECT_EQ(link.TakeCalls(), Calls{"stop recording"});
    Main().mnuUtility[2].UserClick();
    EXPECT_EQ(Main().mnuUtility[2].Caption(), "Stop &Datalog Only");
    EXPECT_EQ(link.TakeCalls(), Calls{"start recording"});
  }
}

TEST_F(CommandsTest, TheDatalogItemSpeaksTheUsersLanguage) {
  program.support->dictionary.SetLanguage(kFrench);
  const auto& rows = translations.Rows(kFrench);
  Main().mnuUtility[2].UserClick();
  EXPECT_EQ(Main().mnuUtility[2].Caption(), rows.at("Start &Datalog Only"));
  Main().mnuUtility[2].UserClick();
  EXPECT_EQ(Main().mnuUtility[2].Caption(), rows.at("Stop &Datalog Only"));
  EXPECT_NE(Main().mnuUtility[2].Caption(), "Stop &Datalog Only");
  EXPECT_EQ(link.TakeCalls(), (Calls{"stop recording", "start recording"}));
}

TEST_F(CommandsTest, LongRunningScreensCanCloseTheCommandsAndTheUtilityMenuStaysGrey) {
  const auto expect_open = [&](bool open) {
    EXPECT_EQ(Main().MenusDisabled(), !open);
    for (const int i : {1, 2, 3}) EXPECT_EQ(Main().mnuABS[i].Enabled(), open) << i;
    for (const int i : {0, 4, 6, 8}) EXPECT_TRUE(Main().mnuABS[i].Enabled()) << i;
    for (const char* key : {"print", "save", "faults", "valve", "sensor", "notebook"})
      EXPECT_EQ(Tool(key).Enabled(), open) << key;
    for (const char* key : {"exit", "restart", "help"}) EXPECT_TRUE(Tool(key).Enabled()) << key;
  };
  expect_open(true);
  EXPECT_TRUE(Main().mnuABS[7].Enabled());
  Main().DisableMenuToolbarItems();
  expect_open(false);
  EXPECT_TRUE(Main().mnuABS[7].Enabled());
  Main().EnableMenuToolbarItems();
  expect_open(true);
  EXPECT_FALSE(Main().mnuABS[7].Enabled());
}

TEST_F(CommandsTest, ADoubleClickOnThePanelOpensAScreen) {
  Main().txtExistingFaults.UserDoubleClick();
  EXPECT_EQ(link.TakeCalls(), Calls{"faults"});
  Main().txtWarningLamp.UserDoubleClick();
  EXPECT_EQ(link.TakeCalls(), Calls{"faults"});
  Main().txtBrake2Press.UserDoubleClick();
  EXPECT_EQ(link.TakeCalls(), Calls{"panel redundancy test"});
  Main().txtSupply.UserDoubleClick();
  EXPECT_EQ(link.TakeCalls(), Calls{});
}

TEST_F(CommandsTest, ADoubleClickNeedsAConnectionAndOpenCommands) {
  const auto click_all = [&] {
    for (TextBox* box : {&Main().txtExistingFaults, &Main().txtWarningLamp, &Main().txtBrake2Press})
      box->UserDoubleClick();
  };
  Main().bConnected = false;
  click_all();
  Main().bConnected = true;
  Main().DisableMenuToolbarItems();
  click_all();
  EXPECT_EQ(link.TakeCalls(), Calls{});
  Main().EnableMenuToolbarItems();
  link.on_static_read = [&] {
    EXPECT_TRUE(Main().bConnected);
    link.TakeCalls();
    click_all();
    EXPECT_EQ(link.TakeCalls(), Calls{});
    Ecu().nLinkJobDone.Store(1);
  };
  Main().RestartECU();
}

TEST_F(CommandsTest, WithNoConnectionACommandRunsNoneTheLess) {
  Main().bConnected = false;
  Main().mnuDiagnostics[0].UserClick();
  Main().mnuTools[1].UserClick();
  Main().mnuODR[1].UserClick();
  EXPECT_EQ(link.TakeCalls(), (Calls{"faults", "ResetECU", "ODR export"}));
}

}  // namespace
}  // namespace lorimet::testing_support
