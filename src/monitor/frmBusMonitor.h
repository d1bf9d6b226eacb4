// The bus monitor: the messages of the data link as they come, and the button of the data log.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/forms.h"

namespace lorimet {

class BusMonitor;
class Dictionary;

class frmBusMonitor : public Form {
 public:
  frmBusMonitor(Desktop& desktop, Dictionary& dictionary, BusMonitor& monitor, Form& options);

  Frame Frame1{*this, "Frame1"};
  TextBox txtMonitor{*this, "txtMonitor"};
  Button cmdOptions{*this, "cmdOptions"};
  Button cmdDatalog{*this, "cmdDatalog"};
  Button cmdPause{*this, "cmdPause"};
  Button cmdExit{*this, "cmdExit"};
  Timer tmrUpdateMonitor{*this, "tmrUpdateMonitor"};

 protected:
  void OnLoad() override;
  void OnUnload() override;
  void OnResize() override;

 private:
  // A control's place and font as shares of the form's inner width and height.
  struct ControlShare {
    Control* control = nullptr;
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
    float font_size = 0;
  };

  void BuildControlTable();
  void PlaceControls();
  int UpperIndex() const;
  void Tick();
  // Takes one message into the lines; false when there is none.
  bool TakeMessage();
  void ShowLines();
  void StartRecord();
  void StopRecord();

  Dictionary& dictionary_;
  BusMonitor& monitor_;
  std::vector<std::string> strLines_;
  std::int16_t nCurrentLine_ = 0;
  std::int16_t bRecording_ = 0;
  bool ticking_ = false;
  std::vector<ControlShare> control_table_;
};

}  // namespace lorimet
