#include "reports/reports_part.h"

#include "session/session_part.h"
#include "support/support_part.h"

namespace lorimet {

ReportsPart::ReportsPart(SupportPart& support, SessionPart& session) {
  CommandActions& actions = session.main_form.actions;
  actions.save_report = support.NotBuilt("Save Fault and Sensor\\Valve Test Information");
  actions.print_report = support.NotBuilt("Print Fault and Sensor\\Valve Test Information");
  actions.save_eeprom = support.NotBuilt("Save &EEPROM Data");
  actions.show_odr_overview = support.NotBuilt("&Display ODR Overview Data");
  actions.export_odr = support.NotBuilt("&Export ODR Data");
  actions.delete_odr = support.NotBuilt("ODR Delete");
}

}  // namespace lorimet
