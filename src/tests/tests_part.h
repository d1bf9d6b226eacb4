// The vehicle's tests put together: their results, their screens, the sign-off, and the commands
// that start them.
#pragma once

#include "tests/frmLampTest.h"
#include "tests/frmPressureTest.h"
#include "tests/frmRedundancyTest.h"
#include "tests/frmSensorOrientation.h"
#include "tests/frmSetEOLBit.h"
#include "tests/frmStopLight.h"
#include "tests/frmSuspensionCal.h"
#include "tests/sign_off.h"
#include "tests/test_commands.h"
#include "tests/test_results.h"

namespace lorimet {

struct FaultsPart;
struct ParametersPart;
struct Ports;
struct SessionPart;
struct SupportPart;

struct TestsPart {
  TestsPart(const Ports& ports, SupportPart& support, SessionPart& session, FaultsPart& faults,
            ParametersPart& parameters);

  TestResults test_results;
  TestParts parts;
  EolFlagParts flag;
  frmPressureTest pressure_test;
  frmRedundancyTest redundancy_test;
  frmSensorOrientation sensor_test;
  frmLampTest lamp_test;
  frmSuspensionCal suspension_calibration;
  frmStopLight stop_light;
  frmSetEOLBit eol_bit;
  SignOffProcedure sign_off;
  TestCommands commands;

 private:
  void PlugScreens(frmZeltMain& main_form);
};

}  // namespace lorimet
