// The program's screens looked at on several screens: small, large, magnified, by night, and in
// every language.
//
// Each of the screens is a process of its own. LORIMET_LOOK_PICTURES names a folder that takes a
// picture of everything that was looked at.
#pragma once

#include <gtest/gtest.h>

#include <QSize>
#include <QWidget>

#include <cstddef>
#include <set>
#include <string>

#include "adapters/qt/qt_style.h"
#include "adapters/qt/qt_toolkit_texts.h"
#include "autotests/desktop/screens_fixture.h"

namespace lorimet {

struct ScreenSetup {
  const char* name;
  QSize pixels;
  const char* scale;
  lorimet::Look look;
};

constexpr ScreenSetup kScreenSetups[] = {
    {"Small", {1024, 768}, "1", Look::kLight},
    {"Laptop", {1366, 768}, "1.25", Look::kLight},
    {"Night", {1920, 1080}, "1.5", Look::kDark},
    {"Fine", {2048, 1536}, "2", Look::kLight},
};

class LookTest : public ScreensTest, public testing::WithParamInterface<ScreenSetup> {
 protected:
  LookTest();
  ~LookTest() override;

  // True in the process whose screen is the one of the test.
  static bool OnScreen();
  // The test again, in such a process.
  static void RunOnScreen();

  // Starts the program, connected to a trailer of four sensors and two modulators.
  void Open();
  void Speak(std::size_t language);  // 0 to 2
  static constexpr std::size_t kLanguageNumber = 3;

  // Looks at a form, or at a window that is none. A word tells apart what stands there, and is
  // looked at once in a language.
  void Inspect(Form& form, const std::string& state = {});
  void Inspect(QWidget& window, const std::string& state = {});
  bool Inspecting() const { return inspecting_; }
  void FillRecord();

  std::set<std::string> seen;  // forms

 private:
  void Keep(QWidget& window, const std::string& state) const;
  void CheckHelp(Form& form);

  QtToolkitTexts toolkit_;
  std::set<std::string> looked_;
  std::size_t language_ = 0;
  bool inspecting_ = false;
};

}  // namespace lorimet
