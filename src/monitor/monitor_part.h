// The bus monitor put together.
#pragma once

#include "monitor/bus_monitor.h"
#include "monitor/frmBusMonitor.h"
#include "monitor/frmMonitorOptions.h"

namespace lorimet {

struct Ports;
struct SessionPart;
struct SupportPart;

struct MonitorPart {
  MonitorPart(const Ports& ports, SupportPart& support, SessionPart& session);

  BusMonitor bus_monitor;
  frmMonitorOptions options;
  frmBusMonitor screen;
};

}  // namespace lorimet
