#include "reports/frmODRView.h"

#include <memory>
#include <optional>

#include "platform/clock.h"
#include "platform/page_printer.h"
#include "platform/process.h"
#include "platform/runtime_error.h"
#include "platform/text_file.h"
#include "reports/odr_overview.h"
#include "reports/vehicle_name.h"
#include "session/ecu_data.h"
#include "support/dictionary.h"
#include "support/file_names.h"
#include "support/message_boxes.h"
#include "support/printing.h"
#include "support/text.h"

namespace lorimet {

frmODRView::frmODRView(const OdrViewParts& parts)
    : Form(parts.desktop, "frmODRView"), parts_(parts) {
  help_page = "odr_overview.html";
  escape_closes = true;
  cmdSave.on_click = [this] { Save(); };
  cmdPrint.on_click = [this] { Print(); };
  cmdClose.on_click = [this] { Unload(); };
}

void frmODRView::OnLoad() {
  parts_.dictionary.TranslateForm(*this);
  CenterOnScreen();
  cmdClose.SetFocus();
  const std::optional<std::string> name = VehicleName(parts_.ecu_data);
  vehicle_known_ = name.has_value();
  strVehicleID_ = name.value_or("N/A");
  strODRFile_ = parts_.process.ProgramFolder() + kPathSeparator + strVehicleID_ + ".odr";
  txtTrailerID.SetText(strVehicleID_);
  const OdrOverview counters = ReadOdrCounters(parts_.link);
  txtLatAccel2.SetText(counters.level_2);
  txtLatAccel1.SetText(counters.level_1);
  txtStoplightCount.SetText(counters.stop_light);
  txtABSCount.SetText(counters.abs);
}

OdrOverview frmODRView::Shown() const {
  return {strVehicleID_, txtABSCount.Text(), txtStoplightCount.Text(), txtLatAccel1.Text(),
          txtLatAccel2.Text()};
}

// The file and the word of its success are English in every language.
void frmODRView::Save() {
  const std::tm now = parts_.clock.Now();
  try {
    CheckFileName(strVehicleID_ + ".odr");
    const std::unique_ptr<TextFile> file = parts_.text_files.OpenForOutput(strODRFile_);
    file->Write(OdrFileText(Shown(), now));
    file->Close();
  } catch (const RuntimeError& error) {
    ShowPlainBox(parts_.desktop,
                 parts_.dictionary.Translate("An error occurred while saving:  ") +
                     std::to_string(error.Number()) + kCrLf + error.Description(),
                 parts_.dictionary.Translate("Save Error"));
    return;
  }
  ShowPlainBox(parts_.desktop, "File saved successfully in " + strODRFile_ + ".", "Information",
               BoxIcon::kInformation);
}

// What the pages are called on a machine without a printer.
std::string frmODRView::PdfName() const { return vehicle_known_ ? strVehicleID_ + " ODR" : "ODR"; }

void frmODRView::Print() {
  parts_.main_form.SetMousePointer(MousePointer::kHourglass);
  std::string pdf;  // empty where there is a printer
  try {
    pdf = SendToPrinterOrFile(parts_.printer, parts_.process, PdfName());
    PrintOdrOverview(Shown(), parts_.clock.Now(), parts_.printer, parts_.dictionary);
  } catch (const RuntimeError& error) {
    parts_.printer.Cancel();
    parts_.main_form.SetMousePointer(MousePointer::kDefault);
    ShowPlainBox(parts_.desktop,
                 parts_.dictionary.Translate("An error occurred printing the ODR data:  ") +
                     std::to_string(error.Number()) + "\n" + error.Description(),
                 parts_.dictionary.Translate("Printer Error"));
    return;
  }
  parts_.main_form.SetMousePointer(MousePointer::kDefault);
  ShowPlainBox(parts_.desktop,
               parts_.dictionary.Translate("ODR Data successfully sent to printer."),
               parts_.dictionary.Translate("Print OK"));
  if (!pdf.empty())
    parts_.message_center.SetText(
        parts_.dictionary.Translate("There is no printer here.  The pages are in ") + pdf);
}

}  // namespace lorimet
