#include <QMessageBox>

#include "tour/chapters.h"
#include "tour/script.h"
#include "tour/trailers.h"

namespace lorimet {
namespace {

constexpr TrailerRow kTrailer = {"4S/2M", "air", 3, "semi", "forward", ""};
constexpr char kEeprom[] = "EEPROM.txt";

// The recorder's counters of the trailer: a stop light circuit that rose twice.
void Brake(Script& script) {
  for (int i = 0; i < 2; ++i) {
    script.AtTrailer("press demand 40");
    script.Pause(1);
    script.AtTrailer("press demand 0");
    script.Pause(1);
  }
}

void ShowOverview(Script& script) {
  script.Command("mnuODR_0");
  script.UntilText("frmODRView", "txtStoplightCount",
                   [](const QString& text) { return text.toInt() >= 2; });
  script.Picture("frmODRView", "recorder-overview", "What the recorder has counted");
  script.Press("frmODRView", "cmdSave");
  script.Answer("File saved successfully in ", QMessageBox::Ok);
  script.Press("frmODRView", "cmdPrint");
  script.Answer("ODR Data successfully sent to printer.", QMessageBox::Ok);
  script.Press("frmODRView", "cmdClose");
  script.UntilGone("frmODRView");
  script.CheckFile(NameOf(kTrailer) + ".odr", "the recorder's overview");
  script.CheckFile(NameOf(kTrailer) + " ODR.pdf", "its page");
  script.Tell("The recorder's overview read, saved and printed");
}

void Export(Script& script) {
  script.Command("mnuODR_1");
  script.UntilText("frmSaveODR", "txtStatus",
                   [](const QString& text) { return text.contains('.'); });
  script.Pause(8);
  script.Picture("frmSaveODR", "recorder-export", "The export on its way");
  script.UntilText("frmSaveODR", "txtStatus", [&script](const QString& text) {
    return text.startsWith(QString::fromStdString(script.Translate("ODR Data saved in ")));
  });
  script.Press("frmSaveODR", "cmdClose");
  script.UntilGone("frmSaveODR");
  script.CheckFile(NameOf(kTrailer) + ".tso", "the recorder's export");
  script.Tell("The recorder exported");
}

void SaveEeprom(Script& script) {
  script.Command("mnuTools_0");
  script.ChooseFile(script.Files() + '/' + kEeprom);
  script.UntilShown("frmSaveEEPROM");
  script.Pause(8);
  script.Picture("frmSaveEEPROM", "eeprom", "The EEPROM on its way");
  script.UntilText("frmSaveEEPROM", "txtStatus", [&script](const QString& text) {
    return text.startsWith(QString::fromStdString(script.Translate("EEPROM Data saved in ")));
  });
  script.Press("frmSaveEEPROM", "cmdClose");
  script.UntilGone("frmSaveEEPROM");
  script.CheckFile(kEeprom, "the EEPROM");
  script.Tell("The EEPROM saved");
}

}  // namespace

void ShowRecorder(Script& script) {
  script.Chapter("The recorder and the EEPROM");
  ChangeTrailer(script, kTrailer);
  Brake(script);
  ShowOverview(script);
  Export(script);
  SaveEeprom(script);
}

}  // namespace lorimet
