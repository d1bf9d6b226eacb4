#include "tests/tests_part.h"

#include "faults/faults_part.h"
#include "parameters/parameters_part.h"
#include "session/ports.h"
#include "session/session_part.h"
#include "support/support_part.h"

namespace lorimet {

TestsPart::TestsPart(const Ports& ports, SupportPart& support, SessionPart& session,
                     FaultsPart& faults, ParametersPart& parameters)
    : parts{ports.desktop, ports.clock, support.dictionary, ports.link, session.records.ecu_data,
            test_results},
      flag{ports.link, ports.clock, faults.faults},
      pressure_test(parts),
      redundancy_test(parts),
      sensor_test(parts),
      lamp_test(parts),
      suspension_calibration(parts, faults.faults),
      stop_light(ports.desktop, support.dictionary, ports.link),
      eol_bit(ports.desktop, support.dictionary, flag),
      sign_off({ports.desktop, support.dictionary, flag, session.main_form,
                session.records.ecu_data, parameters.image, test_results, pressure_test,
                redundancy_test, sensor_test, lamp_test, suspension_calibration}),
      commands({ports.link, ports.desktop, ports.clock, support.dictionary, session.main_form,
                test_results}) {
  PlugScreens(session.main_form);
  session.main_form.reset_results.push_back([this] { ClearTestResults(test_results); });

  CommandActions& actions = session.main_form.actions;
  actions.sign_off = [this] { sign_off.SignOff(); };
  actions.set_end_of_line_bit = [this, &main_form = session.main_form] {
    eol_bit.Show(Modality::kModal, &main_form);
  };
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

// The last two have no owner.
void TestsPart::PlugScreens(frmZeltMain& main_form) {
  const auto show = [](Form& screen, Form* owner) {
    return [&screen, owner] { screen.Show(Modality::kModal, owner); };
  };
  commands.show = {
      show(pressure_test, &main_form),       show(redundancy_test, &main_form),
      show(sensor_test, &main_form),         show(lamp_test, &main_form),
      show(suspension_calibration, nullptr), show(stop_light, nullptr),
  };
}

}  // namespace lorimet
