#include "program.h"

#include <array>

#include "parameters/parameter_reading.h"
#include "platform/desktop.h"
#include "platform/runtime_error.h"
#include "support/error_report.h"

namespace lorimet {

Program::Program(const Ports& ports)
    : ports_(ports),
      settings(ports.registry),
      dictionary(ports.translations, ports.desktop),
      help(settings, ports.process, ports.help_viewer, dictionary, ports.desktop),
      bus_monitor(ports.link, ports.process),
      faults(ports.link, ports.desktop, dictionary, fault_table),
      err(ports.desktop, dictionary),
      rp1210_error(ports.desktop, dictionary),
      messages(ports.hook, ports.desktop, dictionary, ports.link, records.ecu_data, err),
      main_form({{ports.link, messages, settings, dictionary, ports.desktop, records, rp1210_error},
                 ports.clock,
                 help,
                 ports.process,
                 err}),
      fault_list(
          {ports.desktop, ports.clock, dictionary, settings, ports.link, faults, fault_table}),
      parameter_file(ports.profile_file, ports.desktop, ports.process, ports.clock,
                     records.ecu_data, image),
      system_page(ForWizard()),
      gio_page(ForWizard()),
      special_gio(ForWizard()),
      lift_axle(ForWizard()),
      speed_switch(ForWizard()),
      load_sensing_page(ForWizard()),
      overturn_guard_page(ForWizard(), ports.clock, faults, parameter_file),
      about(ports.desktop, dictionary),
      not_built(ports.desktop, dictionary),
      pdf_link(ports.desktop) {
  dictionary.on_language_changed = [this] {
    help.BuildPath();
    fault_table.BuildFaultTable(
        [this](const std::string& text) { return dictionary.Translate(text); });
  };
  main_form.reset_results = [this] {
    ClearTestResults(test_results);
    image.strTrailerVIN.clear();
    image.bStopLightCable = false;
  };
  pages = {&system_page,  &gio_page,          &special_gio,        &lift_axle,
           &speed_switch, &load_sensing_page, &overturn_guard_page};
  PlugCommands();
  PlugParameters();
}

WizardParts Program::ForWizard() {
  return {ports_.desktop, dictionary, ports_.link, records.ecu_data, image, pages};
}

void Program::PlugParameters() {
  CommandActions& actions = main_form.actions;
  actions.read_parameters_from_ecu = [this] {
    ReadParmsFromECU({ports_.link, ports_.desktop, dictionary, records.ecu_data, image, main_form,
                      main_form.txtError});
  };
  actions.read_parameters_from_file = [this] { return parameter_file.ReadParmsFromFile(); };
  actions.show_parameters = [this] {
    // A page that was left by its window's close box leaves the ones before it hidden, with what
    // another trailer had put into them.
    for (Form* page :
         {static_cast<Form*>(&system_page), static_cast<Form*>(&gio_page),
          static_cast<Form*>(&load_sensing_page), static_cast<Form*>(&overturn_guard_page)})
      page->Unload();
    system_page.Show(Modality::kModal, &main_form);
  };
}

void Program::PlugCommands() {
  const auto not_yet = [this](const char* command) {
    return [this, command] { not_built.ShowFor(command); };
  };
  constexpr std::array<const char*, 6> kTests = {
      "&Pressure Test", "&Redundancy Test",        "&Sensor Test",
      "&Lamp Test",     "Suspension &Calibration", "Stop Light &Activation",
  };
  CommandActions& actions = main_form.actions;
  actions.show_faults = [this] { fault_list.Show(Modality::kModal, &main_form); };
  fault_list.ecu_type = [this] { return main_form.nECUType; };
  actions.sign_off = not_yet("&Begin Sign-off Procedure");
  for (std::size_t i = 0; i < kTests.size(); ++i) actions.show_test[i] = not_yet(kTests[i]);
  actions.test_result = {
      [this] { return test_results.nPressureTest; },
      [this] { return test_results.nRedundancyTest; },
      [this] { return test_results.nSensorTest; },
  };
  actions.calibration_result = [this] { return test_results.nHeightCalCD; };
  actions.save_eeprom = not_yet("Save &EEPROM Data");
  actions.show_odr_overview = not_yet("&Display ODR Overview Data");
  actions.export_odr = not_yet("&Export ODR Data");
  actions.set_end_of_line_bit = not_yet("&Set Customer EOL Bit");
  actions.show_bus_monitor = not_yet("Bus &Monitor");
  actions.start_recording = [this] { bus_monitor.MonitorStartRecord(); };
  actions.stop_recording = [this] { bus_monitor.MonitorStopRecord(); };
  actions.delete_odr = not_yet("ODR Delete");
  actions.save_report = not_yet("Save Fault and Sensor\\Valve Test Information");
  actions.print_report = not_yet("Print Fault and Sensor\\Valve Test Information");
  actions.show_about = [this] { about.Show(Modality::kModal, &main_form); };
}

EntryResult Program::Start() {
  try {
    return Main({ports_.process, messages, dictionary, ports_.desktop, main_form, err});
  } catch (const RuntimeError&) {
    // Main has shown it.
    exit_status_ = 1;
    main_form.CloseLink();
    return EntryResult::kEnded;
  }
}

void Program::OnUnhandledError(const RuntimeError& error) {
  exit_status_ = 1;
  if (error.Number() != kObjectError) ports_.desktop.ShowMessageBox(UnhandledErrorBox(error));
  main_form.CloseLink();
}

}  // namespace lorimet
