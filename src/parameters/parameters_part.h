// The parameters put together: the image, its file, and the wizard that edits it.
#pragma once

#include "parameters/found_configuration.h"
#include "parameters/frmGIOSelection.h"
#include "parameters/frmGIOSpecial.h"
#include "parameters/frmLiftAxlePressures.h"
#include "parameters/frmOVGParm1.h"
#include "parameters/frmOVGParm2.h"
#include "parameters/frmOVGParm3.h"
#include "parameters/frmSpeedSwitchThresh.h"
#include "parameters/parameter_file.h"
#include "parameters/parm_block.h"
#include "parameters/wizard.h"

#include <string>

namespace lorimet {

class frmZeltMain;
struct FaultsPart;
struct Ports;
struct SessionPart;
struct SupportPart;

struct ParametersPart {
  ParametersPart(const Ports& ports, SupportPart& support, SessionPart& session,
                 FaultsPart& faults);

  ParameterImage image;
  FoundConfiguration found;
  ParameterFile parameter_file;
  SystemChoices choices;
  WizardPages pages;
  WizardParts wizard;
  frmOVGParm1 system_page;
  frmGIOSelection gio_page;
  frmGIOSpecial special_gio;
  frmLiftAxlePressures lift_axle;
  frmSpeedSwitchThresh speed_switch;
  frmOVGParm2 load_sensing_page;
  frmOVGParm3 overturn_guard_page;

 private:
  void EditFromFile(frmZeltMain& main_form);
  void ShowWizard(Form& owner);

  std::string told_;  // why the last file was not read, as the Message Center says it
};

}  // namespace lorimet
