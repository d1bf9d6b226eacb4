#include "platform/desktop.h"

#include "platform/forms.h"

namespace lorimet {

void Desktop::Flush() {
  // By index: mirroring may not load or unload forms, but a view may be asked while one is built.
  for (std::size_t i = 0; i < loaded_forms_.size(); ++i)
    if (FormView* view = loaded_forms_[i]->View()) view->Flush();
}

void Desktop::RunEvent(const std::function<void()>& handler) {
  handler();
  Flush();
}

}  // namespace lorimet
