// The overview of the operating data recorder on the screen, and its ways to a file and to the
// printer.
#pragma once

#include <string>

#include "platform/forms.h"

namespace lorimet {

class Clock;
class Dictionary;
class LinkLibrary;
class PagePrinter;
class Process;
class TextFiles;
struct ECUData;
struct OdrOverview;

// What the screen uses of the rest of the program.
struct OdrViewParts {
  Desktop& desktop;
  Clock& clock;
  Process& process;
  TextFiles& text_files;
  PagePrinter& printer;
  Dictionary& dictionary;
  LinkLibrary& link;
  const ECUData& ecu_data;
  Form& main_form;  // shows the pointer of a print under way
  TextBox& message_center;
};

class frmODRView : public Form {
 public:
  explicit frmODRView(const OdrViewParts& parts);

  Frame Frame2{*this, "Frame2"};
  Label lblTrailerID{*this, "lblTrailerID"};
  Label lblABSCount{*this, "lblABSCount"};
  Label lblStoplightCount{*this, "lblStoplightCount"};
  Label lblLatAccel1{*this, "lblLatAccel1"};
  Label lblLatAccel2{*this, "lblLatAccel2"};
  TextBox txtTrailerID{*this, "txtTrailerID"};
  TextBox txtABSCount{*this, "txtABSCount"};
  TextBox txtStoplightCount{*this, "txtStoplightCount"};
  TextBox txtLatAccel1{*this, "txtLatAccel1"};
  TextBox txtLatAccel2{*this, "txtLatAccel2"};
  Button cmdSave{*this, "cmdSave"};
  Button cmdPrint{*this, "cmdPrint"};
  Button cmdClose{*this, "cmdClose"};

 protected:
  // Error 6 for a counter of 32768 or more.
  void OnLoad() override;

 private:
  OdrOverview Shown() const;
  void Save();
  void Print();
  std::string PdfName() const;

  OdrViewParts parts_;
  std::string strVehicleID_;
  std::string strODRFile_;
  bool vehicle_known_ = false;
};

}  // namespace lorimet
