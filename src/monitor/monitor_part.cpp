#include "monitor/monitor_part.h"

#include "session/ports.h"
#include "session/session_part.h"
#include "support/support_part.h"

namespace lorimet {

MonitorPart::MonitorPart(const Ports& ports, SupportPart& support, SessionPart& session)
    : bus_monitor(ports.desktop, ports.link, ports.process),
      options(ports.desktop, support.dictionary, ports.process, bus_monitor),
      screen(ports.desktop, support.dictionary, bus_monitor, options) {
  CommandActions& actions = session.main_form.actions;
  actions.show_bus_monitor = [this, &session] {
    screen.Show(Modality::kModal, &session.main_form);
  };
  actions.start_recording = [this] { bus_monitor.MonitorStartRecord(); };
  actions.stop_recording = [this] { bus_monitor.MonitorStopRecord(); };
}

}  // namespace lorimet
