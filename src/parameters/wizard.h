// What the pages of the parameter wizard share: the records that they edit, and one another.
#pragma once

#include <array>
#include <string>

namespace lorimet {

class Desktop;
class Dictionary;
class Form;
class LinkLibrary;
class SideDialog;
struct ECUData;
struct ParameterImage;

// The pages, which show and unload each other and know no more of one another. A page that gives
// way to another hides or unloads itself and names its successor by Form::ContinueWith, so walking
// never deepens the stack.
struct WizardPages {
  Form* system = nullptr;
  Form* gio = nullptr;
  SideDialog* special_gio = nullptr;
  SideDialog* lift_axle = nullptr;
  SideDialog* speed_switch = nullptr;
  Form* load_sensing = nullptr;
  Form* overturn_guard = nullptr;
};

// Items of the system page's optSLAC.
enum class StopLightCable { kCable = 0, kLevel2Output = 1, kNone = 2 };

// What is chosen on the system page, for the pages behind it. The page keeps it up to date from
// its load on.
struct SystemChoices {
  struct DiagramBox {
    std::string text;
    bool drawn = false;
  };

  bool air_suspension = false;
  bool two_sensors = false;  // 2S/2M or 2S/1M
  StopLightCable stop_light = StopLightCable::kNone;
  std::array<DiagramBox, 6> diagram;
  std::string picture;
};

// What a page uses of the rest of the program. `pages` is filled once all pages exist.
struct WizardParts {
  Desktop& desktop;
  Dictionary& dictionary;
  LinkLibrary& link;
  ECUData& ecu_data;
  ParameterImage& image;
  SystemChoices& choices;
  const WizardPages& pages;
};

}  // namespace lorimet
