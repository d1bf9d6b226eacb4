#include "parameters/frmGIOSelection.h"

#include "parameters/function_blocks.h"
#include "parameters/gio_functions.h"
#include "parameters/parameter_map.h"
#include "parameters/side_dialog.h"
#include "parameters/wizard_step.h"
#include "support/dictionary.h"

namespace lorimet {
namespace {

constexpr FieldWrite kAtLoad[] = {
    PutByte(parameter::Connector(83), 0), PutByte(parameter::Connector(84), 0),
    PutByte(parameter::GioValue(35), 3),  PutByte(parameter::GioValue(36), 3),
    PutByte(parameter::GioValue(38), 1),
};

}  // namespace

frmGIOSelection::frmGIOSelection(const WizardParts& parts)
    : Form(parts.desktop, "frmGIOSelection"), parts_(parts) {
  help_page = "gio_selection.html";
  chkGIO.OnClick([this](int index) { OnFunction(index); });
  cmdNext.on_click = [this] { OnNext(); };
  cmdPrev.on_click = [this] {
    Unload();
    ContinueWith(*parts_.pages.system);
  };
  cmdClose.on_click = [this] { OnClose(); };
}

void frmGIOSelection::OnLoad() {
  parts_.dictionary.TranslateForm(*this);
  lblStep.SetCaption(StepWords(parts_, WizardStep::kGio));
  CenterOnScreen();
  ResetFunctionBlocks(parts_.image);
  ApplyWrites(kAtLoad, parts_.image);
  chkGIO[kGioDoorAjar].SetEnabled(false);
  chkGIO[kGioTagAxle].SetToolTipText(
      parts_.dictionary.Translate("GIO3, single port Y-cable, P/N 310 662 517 0"));
  chkGIO[kGioLiftAxle].SetToolTipText(
      parts_.dictionary.Translate("GIO1, single port Y-cable, P/N 310 662 517 0"));
}

void frmGIOSelection::OnFunction(int index) {
  if (!chkGIO[index].Value()) return;
  SideDialog* const dialog = index == kGioLiftAxle  ? parts_.pages.lift_axle
                             : index == kGioSpecial ? parts_.pages.special_gio
                                                    : nullptr;
  if (dialog == nullptr) return;
  // Left by its close box it has asked for nothing.
  if (!dialog->Ask(*this) && Loaded()) chkGIO[index].SetValue(false);
}

void frmGIOSelection::OnNext() {
  SetMousePointer(MousePointer::kHourglass);
  GioChoice chosen{};
  for (int i = 0; i < kGioFunctionCount; ++i)
    chosen[static_cast<std::size_t>(i)] = chkGIO[i].Value();
  ApplyGioFunctions(chosen, parts_.image);
  SetMousePointer(MousePointer::kDefault);
  Hide();
  ContinueWith(*parts_.pages.load_sensing);
}

void frmGIOSelection::OnClose() {
  parts_.pages.system->Unload();
  Unload();
}

}  // namespace lorimet
