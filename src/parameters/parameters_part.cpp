#include "parameters/parameters_part.h"

#include "faults/faults_part.h"
#include "parameters/parameter_reading.h"
#include "session/ports.h"
#include "session/session_part.h"
#include "support/support_part.h"

namespace lorimet {

ParametersPart::ParametersPart(const Ports& ports, SupportPart& support, SessionPart& session,
                               FaultsPart& faults)
    : found(session.records.ecu_data),
      parameter_file(ports.profile_file, ports.desktop, ports.process, ports.clock,
                     session.records.ecu_data, image, found),
      pages{&system_page,  &gio_page,          &special_gio,        &lift_axle,
            &speed_switch, &load_sensing_page, &overturn_guard_page},
      wizard{
          ports.desktop, support.dictionary, ports.link, session.records.ecu_data, image, choices,
          pages},
      system_page(wizard),
      gio_page(wizard),
      special_gio(wizard),
      lift_axle(wizard),
      speed_switch(wizard),
      load_sensing_page(wizard),
      overturn_guard_page(wizard, ports.clock, faults.faults, parameter_file, found) {
  parameter_file.translate = [this](const std::string& text) {
    return wizard.dictionary.Translate(text);
  };
  frmZeltMain& main_form = session.main_form;
  main_form.reset_results.push_back([this] {
    image.strTrailerVIN.clear();
    image.bStopLightCable = false;
  });
  main_form.actions.edit_parameters_from_ecu = [this, &main_form] {
    ReadParmsFromECU({wizard.link, wizard.desktop, wizard.dictionary, wizard.ecu_data, image, found,
                      main_form, main_form.txtError});
    ShowWizard(main_form);
  };
  main_form.actions.edit_parameters_from_file = [this, &main_form] { EditFromFile(main_form); };
  main_form.before_static_read.push_back([this] { found.Forget(); });
}

void ParametersPart::EditFromFile(frmZeltMain& main_form) {
  if (!told_.empty() && main_form.txtError.Text() == told_) main_form.txtError.SetText(" ");
  const bool read = parameter_file.ReadParmsFromFile();
  told_ = parameter_file.FailureText(wizard.dictionary);
  if (!told_.empty()) main_form.txtError.SetText(told_);
  if (read) ShowWizard(main_form);
}

void ParametersPart::ShowWizard(Form& owner) {
  // A page that was left by its window's close box leaves the ones before it hidden, with what
  // another trailer had put into them.
  for (Form* page :
       {static_cast<Form*>(&system_page), static_cast<Form*>(&gio_page),
        static_cast<Form*>(&load_sensing_page), static_cast<Form*>(&overturn_guard_page)})
    page->Unload();
  system_page.Show(Modality::kModal, &owner);
}

}  // namespace lorimet
