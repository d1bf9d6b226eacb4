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
    LoadList(main_form, dictionary);
    fault_list.Show(Modality::kModal, &main_form);
  };
}

// The ECU is waited for before the list stands, so the main window tells of it.
void FaultsPart::LoadList(frmZeltMain& main_form, const Dictionary& dictionary) {
  const std::string before = main_form.txtError.Text();
  const std::string words = dictionary.Translate("Reading the faults from the ECU...");
  main_form.txtError.SetText(words);
  main_form.GetDesktop().Repaint();
  fault_list.Load();
  if (main_form.txtError.Text() == words) main_form.txtError.SetText(before);
}

}  // namespace lorimet
