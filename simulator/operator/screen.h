// The tool as its operator sees it, and the yard as he acts on it.
#pragma once

#include <string>
#include <string_view>

namespace lorimet::simulator {

// What stands on the tool's display. Screens and buttons go by their names on the desk, such as
// "frmPressureTest" and "cmdCancel"; an item of an array is "cmdCalHgtSensor_0", a message box
// "msgBox" with the buttons "ok", "yes" and "no".
class Screen {
 public:
  virtual ~Screen() = default;
  // The screen on top; empty when no test is shown.
  virtual std::string Name() const = 0;
  // Its line of status; empty where it has none.
  virtual std::string Status() const = 0;
  // The position, 1 to 6, of the yellow tyre of the trailer plan; 0 for none.
  virtual int YellowTire() const = 0;
  virtual bool CanPress(std::string_view button) const = 0;
  virtual void Press(std::string_view button) = 0;
};

// The yard, in the words of the simulated trailer's commands.
class Yard {
 public:
  virtual ~Yard() = default;
  virtual void Do(const std::string& command) = 0;
  virtual std::string See(const std::string& name) = 0;
};

}  // namespace lorimet::simulator
