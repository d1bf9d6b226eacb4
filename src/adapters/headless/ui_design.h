// The design of a form, read from its .ui file without a toolkit.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/controls.h"

namespace lorimet {

struct UiControl {
  std::string widget_class;  // "QLineEdit", "QAction", "QMenu"
  ControlDesign design;
};

struct UiDesign {
  std::string name;
  std::string caption;
  int width = 0;  // pixels
  int height = 0;
  std::map<std::string, UiControl> controls;  // by object name, layouts and containers included

  // Every text that a user reads, by the property that holds it, in the order of the file; notr
  // texts are left out.
  std::vector<std::string> texts;
};

// Reads `name`.ui from a folder of the source tree. A form without a .ui file has an empty design.
// Throws std::runtime_error on a file that is no .ui file.
UiDesign ReadUiDesign(const std::string& name);
// Every .ui file below the source tree.
std::vector<std::string> UiFormNames();

}  // namespace lorimet
