#include <QAbstractButton>
#include <QMessageBox>

#include "tour/chapters.h"
#include "tour/hand.h"
#include "tour/script.h"
#include "tour/trailers.h"

namespace lorimet {
namespace {

// A file is read back only if these fill their fields: its blanks at the end are lost.
constexpr char kId[] = "TOUR0123456789ABCD";
constexpr char kManufacturer[] = "NORVICK TRAILERS LTD";
constexpr char kType[] = "TOUR TRAILER, TIPPER";
constexpr char kFile[] = "tour.ecu";
constexpr TrailerRow kTrailer = {"4S/2M", "air", 3, "semi", "forward", ""};

enum class Dialogs { kPassed, kShown };

// The dialogs behind two of the functions. Left by its close box, each has asked for nothing.
void ShowSideDialogs(Script& script) {
  script.Press("frmGIOSelection", "chkGIO_6");
  script.Picture("frmLiftAxlePressures", "parameters-lift-axle",
                 "The pressures at which the lift axle is lowered and lifted");
  script.Close("frmLiftAxlePressures");
  script.Press("frmGIOSelection", "chkGIO_8");
  script.Picture("frmGIOSpecial", "parameters-special-functions", "The special functions");
  script.Press("frmGIOSpecial", "chkPerkins_2");
  script.Picture("frmSpeedSwitchThresh", "parameters-speed-switch",
                 "The speeds at which the speed switch turns on and off");
  script.Close("frmSpeedSwitchThresh");
  script.Close("frmGIOSpecial");
}

// From the first page of the wizard to the last but one. Pictures are named with `name`, where it
// has one; `of` begins their captions.
void WalkTo(Script& script, const QString& name, const QString& of = {},
            Dialogs dialogs = Dialogs::kPassed) {
  const auto picture = [&](const char* form, const char* page, const QString& caption) {
    script.UntilShown(form);
    if (!name.isEmpty()) script.Picture(form, name + page, of + caption);
  };
  picture("frmOVGParm1", "-system", "The system: vehicle, axles, sensors, modulators");
  script.Press("frmOVGParm1", "cmdNext");
  picture("frmGIOSelection", "-functions", "The functions of the freely assignable pins");
  if (dialogs == Dialogs::kShown) ShowSideDialogs(script);
  script.Press("frmGIOSelection", "cmdNext");
  picture("frmOVGParm2", "-load-sensing", "Loads, pressures and the trailer's identity");
}

void Edit(Script& script) {
  script.Command("mnuSystem_0");
  WalkTo(script, "parameters", {}, Dialogs::kShown);
  script.Type("frmOVGParm2", "txtTrailerVIN", kId);
  script.Type("frmOVGParm2", "txtManufacturer", kManufacturer);
  script.Type("frmOVGParm2", "txtTrailerType", kType);
  script.Press("frmOVGParm2", "cmdNext");
  script.Picture("frmOVGParm3", "parameters-overturn-guard", "Overturn Guard and tires");
}

void ExpectType(Script& script) {
  script.UntilText("frmOVGParm2", "txtTrailerType",
                   [](const QString& text) { return text.trimmed() == kType; });
}

}  // namespace

void ShowParameters(Script& script) {
  script.Chapter("Parameters");
  ChangeTrailer(script, kTrailer);
  Edit(script);
  script.Press("frmOVGParm3", "cmdSaveToECU");
  script.Picture("msgBox", "parameters-saved-to-ecu", "Written, and the ECU complains of nothing");
  script.Answer("The Parameter Data has been saved.", QMessageBox::Ok);
  script.UntilGone("frmOVGParm3");
  script.Tell("The trailer's identity edited and written to the ECU");

  script.Command("mnuSystem_0");
  WalkTo(script, {});
  ExpectType(script);
  script.Press("frmOVGParm2", "cmdNext");
  script.Press("frmOVGParm3", "cmdSaveToFile");
  script.ChooseFile(script.Files() + '/' + kFile);
  script.Picture("msgBox", "parameters-saved-to-file", "Saved to a file as well");
  script.Answer("Write to file complete.", QMessageBox::Ok);
  script.UntilGone("frmOVGParm3");
  script.CheckFile(kFile, "the parameters as the program saved them");
  script.Tell("Read back from the ECU and saved to a file");

  script.Command("mnuSystem_1");
  script.ChooseFile(script.Files() + '/' + kFile);
  WalkTo(script, "parameters-from-file", "From the file. ");
  ExpectType(script);
  script.Press("frmOVGParm2", "cmdClose");
  script.UntilGone("frmOVGParm2");
  script.Tell("Loaded from the file again");
  // What the file has told of the trailer gives way to what the ECU tells.
  script.Command("tbrABS_restart");
  script.UntilText("frmZeltMain", "txtOdom",
                   [](const QString& text) { return text.contains('.'); });
}

}  // namespace lorimet
