// The two screens of the bus monitor, and a library with messages of the test's own.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "adapters/headless/headless_desktop.h"
#include "adapters/headless/headless_ports.h"
#include "autotests/common/fake_link.h"
#include "autotests/common/gestures.h"
#include "autotests/places.h"
#include "monitor/bus_monitor.h"
#include "monitor/frmBusMonitor.h"
#include "monitor/frmMonitorOptions.h"
#include "support/dictionary.h"

namespace lorimet::testing_support {

using Calls = std::vector<std::string>;

class MessageLink : public FakeLink {
 public:
  struct Message {
    std::string text;
    std::string timing;
  };
  std::deque<Message> messages;
  bool endless = false;  // the last message never goes
  int asked = 0;
  std::string file_out;
  std::function<void()> on_get;

  std::int32_t BusMonitorGetData(char* text, char* timing, std::int32_t idle,
                                 std::int32_t stamp) override {
    ++asked;
    options = {idle, stamp};
    if (on_get) on_get();
    if (messages.empty()) return result;
    const Message message = messages.front();
    if (!endless || messages.size() > 1) messages.pop_front();
    std::memcpy(text, message.text.data(), message.text.size());
    std::memcpy(timing, message.timing.data(), message.timing.size());
    return result;
  }
  std::int32_t BusMonitorStartRecord(char* file, char* comments, std::int32_t zero) override {
    const std::int32_t answer = FakeLink::BusMonitorStartRecord(file, comments, zero);
    if (!file_out.empty()) std::memcpy(file, file_out.c_str(), file_out.size() + 1);
    return answer;
  }

  std::pair<int, int> options = {-1, -1};
  std::int32_t result = 0;
};

class MonitorTest : public testing::Test {
 protected:
  MonitorTest() { process.folder = "/program"; }
  ~MonitorTest() override {
    EXPECT_TRUE(desktop.TakeBoxes().empty()) << "a box that the test did not expect";
  }

  void Language(int language) {
    dictionary.Open();
    dictionary.SetLanguage(language);
  }
  // Shows the screen in a window of 800 by 500 pixels whose box has such a height, in twips, and
  // font: the other controls are a row of buttons below it.
  void Open(int height = 4000, double font_size = 10) {
    desktop.on_lay_out = [=, this](Form& form) {
      if (&form != &screen) return;
      screen.ViewResized(kWidth, kHeight);
      screen.Frame1.ViewMeasured({100, 100, kWidth - 200, height + 400, 10});
      screen.txtMonitor.ViewMeasured({60, 300, kWidth - 320, height, font_size});
      int left = 100;
      for (Button* button :
           {&screen.cmdOptions, &screen.cmdDatalog, &screen.cmdPause, &screen.cmdExit})
        button->ViewMeasured({std::exchange(left, left + 1500), kHeight - 600, 1400, 400, 10});
    };
    screen.Show();
  }
  void Resize(int width, int height) {
    screen.ViewResized(width, height);
    screen.UserResize();
  }
  void Tick() { desktop.Run(500); }
  void Send(const std::string& text, const std::string& timing = {}) {
    link.messages.push_back({text, timing});
  }
  // n messages "m1" ... in a row, from where the last call ended.
  void SendMany(int n) {
    for (int i = 0; i < n; ++i) Send("m" + std::to_string(++sent_));
  }
  const std::string& Shown() { return screen.txtMonitor.Text(); }

  VirtualClock clock;
  HeadlessDesktop desktop{clock};
  MessageLink link;
  HeadlessProcess process;
  TsTranslations translations{InSource("translations")};
  Dictionary dictionary{translations, desktop};
  BusMonitor monitor{desktop, link, process};
  frmMonitorOptions options{desktop, dictionary, process, monitor};
  frmBusMonitor screen{desktop, dictionary, monitor, options};

 protected:
  static constexpr int kWidth = 12000;
  static constexpr int kHeight = 7500;

 private:
  int sent_ = 0;
};

}  // namespace lorimet::testing_support
