// The bus monitor's screen: its lines, its ticks, the record button, minimising and resizing.
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "autotests/monitor/monitor_fixture.h"
#include "platform/runtime_error.h"

namespace lorimet::testing_support {
namespace {

using Screen = MonitorTest;

// --- Load --------------------------------------------------------------------------------------

TEST_F(Screen, OpensTheMonitorAndStartsItsTimer) {
  Open();
  EXPECT_EQ(link.TakeCalls(), Calls{"BusMonitorOpen"});
  EXPECT_EQ(screen.Caption(), "Bus Monitor");
  EXPECT_EQ(screen.cmdDatalog.Caption(), "St&art Record");
  EXPECT_EQ(screen.tmrUpdateMonitor.Interval(), 500);
  EXPECT_TRUE(screen.tmrUpdateMonitor.Enabled());
  EXPECT_FALSE(screen.cmdPause.Enabled());
  EXPECT_TRUE(screen.cmdOptions.Enabled());
  EXPECT_TRUE(screen.cmdExit.Enabled());
  EXPECT_EQ(Shown(), "");
  EXPECT_EQ(screen.Left(), (desktop.ScreenWidth() - kWidth) / 2);
  EXPECT_EQ(screen.Top(), (desktop.ScreenHeight() - kHeight) / 2);
}

TEST_F(Screen, GoesOnWhenTheLibraryDoesNotOpen) {
  link.always["BusMonitorOpen"] = 0x10;
  Open();
  Send("late");
  Tick();
  EXPECT_EQ(Shown(), "  late\r\n");
}

TEST_F(Screen, PauseHasNoActionAndStaysGrey) {
  Open();
  link.TakeCalls();
  screen.cmdPause.UserClick();
  Tick();
  EXPECT_FALSE(screen.cmdPause.Enabled());
  EXPECT_TRUE(screen.tmrUpdateMonitor.Enabled());
  EXPECT_EQ(link.TakeCalls(), Calls{});
}

// --- Lines -------------------------------------------------------------------------------------

TEST_F(Screen, WritesEachMessageOnALineOfItsOwn) {
  Open();
  Send("137 116 003 000   ");
  Send("  010 000 246");
  Tick();
  EXPECT_EQ(Shown(), "  137 116 003 000\r\n    010 000 246\r\n");
}

TEST_F(Screen, PutsTheTimingBehindTheLineBefore) {
  Open();
  Send("one", " 0.001   ");
  Tick();
  EXPECT_EQ(Shown(), "  one\r\n") << "the first message sets no timing";
  Send("two", " 0.002   ");
  Send("three", " 0.003 1.250");
  Tick();
  EXPECT_EQ(Shown(), "  one 0.002\r\n  two 0.003 1.250\r\n  three\r\n");
}

TEST_F(Screen, SizesItsLinesByTheHeightOfTheBox) {
  struct Row {
    int height;
    double font_size;
    int lines;  // the upper index and one
  };
  const Row rows[] = {
      {4000, 10, 17},    // 4000 \ 240 = 16
      {239, 10, 1},      // less than one line
      {240, 10, 2},      // just one
      {1000, 8.25, 6},   // 24 x 8.25 = 198
      {1000, 8.27, 6},   // 198.48 is 198
      {1990, 8.3, 11},   // 199.2 is 199: 1990 \ 199 = 10
      {1989, 8.3, 10},   //
      {96, 0.1, 49},     // 2.4 is 2
      {300, 0, 301},     // no font at all: never a division by zero
      {48000, 10, 201},  // a box of two hundred lines
  };
  for (const Row& row : rows) {
    Open(row.height, row.font_size);
    for (int i = 0; i < row.lines + 5; ++i) Send("x");
    for (int i = 0; i < 5; ++i) Tick();
    std::string expected;
    for (int i = 0; i < row.lines; ++i) expected += "  x\r\n";
    EXPECT_EQ(Shown(), expected) << row.height << " " << row.font_size;
    screen.Unload();
    link.messages.clear();
  }
}

TEST_F(Screen, ShowsTheNewestLineTwiceOnceItIsFull) {
  Open(720);  // the elements 0 to 3
  for (const char* text : {"a", "b", "c"}) Send(text, std::string(" ") + text);
  Tick();
  EXPECT_EQ(Shown(), "  a b\r\n  b c\r\n  c\r\n");
  // The last element is filled for the first time, and everything moves up at once.
  Send("d", " d");
  Tick();
  EXPECT_EQ(Shown(), "  b c\r\n  c d\r\n  d\r\n  d\r\n");
  // The next one takes the last element's place; its timing goes to the copy before.
  Send("e", " e");
  Tick();
  EXPECT_EQ(Shown(), "  c d\r\n  d e\r\n  e\r\n  e\r\n");
}

TEST_F(Screen, ABoxOfOneLineShowsTheNewestMessageAndNoTiming) {
  Open(100);
  Send("one", " 1");
  Send("two", " 2");
  Send("three", " 3");
  Tick();
  EXPECT_EQ(Shown(), "  three\r\n");
}

TEST_F(Screen, RewritesTheBoxForEveryMessageAndTheScreenOnceATick) {
  Open();
  desktop.Flush();
  int changes = 0;
  screen.txtMonitor.on_change = [&] { ++changes; };
  const int touched = desktop.Touches();
  SendMany(9);
  Tick();
  EXPECT_EQ(changes, 9);
  EXPECT_EQ(desktop.Touches(), touched + 1);
}

// --- Ticks -------------------------------------------------------------------------------------

TEST_F(Screen, ATickTakesAtMost101Messages) {
  Open();
  SendMany(150);
  Tick();
  EXPECT_EQ(link.asked, 101);
  EXPECT_EQ(link.messages.size(), 49U);
  Tick();
  EXPECT_EQ(link.asked, 101 + 50) << "and the one that finds nothing";
  EXPECT_NE(Shown().find("m150\r\n"), std::string::npos);
}

TEST_F(Screen, MessagesWithoutEndLeaveTheScreenItsEvents) {
  Open();
  Send("again");
  link.endless = true;
  for (int i = 1; i <= 20; ++i) {
    Tick();
    EXPECT_EQ(link.asked, 101 * i);
  }
  screen.cmdExit.UserClick();
  EXPECT_FALSE(screen.Loaded());
}

TEST_F(Screen, AMessageOfBlanksEndsTheTick) {
  Open();
  Send("one");
  Send(std::string(150, ' '), " 9.999");
  Send("two");
  Tick();
  EXPECT_EQ(Shown(), "  one\r\n");
  Tick();
  EXPECT_EQ(Shown(), "  one\r\n  two\r\n");
}

TEST_F(Screen, LooksAtNoResultOfTheLibrary) {
  Open();
  link.result = 0x10;
  Send("refused, and yet a message");
  Tick();
  EXPECT_EQ(Shown(), "  refused, and yet a message\r\n");
  const int asked = link.asked;
  Tick();
  EXPECT_EQ(link.asked, asked + 1) << "an empty tick";
}

TEST_F(Screen, OneMessageStaysOneLineWhateverIsInIt) {
  struct Row {
    std::string text, shown;
  };
  const Row rows[] = {
      {std::string(400, 'x'), std::string(150, 'x')},
      {"a\r\nb\tc\x7F", "a??b?c?"},
      {std::string("ab\0cd", 5), "ab"},
      {std::string("\0", 1), ""},
      {"\xE9t\xE9 \x80", "été €"},
      {"\x1B[2J", "?[2J"},
  };
  for (const Row& row : rows) {
    Open();
    Send(row.text);
    Send("next");
    Tick();
    const std::string shown = Shown();
    EXPECT_EQ(std::count(shown.begin(), shown.end(), '\n'), 2) << shown;
    EXPECT_EQ(shown, "  " + row.shown + "\r\n  next\r\n");
    screen.Unload();
  }
}

TEST_F(Screen, AskesWithTheOptionsOfTheRun) {
  monitor.MonitorOpen();
  monitor.SetDisplayOptions(1, 0);
  Open();
  Tick();
  EXPECT_EQ(link.options, (std::pair<int, int>{1, 0}));
}

TEST_F(Screen, ALibraryThatRaisesAnErrorGetsABoxATickAndNoStack) {
  Open();
  link.on_get = [] { throw RuntimeError(ErrorNumber::kDeviceIoError); };
  desktop.OnBox([this](const MessageBox& box) {
    EXPECT_EQ(box.title, "Error");
    desktop.Run(5000);
  });
  Tick();
  EXPECT_EQ(desktop.TakeBoxes().size(), 1U);
  EXPECT_EQ(Shown(), "");
  link.on_get = nullptr;
  Send("well again");
  Tick();
  EXPECT_EQ(Shown(), "  well again\r\n");
}

TEST_F(Screen, AScreenThatIsClosedWithinATickEndsIt) {
  Open();
  SendMany(5);
  link.on_get = [this] { screen.Unload(); };
  Tick();
  EXPECT_EQ(link.asked, 1);
  EXPECT_FALSE(screen.Loaded());
}

// --- The data log ------------------------------------------------------------------------------

TEST_F(Screen, TheRecordButtonStartsAndStopsTheDataLog) {
  Open();
  monitor.SetDatalogInfo({"/logs/bus.txt", "two\r\nlines"});
  link.TakeCalls();
  screen.cmdDatalog.UserClick();
  EXPECT_EQ(link.TakeCalls(), Calls{"BusMonitorStartRecord /logs/bus.txt|two\r\nlines|0"});
  EXPECT_EQ(screen.cmdDatalog.Caption(), "St&op Record");
  EXPECT_EQ(screen.Caption(), "Bus Monitor: /logs/bus.txt");
  EXPECT_FALSE(screen.cmdOptions.Enabled());
  screen.cmdDatalog.UserClick();
  EXPECT_EQ(link.TakeCalls(), Calls{"BusMonitorStopRecord"});
  EXPECT_EQ(screen.cmdDatalog.Caption(), "St&art Record");
  EXPECT_EQ(screen.Caption(), "Bus Monitor");
  EXPECT_TRUE(screen.cmdOptions.Enabled());
}

TEST_F(Screen, TheCaptionNamesTheFileThatTheLibraryHasMadeOfIt) {
  Open();
  link.file_out = "/logs/other.txt";
  screen.cmdDatalog.UserClick();
  EXPECT_EQ(screen.Caption(), "Bus Monitor: /logs/other.txt");
}

TEST_F(Screen, AFailedStartChangesNothing) {
  Open();
  link.always["BusMonitorStartRecord"] = 0x31;
  screen.cmdDatalog.UserClick();
  EXPECT_EQ(screen.cmdDatalog.Caption(), "St&art Record");
  EXPECT_EQ(screen.Caption(), "Bus Monitor");
  EXPECT_TRUE(screen.cmdOptions.Enabled());
  link.TakeCalls();
  screen.Unload();
  EXPECT_EQ(link.TakeCalls(), Calls{"BusMonitorClose"}) << "nothing is recorded";
}

TEST_F(Screen, AFailedStopGoesOnRecording) {
  Open();
  screen.cmdDatalog.UserClick();
  const std::string caption = screen.Caption();
  link.answers["BusMonitorStopRecord"] = {0x22};
  screen.cmdDatalog.UserClick();
  EXPECT_EQ(screen.cmdDatalog.Caption(), "St&op Record");
  EXPECT_EQ(screen.Caption(), caption);
  EXPECT_FALSE(screen.cmdOptions.Enabled());
  screen.cmdDatalog.UserClick();
  EXPECT_EQ(screen.cmdDatalog.Caption(), "St&art Record");
}

TEST_F(Screen, RecordingSpeaksTheLanguage) {
  Language(kFrench);
  Open();
  EXPECT_EQ(screen.cmdDatalog.Caption(), "&Démarrer le journal");
  monitor.SetDatalogInfo({"/logs/bus.txt", ""});
  screen.cmdDatalog.UserClick();
  EXPECT_EQ(screen.cmdDatalog.Caption(), "&Arrêter le journal");
  EXPECT_EQ(screen.Caption(), "Moniteur de bus : /logs/bus.txt");
  screen.cmdDatalog.UserClick();
  EXPECT_EQ(screen.cmdDatalog.Caption(), "&Démarrer le journal");
  EXPECT_EQ(screen.Caption(), "Moniteur de bus");
}

// --- Unload ------------------------------------------------------------------------------------

TEST_F(Screen, LeavingEndsTheRecordingAndClosesTheMonitor) {
  for (const bool recording : {false, true}) {
    Open();
    if (recording) screen.cmdDatalog.UserClick();
    link.TakeCalls();
    screen.cmdExit.UserClick();
    EXPECT_FALSE(screen.Loaded());
    EXPECT_EQ(link.TakeCalls(), recording ? (Calls{"BusMonitorStopRecord", "BusMonitorClose"})
                                          : Calls{"BusMonitorClose"});
    const int asked = link.asked;
    desktop.Run(2000);
    EXPECT_EQ(link.asked, asked);
  }
}

TEST_F(Screen, ALaterOpeningBeginsEmptyAndKeepsTheOptions) {
  Open();
  monitor.SetDisplayOptions(1, 1);
  monitor.SetDatalogInfo({"/logs/mine.txt", "mine"});
  SendMany(3);
  Tick();
  screen.cmdDatalog.UserClick();
  screen.UserClose();
  Open();
  EXPECT_EQ(Shown(), "");
  EXPECT_EQ(screen.Caption(), "Bus Monitor");
  Send("new", " 1");
  Tick();
  EXPECT_EQ(Shown(), "  new\r\n");
  EXPECT_EQ(link.options, (std::pair<int, int>{1, 1}));
  EXPECT_EQ(monitor.GetDatalogInfo().file, "/logs/mine.txt");
  EXPECT_EQ(monitor.GetDatalogInfo().comments, "mine");
}

TEST_F(Screen, BehindTheCloseDownNothingIsSentToTheLibrary) {
  Open();
  screen.cmdDatalog.UserClick();
  link.TakeCalls();
  desktop.life.Close();
  screen.Unload();
  EXPECT_FALSE(screen.Loaded());
  EXPECT_EQ(link.TakeCalls(), Calls{});
}

// --- Resize ------------------------------------------------------------------------------------

TEST_F(Screen, AMinimizedWindowReadsNothingAndARestoredOneGoesOn) {
  Open();
  SendMany(2);
  screen.ViewMinimized(true);
  screen.UserResize();
  EXPECT_FALSE(screen.tmrUpdateMonitor.Enabled());
  desktop.Run(20000);
  EXPECT_EQ(link.asked, 0);
  screen.ViewMinimized(false);
  screen.UserResize();
  EXPECT_TRUE(screen.tmrUpdateMonitor.Enabled());
  Tick();
  EXPECT_EQ(Shown(), "  m1\r\n  m2\r\n");
}

TEST_F(Screen, AMinimizedWindowMovesNoControl) {
  Open();
  const Placement before = screen.cmdExit.Place();
  screen.ViewResized(160, 27);
  screen.ViewMinimized(true);
  screen.UserResize();
  EXPECT_EQ(screen.cmdExit.Place(), before);
}

TEST_F(Screen, ControlsGrowWithTheWindowAndTheirFontsWithItsHeight) {
  Open(4000);
  Resize(2 * kWidth, 3 * kHeight);
  EXPECT_EQ(screen.cmdDatalog.Place(), (Placement{3200, 3 * (kHeight - 600), 2800, 1200, 30}));
  EXPECT_EQ(screen.txtMonitor.Place(), (Placement{120, 900, 2 * (kWidth - 320), 12000, 30}));
  // Always from the places of the load: no errors gather.
  for (int i = 0; i < 500; ++i) Resize(kWidth + i * 7, kHeight + i * 3);
  Resize(kWidth, kHeight);
  EXPECT_EQ(screen.cmdDatalog.Place().left, 1600);
  EXPECT_EQ(screen.cmdDatalog.Place().height, 400);
  EXPECT_NEAR(screen.cmdDatalog.Place().font_size, 10, 1e-5);
}

TEST_F(Screen, EveryControlThatShowsIsMoved) {
  Open();
  std::vector<Placement> before;
  for (const Control* control : screen.Controls()) before.push_back(control->Place());
  Resize(kWidth / 2, kHeight / 2);
  for (std::size_t i = 0; i < before.size(); ++i) {
    const Control& control = *screen.Controls()[i];
    const bool moved = control.Place() != before[i];
    EXPECT_EQ(moved, control.Kind() != ControlKind::kTimer) << control.Name();
  }
}

TEST_F(Screen, ResizingKeepsTheLines) {
  Open(4000);  // 17 lines
  SendMany(3);
  Tick();
  Resize(kWidth, 2 * kHeight);
  EXPECT_TRUE(screen.tmrUpdateMonitor.Enabled());
  EXPECT_EQ(Shown(), "  m1\r\n  m2\r\n  m3\r\n");
  SendMany(1);
  Tick();
  EXPECT_EQ(Shown(), "  m1\r\n  m2\r\n  m3\r\n  m4\r\n");
}

// The font's rounding to a whole number of twips a line can change the number of lines.
TEST_F(Screen, ASmallerBufferKeepsItsFirstLinesAndGoesOnAtItsEnd) {
  Open(700, 2);  // 700 \ 48 = 14: 15 lines
  SendMany(14);
  Tick();
  // 3/10: the box is 210 high, its font 0.6, a line 14.4 and so 14: 15, 16 lines.
  Resize(kWidth, kHeight * 3 / 10);
  SendMany(1);
  Tick();
  EXPECT_EQ(std::count(Shown().begin(), Shown().end(), '\n'), 15);
  // 1/100: 7 high, a line 0.48, never 0: 8 lines.
  Resize(kWidth, kHeight / 100);
  SendMany(1);
  Tick();
  EXPECT_EQ(Shown(), "  m2\r\n  m3\r\n  m4\r\n  m5\r\n  m6\r\n  m7\r\n  m16\r\n  m16\r\n");
}

TEST_F(Screen, ATimerThatIsOffDuringTheResizeReadsNothing) {
  Open();
  SendMany(1);
  bool was_on = true;
  screen.txtMonitor.on_change = [&] { was_on = screen.tmrUpdateMonitor.Enabled(); };
  Resize(kWidth + 10, kHeight);
  EXPECT_EQ(link.asked, 0);
  Tick();
  EXPECT_TRUE(was_on);
  EXPECT_EQ(link.asked, 2);
}

}  // namespace
}  // namespace lorimet::testing_support
