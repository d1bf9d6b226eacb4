// The bus monitor put together.
#pragma once

#include "monitor/bus_monitor.h"

namespace lorimet {

struct Ports;
struct SessionPart;
struct SupportPart;

struct MonitorPart {
  MonitorPart(const Ports& ports, SupportPart& support, SessionPart& session);

  BusMonitor bus_monitor;
};

}  // namespace lorimet
