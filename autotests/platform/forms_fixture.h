// A form with a few controls that writes down its events, for the tests of forms.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "adapters/headless/headless_desktop.h"
#include "platform/controls.h"
#include "platform/forms.h"

namespace lorimet::testing_support {

using Log = std::vector<std::string>;

class SampleForm : public Form {
 public:
  SampleForm(Desktop& desktop, Log& log, const std::string& name)
      : Form(desktop, name), log_(log) {}

  TextBox text{*this, "text"};
  Button button{*this, "button"};
  DataGrid grid{*this, "grid"};
  TabStrip tabs{*this, "tabs"};
  Timer timer{*this, "timer"};

  std::function<void()> at_load, at_unload, at_resize;
  std::function<bool(UnloadMode)> refuses;
  std::function<void(KeyEvent&)> at_key;
  std::function<void(int&)> at_press;

 protected:
  void OnLoad() override {
    log_.push_back(Name() + " load");
    if (at_load) at_load();
  }
  void OnQueryUnload(bool& cancel, UnloadMode mode) override {
    if (refuses) cancel = refuses(mode);
  }
  void OnUnload() override {
    log_.push_back(Name() + " unload");
    if (at_unload) at_unload();
  }
  void OnResize() override {
    if (at_resize) at_resize();
  }
  void OnKeyDown(KeyEvent& key) override {
    if (at_key) at_key(key);
  }
  void OnKeyPress(int& character) override {
    if (at_press) at_press(character);
  }

 private:
  Log& log_;
};

class FormsTest : public testing::Test {
 protected:
  Log Take() { return std::exchange(log, {}); }

  Log log;
  VirtualClock clock;
  HeadlessDesktop desktop{clock};
  SampleForm form{desktop, log, "one"};
  SampleForm other{desktop, log, "two"};
};

}  // namespace lorimet::testing_support
