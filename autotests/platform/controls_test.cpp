// The controls of a form: their properties, and the events that code and the user raise.
#include "platform/controls.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "adapters/headless/headless_desktop.h"
#include "autotests/common/gestures.h"
#include "platform/forms.h"
#include "platform/runtime_error.h"

namespace lorimet {
namespace {

using testing_support::ErrorOf;
using Log = std::vector<std::string>;

class SampleForm : public Form {
 public:
  explicit SampleForm(Desktop& desktop) : Form(desktop, "SampleForm") {}
  TextBox text{*this, "text"};
  TextBox other{*this, "other"};
  CheckBox check{*this, "check"};
  OptionButton lone{*this, "lone"};
  ControlArray<OptionButton> option{*this, "option", 3};
  ControlArray<OptionButton> second{*this, "second", {0, 2}};
  ControlArray<TextBox> boxes{*this, "boxes", {1, 4}};
  Button button{*this, "button"};
  ToolButton tool{*this, "tools", "faults"};
  MenuItem item{*this, "item", 7};
  ProgressBar bar{*this, "bar"};
  Picture picture{*this, "picture"};
  DataGrid grid{*this, "grid"};
  TabStrip tabs{*this, "tabs"};
  Timer timer{*this, "timer"};
};

class ControlsTest : public testing::Test {
 protected:
  ControlsTest() { form.Load(); }
  std::function<void()> Note(const std::string& what) {
    return [this, what] { log.push_back(what); };
  }
  Log Take() { return std::exchange(log, {}); }

  VirtualClock clock;
  HeadlessDesktop desktop{clock};
  SampleForm form{desktop};
  Log log;
};

TEST_F(ControlsTest, HaveTheNamesOfTheRunningProgram) {
  EXPECT_EQ(form.text.Name(), "text");
  EXPECT_EQ(form.text.Index(), -1);
  EXPECT_EQ(form.option[2].Name(), "option_2");
  EXPECT_EQ(form.option[2].Index(), 2);
  EXPECT_EQ(form.item.Name(), "item_7");
  EXPECT_EQ(form.tool.Name(), "tools_faults");
  EXPECT_EQ(form.tool.Key(), "faults");
}

TEST_F(ControlsTest, OfAnArrayAreReachedByTheirIndex) {
  EXPECT_EQ(form.boxes.Size(), 2);
  EXPECT_EQ(form.boxes[4].Name(), "boxes_4");
  for (const int index : {-1, 0, 2, 3, 5})
    EXPECT_EQ(ErrorOf([&] { form.boxes[index].Text(); }), 9) << index;
}

TEST_F(ControlsTest, OfAnArrayTellTheirHandlerTheirIndex) {
  std::vector<int> seen;
  form.option.OnClick([&](int index) { seen.push_back(index); });
  form.second.OnClick([&](int index) { seen.push_back(10 + index); });
  form.boxes.OnGotFocus([&](int index) { seen.push_back(20 + index); });
  form.boxes.OnLostFocus([&](int index) { seen.push_back(30 + index); });
  form.option[1].UserClick();
  form.second[2].UserClick();
  form.boxes[1].SetFocus();
  form.boxes[4].SetFocus();
  EXPECT_EQ(seen, (std::vector{1, 12, 21, 31, 24}));
}

TEST_F(ControlsTest, TextRaisesChangeWhenItBecomesAnotherWhoeverSetsIt) {
  form.text.on_change = [this] { log.push_back("change to " + form.text.Text()); };
  form.text.SetText("a");
  form.text.SetText("a");
  form.text.UserType("b");
  form.text.UserType("b");
  form.text.SetText("");
  EXPECT_EQ(Take(), (Log{"change to a", "change to b", "change to "}));
}

TEST_F(ControlsTest, TextMayBeSetAgainByItsOwnHandler) {
  form.text.on_change = [this] {
    log.push_back(form.text.Text());
    if (form.text.Text() == "1") form.text.SetText("2");
  };
  form.text.SetText("1");
  EXPECT_EQ(Take(), (Log{"1", "2"}));
  EXPECT_EQ(form.text.Text(), "2");
}

TEST_F(ControlsTest, TextFromCodeIsNotCutAtTheLengthThatTheUserHas) {
  ControlDesign design;
  design.max_length = 3;
  form.text.ImportDesign(design);
  form.text.SetText("longer");
  EXPECT_EQ(form.text.MaxLength(), 3);
  EXPECT_EQ(form.text.Text(), "longer");
}

TEST_F(ControlsTest, AnotherTextIsNotSelected) {
  form.text.SetText("a");
  form.text.SelectAll();
  EXPECT_TRUE(form.text.AllSelected());
  form.text.SetText("a");
  EXPECT_TRUE(form.text.AllSelected());
  form.text.SetText("b");
  EXPECT_FALSE(form.text.AllSelected());
  form.text.SelectAll();
  form.text.UserType("c");
  EXPECT_FALSE(form.text.AllSelected());
}

TEST_F(ControlsTest, CheckBoxRaisesItsClickFromCodeAsFromTheHand) {
  form.check.on_click = [this] { log.push_back(form.check.Value() ? "ticked" : "cleared"); };
  form.check.SetValue(false);
  form.check.SetValue(true);
  form.check.SetValue(true);
  form.check.UserClick();
  form.check.UserSet(false);
  form.check.UserSet(true);
  form.check.SetValue(false);
  EXPECT_EQ(Take(), (Log{"ticked", "cleared", "ticked", "cleared"}));
}

TEST_F(ControlsTest, OptionButtonRaisesItsClickWhenItIsSelected) {
  form.lone.on_click = Note("click");
  form.lone.SetValue(true);
  form.lone.SetValue(true);
  form.lone.UserClick();
  EXPECT_EQ(Take(), Log{"click"});
  form.lone.SetValue(false);
  EXPECT_EQ(Take(), Log{});
  form.lone.UserClick();
  EXPECT_EQ(Take(), Log{"click"});
}

TEST_F(ControlsTest, OptionButtonsOfOneArrayExcludeEachOther) {
  // Each click sees the array as it is to be.
  form.option.OnClick([this](int index) {
    std::string state = std::to_string(index) + ":";
    for (const auto& button : form.option) state += button->Value() ? "1" : "0";
    log.push_back(state);
  });
  form.second.OnClick([this](int index) { log.push_back("second " + std::to_string(index)); });
  form.lone.SetValue(true);
  form.second[0].SetValue(true);
  form.option[0].SetValue(true);
  form.option[2].UserClick();
  form.option[1].SetValue(true);
  EXPECT_EQ(Take(), (Log{"second 0", "0:100", "2:001", "1:010"}));
  EXPECT_TRUE(form.lone.Value());
  EXPECT_TRUE(form.second[0].Value());
  form.option[1].SetValue(false);  // none is selected then
  EXPECT_EQ(Take(), Log{});
  EXPECT_FALSE(form.option[1].Value());
}

TEST_F(ControlsTest, ButtonsAndItemsRaiseTheirClick) {
  form.button.on_click = Note("button");
  form.tool.on_click = Note("tool");
  form.item.on_click = Note("item");
  form.text.on_click = Note("text");
  form.text.on_double_click = Note("double");
  form.button.UserClick();
  form.tool.UserClick();
  form.item.UserClick();
  form.text.UserClick();
  form.text.UserDoubleClick();
  EXPECT_EQ(Take(), (Log{"button", "tool", "item", "text", "double"}));
}

TEST_F(ControlsTest, EventsWithoutAHandlerDoNothing) {
  form.button.UserClick();
  form.text.UserType("a");
  form.check.UserClick();
  form.option[0].UserClick();
  form.text.UserDoubleClick();
  form.timer.Tick();
  EXPECT_EQ(form.text.Text(), "a");
}

TEST_F(ControlsTest, HandlerMayReplaceItself) {
  form.button.on_click = [this] {
    form.button.on_click = Note("second");
    log.push_back("first");
  };
  form.button.UserClick();
  form.button.UserClick();
  EXPECT_EQ(Take(), (Log{"first", "second"}));
}

TEST_F(ControlsTest, FocusIsLostBeforeItIsGot) {
  form.text.on_got_focus = Note("text got");
  form.text.on_lost_focus = Note("text lost");
  form.other.on_got_focus = Note("other got");
  form.other.on_lost_focus = Note("other lost");
  form.text.SetFocus();
  form.text.SetFocus();
  form.other.SetFocus();
  form.UserFocus(&form.text);
  form.UserFocus(nullptr);
  EXPECT_EQ(Take(),
            (Log{"text got", "text lost", "other got", "other lost", "text got", "text lost"}));
  EXPECT_EQ(form.FocusedControl(), nullptr);
}

TEST_F(ControlsTest, FieldThatKeepsTheFocusIsNotLeft) {
  form.text.on_lost_focus = [this] {
    log.push_back("text lost");
    form.text.SetFocus();
  };
  form.other.on_got_focus = Note("other got");
  form.other.on_lost_focus = Note("other lost");
  form.text.SetFocus();
  form.other.SetFocus();
  EXPECT_EQ(Take(), Log{"text lost"});
  EXPECT_EQ(form.FocusedControl(), &form.text);
}

TEST_F(ControlsTest, KeyIsSwallowedByTheControlThatTakesIt) {
  form.text.on_key_down = [this](KeyEvent& key) {
    log.push_back(std::to_string(key.code) + "/" + std::to_string(key.shift));
    if (key.code == 13) key.code = 0;
  };
  EXPECT_FALSE(form.text.UserKeyDown({13, kShiftMask}));
  EXPECT_TRUE(form.text.UserKeyDown({65, 0}));
  EXPECT_TRUE(form.other.UserKeyDown({13, 0}));
  EXPECT_EQ(Take(), (Log{"13/1", "65/0"}));
}

TEST_F(ControlsTest, ProgressBarKeepsAValueBeyondItsRange) {
  form.bar.SetMax(10);
  form.bar.SetValue(25);
  EXPECT_EQ(form.bar.Value(), 25);
  EXPECT_EQ(form.bar.Max(), 10);
  EXPECT_EQ(form.bar.Min(), 0);
}

TEST_F(ControlsTest, TabStripRaisesItsClickForAnotherTab) {
  form.tabs.SetTabs({"One", "Two"});
  form.tabs.on_click = [this] { log.push_back(std::to_string(form.tabs.Selected())); };
  form.tabs.SetSelected(0);
  form.tabs.SetSelected(1);
  form.tabs.UserClick(1);
  form.tabs.UserClick(0);
  EXPECT_EQ(Take(), (Log{"1", "0"}));
}

TEST_F(ControlsTest, GridFocusesItsFirstRowWhenTheInsertingEnds) {
  form.grid.on_focused_row_change = [this] {
    log.push_back("row " + std::to_string(form.grid.FocusedRow()));
  };
  form.grid.SetColumns({{"Num", "Number", false}, {"Name", "Name", true}});
  form.grid.BeginInsert();
  form.grid.EndInsert();
  EXPECT_EQ(Take(), Log{});  // no row, no focus
  EXPECT_EQ(form.grid.FocusedRow(), -1);
  form.grid.BeginInsert();
  form.grid.AppendRow({"1", "one"});
  form.grid.AppendRow({"2", "two"});
  EXPECT_TRUE(form.grid.Inserting());
  EXPECT_EQ(Take(), Log{});
  form.grid.EndInsert();
  EXPECT_FALSE(form.grid.Inserting());
  EXPECT_EQ(Take(), Log{"row 0"});
  form.grid.UserFocusRow(1);
  form.grid.UserFocusRow(1);
  form.grid.UserFocusRow(2);
  EXPECT_EQ(Take(), Log{"row 1"});
  EXPECT_EQ(form.grid.Cell(1, "Name"), "two");
}

TEST_F(ControlsTest, GridRefusesARowOrAFieldThatIsNotThere) {
  form.grid.SetColumns({{"Num", "Number", false}});
  form.grid.AppendRow({"1"});
  EXPECT_EQ(ErrorOf([&] { form.grid.Row(-1); }), 9);
  EXPECT_EQ(ErrorOf([&] { form.grid.Row(1); }), 9);
  EXPECT_EQ(ErrorOf([&] { form.grid.Cell(0, "Name"); }), 9);
  EXPECT_EQ(ErrorOf([&] { form.grid.DeleteRow(1); }), 9);
  form.grid.DeleteRow(0);
  EXPECT_EQ(form.grid.RowCount(), 0);
  EXPECT_EQ(form.grid.FocusedRow(), -1);
}

TEST_F(ControlsTest, GridDeletesTheRowThatIsNamed) {
  for (const char* cell : {"1", "2", "3"}) form.grid.AppendRow({cell});
  form.grid.UserFocusRow(2);
  form.grid.DeleteRow(1);
  ASSERT_EQ(form.grid.RowCount(), 2);
  EXPECT_EQ(form.grid.Row(0), (Log{"1"}));
  EXPECT_EQ(form.grid.Row(1), (Log{"3"}));
  EXPECT_EQ(form.grid.FocusedRow(), 1);
  form.grid.DeleteRow(1);
  ASSERT_EQ(form.grid.RowCount(), 1);
  EXPECT_EQ(form.grid.Row(0), (Log{"1"}));
}

TEST_F(ControlsTest, GridLinkTakesTheFocusToItsRowFirst) {
  form.grid.on_focused_row_change = Note("focus");
  form.grid.on_hyperlink_click = [this](int row) { log.push_back("link " + std::to_string(row)); };
  form.grid.AppendRow({"1"});
  form.grid.AppendRow({"2"});
  form.grid.UserClickHyperlink(1);
  form.grid.UserClickHyperlink(1);
  form.grid.UserClickHyperlink(2);
  EXPECT_EQ(Take(), (Log{"focus", "link 1", "link 1"}));
}

TEST_F(ControlsTest, EachChangedControlIsMirroredOnceAnEvent) {
  form.button.on_click = [this] {
    for (int i = 0; i < 100; ++i) form.text.SetText(std::to_string(i));
    form.text.SetBackColor(kColorRed);
    form.text.SetEnabled(false);
    form.bar.SetValue(3);
  };
  desktop.Flush();
  const int before = desktop.Touches();
  form.button.UserClick();
  EXPECT_EQ(desktop.Touches() - before, 2);
  form.button.UserClick();  // runs through the same texts again
  form.bar.SetValue(3);     // what stands already
  desktop.Flush();
  EXPECT_EQ(desktop.Touches() - before, 3);
}

}  // namespace
}  // namespace lorimet
