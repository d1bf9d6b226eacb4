// What the pages of the parameter wizard share: the records that they edit, and one another.
#pragma once

namespace lorimet {

class Clock;
class Desktop;
class Dictionary;
class LinkLibrary;
class frmGIOSelection;
class frmGIOSpecial;
class frmLiftAxlePressures;
class frmOVGParm1;
class frmOVGParm2;
class frmOVGParm3;
class frmSpeedSwitchThresh;
struct ECUData;
struct ParameterImage;

// The pages, which show and read each other. A page that gives way to another hides or unloads
// itself and names its successor by Form::ContinueWith, so walking never deepens the stack.
struct WizardPages {
  frmOVGParm1* system = nullptr;
  frmGIOSelection* gio = nullptr;
  frmGIOSpecial* special_gio = nullptr;
  frmLiftAxlePressures* lift_axle = nullptr;
  frmSpeedSwitchThresh* speed_switch = nullptr;
  frmOVGParm2* load_sensing = nullptr;
  frmOVGParm3* overturn_guard = nullptr;
};

// What a page uses of the rest of the program. `pages` is filled once all pages exist.
struct WizardParts {
  Desktop& desktop;
  Dictionary& dictionary;
  LinkLibrary& link;
  ECUData& ecu_data;
  ParameterImage& image;
  const WizardPages& pages;
};

}  // namespace lorimet
