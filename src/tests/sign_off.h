// The sign-off: the required tests of one trailer in their order, the end-of-line flag, and the
// offer of the report.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "tests/eol_flag.h"

namespace lorimet {

class Desktop;
class Dictionary;
class Form;
class frmZeltMain;
enum class VehicleTest : std::size_t;
struct ECUData;
struct ParameterImage;
struct TestResults;

struct SignOffParts {
  Desktop& desktop;
  Dictionary& dictionary;
  EolFlagParts flag;
  frmZeltMain& main_form;
  const ECUData& ecu;
  const ParameterImage& image;
  TestResults& results;
  Form& pressure_test;
  Form& redundancy_test;
  Form& sensor_test;
  Form& lamp_test;
  Form& calibration;
};

class SignOffProcedure {
 public:
  explicit SignOffProcedure(const SignOffParts& parts) : parts_(parts) {}

  // Runs the tests, stops at the first that does not pass and names it; later ones keep "not
  // tested". Parameter access is not given back on any path.
  void SignOff();

  // Plugs: the text report, and the printed one with the results of the tests.
  std::function<void()> save_report;
  std::function<void()> print_report;

 private:
  // Each is false where the sign-off ends.
  bool PassPressureTest();
  bool PassRedundancyTest();
  bool PassSensorTest();
  bool PassLampTest();
  bool PassCalibration();
  bool SetFlag();

  void ClearResults();
  void TellOfStopLightCable();
  void OfferReport();
  bool Ask(const std::string& text);
  bool Fail(VehicleTest test);
  bool Fail(const char* text, const char* title);
  bool Show(Form& test, Form* owner);
  std::string Translated(const char* text) const;

  SignOffParts parts_;
};

}  // namespace lorimet
