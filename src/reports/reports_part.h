// The reports and the recorded data put together.
#pragma once

#include "reports/eol_report.h"

namespace lorimet {

struct FaultsPart;
struct ParametersPart;
struct Ports;
struct SessionPart;
struct SupportPart;
struct TestsPart;

struct ReportsPart {
  ReportsPart(const Ports& ports, SupportPart& support, SessionPart& session, FaultsPart& faults,
              ParametersPart& parameters, TestsPart& tests);

  ReportParts report;
};

}  // namespace lorimet
