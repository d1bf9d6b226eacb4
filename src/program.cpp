#include "program.h"

#include "faults/faults_part.h"
#include "monitor/monitor_part.h"
#include "parameters/parameters_part.h"
#include "platform/desktop.h"
#include "platform/runtime_error.h"
#include "reports/reports_part.h"
#include "session/session_part.h"
#include "support/error_report.h"
#include "support/support_part.h"
#include "tests/tests_part.h"

namespace lorimet {

Program::Program(const Ports& ports)
    : ports_(ports),
      support(std::make_unique<SupportPart>(ports.desktop, ports.registry, ports.process,
                                            ports.help_viewer, ports.translations)),
      session(std::make_unique<SessionPart>(ports, *support)),
      faults(std::make_unique<FaultsPart>(ports, *support, *session)),
      parameters(std::make_unique<ParametersPart>(ports, *support, *session, *faults)),
      monitor(std::make_unique<MonitorPart>(ports, *support, *session)),
      tests(std::make_unique<TestsPart>(ports, *support, *session, *faults, *parameters)),
      reports(
          std::make_unique<ReportsPart>(ports, *support, *session, *faults, *parameters, *tests)) {
  // A desktop can have seen another program's end.
  ports.desktop.life = {};
}

Program::~Program() = default;

EntryResult Program::Start() {
  try {
    return Main({ports_.process, session->messages, support->dictionary, ports_.desktop,
                 session->main_form, support->err});
  } catch (const RuntimeError&) {
    // Main has shown it.
    exit_status_ = 1;
    session->main_form.CloseLink();
    return EntryResult::kEnded;
  }
}

void Program::OnUnhandledError(const RuntimeError& error) {
  exit_status_ = 1;
  ports_.desktop.life.Fail();
  if (error.Number() != kObjectError) ports_.desktop.ShowMessageBox(UnhandledErrorBox(error));
  session->main_form.CloseLink();
}

void Program::End() {
  if (session->main_form.Loaded()) session->main_form.CloseLink();
}

}  // namespace lorimet
