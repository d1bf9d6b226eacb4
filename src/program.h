// The program put together from its ports: the records, the forms and what is plugged into them.
//
// The desktop program, the tour and the tests of the whole program start the same way from here;
// they differ in the adapters that they bring.
#pragma once

#include <memory>

#include "faults/fault_table.h"
#include "faults/faults.h"
#include "faults/frmFaults.h"
#include "monitor/bus_monitor.h"
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
#include "session/entry.h"
#include "session/frmZeltMain.h"
#include "session/link_messages.h"
#include "session/session_state.h"
#include "support/dictionary.h"
#include "support/frmAbout.h"
#include "support/frmErr.h"
#include "support/frmNotBuilt.h"
#include "support/frmPDFDDEForm.h"
#include "support/frmRP1210Err.h"
#include "support/help.h"
#include "support/settings.h"
#include "tests/test_results.h"

namespace lorimet {

class Clock;
class Desktop;
class HelpViewer;
class LinkLibrary;
class MessageHook;
class PagePrinter;
class Process;
class ProfileFile;
class Registry;
class RuntimeError;
class TranslationSource;

struct Ports {
  Desktop& desktop;
  Clock& clock;
  Registry& registry;
  MessageHook& hook;
  Process& process;
  LinkLibrary& link;
  HelpViewer& help_viewer;
  TranslationSource& translations;
  ProfileFile& profile_file;
};

class Program {
 public:
  explicit Program(const Ports& ports);

  // The entry; kEnded also after a run-time error, which the user has then been told and which
  // ExitStatus shows.
  EntryResult Start();
  // Tells the user of a run-time error that nobody handled and closes the link in order; the
  // process is to end with ExitStatus.
  void OnUnhandledError(const RuntimeError& error);
  // 0, or 1 after a run-time error that ended the program.
  int ExitStatus() const { return exit_status_; }

 private:
  Ports ports_;
  int exit_status_ = 0;

 public:
  // Records.
  SessionRecords records;
  ParameterImage image;
  TestResults test_results;
  FaultTable fault_table;

  // Services.
  Settings settings;
  Dictionary dictionary;
  Help help;
  BusMonitor bus_monitor;
  Faults faults;

  // Forms, and the procedures between them.
  frmErr err;
  frmRP1210Err rp1210_error;
  LinkMessages messages;
  frmZeltMain main_form;
  frmFaults fault_list;
  ParameterFile parameter_file;
  WizardPages pages;
  frmOVGParm1 system_page;
  frmGIOSelection gio_page;
  frmGIOSpecial special_gio;
  frmLiftAxlePressures lift_axle;
  frmSpeedSwitchThresh speed_switch;
  frmOVGParm2 load_sensing_page;
  frmOVGParm3 overturn_guard_page;
  frmAbout about;
  frmNotBuilt not_built;
  frmPDFDDEForm pdf_link;

 private:
  WizardParts ForWizard();
  void PlugCommands();
  void PlugParameters();
};

}  // namespace lorimet
