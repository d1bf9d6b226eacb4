#include "tests/frmLampTest.h"

#include "support/dictionary.h"
#include "tests/test_results.h"
#include "tests/test_routines.h"

namespace lorimet {
namespace {

constexpr int kInterval = 800;  // ms

}  // namespace

frmLampTest::frmLampTest(const TestParts& parts)
    : Form(parts.desktop, "frmLampTest"), parts_(parts) {
  help_page = "lamp_test.html";
  cmdYes.on_click = [this] { Answer(kTestPassed); };
  cmdNo.on_click = [this] { Answer(kTestFailed); };
  Timer1.on_tick = [this] { OnTick(); };
}

void frmLampTest::OnLoad() {
  parts_.dictionary.TranslateForm(*this);
  CenterOnScreen();
  nLampState_ = 0;
  Timer1.SetInterval(kInterval);
  Timer1.SetEnabled(true);
  lblWarningLamp.SetBackColor(kColorWhite);
  parts_.results.nLampTest = kTestFailed;
  txtStatus.SetText(
      parts_.dictionary.Translate("Do You See The Warning Lamp Blinking ON and OFF?"));
}

// It blinks on whether the ECU answers or not: the lamp on the trailer is the test.
void frmLampTest::OnTick() {
  nLampState_ = nLampState_ == 0 ? 1 : 0;
  SetWarningLamp(parts_.link, nLampState_);
  lblWarningLamp.SetBackColor(nLampState_ == 0 ? kColorWhite : kColorRed);
}

// No last command: the lamp goes back to the ECU by itself.
void frmLampTest::Answer(std::int16_t result) {
  parts_.results.nLampTest = result;
  Timer1.SetEnabled(false);
  Unload();
}

}  // namespace lorimet
