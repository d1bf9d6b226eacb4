// The faults put together: the catalogue, the ECU's store and the list of both.
#pragma once

#include "faults/fault_table.h"
#include "faults/faults.h"
#include "faults/frmFaults.h"

namespace lorimet {

struct Ports;
struct SessionPart;
struct SupportPart;

struct FaultsPart {
  FaultsPart(const Ports& ports, SupportPart& support, SessionPart& session);

  FaultTable fault_table;
  Faults faults;
  frmFaults fault_list;
};

}  // namespace lorimet
