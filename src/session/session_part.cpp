#include "session/session_part.h"

#include "platform/desktop.h"
#include "session/ports.h"
#include "support/support_part.h"

namespace lorimet {

SessionPart::SessionPart(const Ports& ports, SupportPart& support)
    : messages(ports.hook, ports.desktop, support.dictionary, ports.link, records.ecu_data,
               support.err),
      main_form({{ports.link, messages, support.settings, support.dictionary, ports.desktop,
                  records, support.rp1210_error},
                 ports.clock,
                 support.help,
                 ports.process,
                 support.err}) {
  ports.desktop.on_help = [this, &support](const Form& form) {
    if (!main_form.Restarting()) support.help.ShowPage(form);
  };
  ports.desktop.translate = [&support](const std::string& text) {
    return support.dictionary.Translate(text);
  };
  main_form.actions.show_about = [this, &support] {
    support.about.Show(Modality::kModal, &main_form);
  };
}

}  // namespace lorimet
