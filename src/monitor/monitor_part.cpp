#include "monitor/monitor_part.h"

#include "session/ports.h"
#include "session/session_part.h"
#include "support/support_part.h"

namespace lorimet {

MonitorPart::MonitorPart(const Ports& ports, SupportPart& support, SessionPart& session)
    : bus_monitor(ports.link, ports.process) {
  CommandActions& actions = session.main_form.actions;
  actions.show_bus_monitor = support.NotBuilt("Bus &Monitor");
  actions.start_recording = [this] { bus_monitor.MonitorStartRecord(); };
  actions.stop_recording = [this] { bus_monitor.MonitorStopRecord(); };
}

}  // namespace lorimet
