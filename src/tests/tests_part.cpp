#include "tests/tests_part.h"

#include "session/ports.h"
#include "session/session_part.h"
#include "support/support_part.h"

namespace lorimet {

TestsPart::TestsPart(const Ports& ports, SupportPart& support, SessionPart& session)
    : commands({ports.link, ports.desktop, ports.clock, support.dictionary, session.main_form,
                test_results}) {
  commands.show = {
      support.NotBuilt("&Pressure Test"),
      support.NotBuilt("&Redundancy Test"),
      support.NotBuilt("&Sensor Test"),
      support.NotBuilt("&Lamp Test"),
      support.NotBuilt("Suspension &Calibration"),
      support.NotBuilt("Stop Light &Activation"),
  };
  session.main_form.reset_results.push_back([this] { ClearTestResults(test_results); });

  CommandActions& actions = session.main_form.actions;
  actions.sign_off = support.NotBuilt("&Begin Sign-off Procedure");
  actions.set_end_of_line_bit = support.NotBuilt("&Set Customer EOL Bit");
  const auto run = [this](VehicleTest test) { return [this, test] { commands.RunTest(test); }; };
  actions.pressure_test = run(VehicleTest::kPressure);
  actions.redundancy_test = run(VehicleTest::kRedundancy);
  actions.sensor_test = run(VehicleTest::kSensor);
  actions.lamp_test = run(VehicleTest::kLamp);
  actions.suspension_calibration = run(VehicleTest::kSuspensionCalibration);
  actions.stop_light_activation = run(VehicleTest::kStopLightActivation);
  actions.toolbar_lamp_test = [this] { commands.RunLampTestFromToolbar(); };
  actions.toolbar_sensor_test = [this] { commands.RunSensorTestFromToolbar(); };
  actions.panel_redundancy_test = [this] { commands.Show(VehicleTest::kRedundancy); };
}

}  // namespace lorimet
