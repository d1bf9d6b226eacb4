#include "faults/faults_part.h"

#include "session/ports.h"
#include "session/session_part.h"
#include "support/support_part.h"

namespace lorimet {

FaultsPart::FaultsPart(const Ports& ports, SupportPart& support, SessionPart& session)
    : faults(ports.link, ports.desktop, support.dictionary, fault_table),
      fault_list({ports.desktop, ports.clock, support.dictionary, support.settings, ports.link,
                  faults, fault_table}) {
  frmZeltMain& main_form = session.main_form;
  support.dictionary.on_language_changed.push_back([this, &dictionary = support.dictionary] {
    fault_table.BuildFaultTable(
        [&dictionary](const std::string& text) { return dictionary.Translate(text); });
  });
  fault_list.ecu_type = [&main_form] { return main_form.nECUType; };
  main_form.actions.show_faults = [this, &main_form, &dictionary = support.dictionary] {
    // The ECU is waited for before the list stands.
    main_form.TellWhile(dictionary.Translate("Reading the faults from the ECU..."),
                        [this] { fault_list.Load(); });
    fault_list.Show(Modality::kModal, &main_form);
  };
}

}  // namespace lorimet
