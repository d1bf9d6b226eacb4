// The reports and the recorded data put together.
#pragma once

#include "reports/eol_report.h"
#include "reports/frmODRDelete.h"
#include "reports/frmODRView.h"
#include "reports/frmSaveEEPROM.h"
#include "reports/frmSaveODR.h"

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
  frmODRView odr_view;
  frmODRDelete odr_delete;
  frmSaveEEPROM save_eeprom;
  frmSaveODR save_odr;

 private:
  void PlugScreens(SessionPart& session);
};

}  // namespace lorimet
