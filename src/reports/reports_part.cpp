#include "reports/reports_part.h"

#include "faults/faults_part.h"
#include "parameters/parameters_part.h"
#include "session/ports.h"
#include "session/session_part.h"
#include "support/support_part.h"
#include "tests/tests_part.h"

namespace lorimet {
namespace {

// Kinds of the printed report.
constexpr std::int16_t kFaultReport = 0;
constexpr std::int16_t kEndOfLineReport = -1;

}  // namespace

ReportsPart::ReportsPart(const Ports& ports, SupportPart& support, SessionPart& session,
                         FaultsPart& faults, ParametersPart& parameters, TestsPart& tests)
    : report{ports.desktop,
             ports.clock,
             ports.process,
             ports.text_files,
             ports.printer,
             support.dictionary,
             session.main_form,
             session.main_form.txtError,
             session.records,
             faults.faults,
             faults.fault_table,
             tests.test_results,
             parameters.image.strTrailerVIN},
      odr_view({ports.desktop, ports.clock, ports.process, ports.text_files, ports.printer,
                support.dictionary, ports.link, session.records.ecu_data, session.main_form,
                session.main_form.txtError}),
      odr_delete(ports.desktop, support.dictionary, ports.link),
      save_eeprom(ports.desktop, ports.process, support.dictionary, ports.link,
                  session.records.ecu_data),
      save_odr({ports.desktop, ports.clock, ports.process, support.dictionary, ports.link,
                session.records.ecu_data}) {
  const auto save = [this] { SaveEOLReport(report); };
  const auto print = [this](std::int16_t kind) {
    return [this, kind] { PrintEOLReport(report, kind); };
  };
  faults.fault_list.save_report = save;
  faults.fault_list.print_report = print(kFaultReport);
  tests.sign_off.save_report = save;
  tests.sign_off.print_report = print(kEndOfLineReport);
  CommandActions& actions = session.main_form.actions;
  actions.save_report = save;
  actions.print_report = print(kEndOfLineReport);
  PlugScreens(session);
}

void ReportsPart::PlugScreens(SessionPart& session) {
  const auto show = [&main_form = session.main_form](Form& screen) {
    return [&screen, &main_form] { screen.Show(Modality::kModal, &main_form); };
  };
  CommandActions& actions = session.main_form.actions;
  actions.save_eeprom = show(save_eeprom);
  actions.show_odr_overview = show(odr_view);
  actions.export_odr = show(save_odr);
  actions.delete_odr = show(odr_delete);
  session.messages.show_upload_step = [this](const std::string& text, int step) {
    save_odr.ShowStep(text, step);
  };
}

}  // namespace lorimet
