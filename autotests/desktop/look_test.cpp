// Every screen of the program in every language: nothing is clipped or covered, everything can be
// reached by keyboard and has a name, and the window fits its screen.
#include <QApplication>
#include <QDialog>
#include <QTimer>

#include "adapters/headless/ui_design.h"
#include "autotests/desktop/look_fixture.h"

namespace lorimet {
namespace {

class EveryScreen : public LookTest {
 protected:
  void Walk(std::size_t language) {
    boxes = 0;
    Speak(language);
    QTimer modals;
    QObject::connect(&modals, &QTimer::timeout, [this] { LookAtModals(); });
    modals.start(0);
    for (Form* form : std::vector<Form*>(desktop.Forms())) {
      form->Load();
      boxes = 0;
      if (!form->Loaded()) continue;
      if (form->Name() == "frmPDFDDEForm") continue;
      form->Show();
      Inspect(*form);
      if (form != &program.session->main_form) form->Hide();
    }
    for (std::size_t i = desktop.LoadedForms().size(); i-- > 1;)
      if (i < desktop.LoadedForms().size()) desktop.LoadedForms()[i]->Unload();
    Pump();
  }

  // A screen that opens itself while it loads is looked at where it stands.
  void LookAtModals() {
    QWidget* window = QApplication::activeModalWidget();
    if (window == nullptr || window->objectName() == "msgBox" || Inspecting()) return;
    if (auto* dialog = qobject_cast<QDialog*>(window); window->objectName() == "dlgFile")
      return dialog->reject();
    for (Form* form : std::vector<Form*>(desktop.LoadedForms())) {
      if (desktop.Window(*form) != window) continue;
      Inspect(*form);
      form->Unload();
      if (form->Loaded()) form->Hide();
    }
  }
};

TEST_P(EveryScreen, CanBeReadReachedAndUsed) {
  if (!OnScreen()) return RunOnScreen();
  AnswerBoxes();
  Open();
  for (std::size_t language = 0; language < kLanguageNumber; ++language) Walk(language);
  for (const std::string& name : UiFormNames())
    EXPECT_TRUE(seen.contains(name) || name == "frmPDFDDEForm") << name << " was not looked at";
}

INSTANTIATE_TEST_SUITE_P(, EveryScreen, testing::ValuesIn(kScreenSetups),
                         [](const auto& setup) { return setup.param.name; });

}  // namespace
}  // namespace lorimet
