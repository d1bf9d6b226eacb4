#include "parameters/frmOVGParm2.h"

#include "parameters/conversions.h"
#include "parameters/parameter_map.h"
#include "parameters/wizard_step.h"
#include "session/ecu_data.h"
#include "support/dictionary.h"
#include "support/numbers.h"
#include "support/text.h"

namespace lorimet {
namespace {

constexpr double kAnything = 1e300;
constexpr int kRows = 5;
constexpr const char* kControlPressureUnladen = "94";  // psi

std::string Front(const std::string& text, std::size_t count) { return text.substr(0, count); }

std::string Back(const std::string& text, std::size_t count) {
  return text.size() <= count ? text : text.substr(text.size() - count);
}

// The left and the right digit of a text of up to two; a single one is both.
std::uint8_t Packed(const std::string& digits) {
  return PackedByte(Front(digits, 1), Back(digits, 1));
}

// Single-byte characters, filled up with blanks to the field's size.
std::string FieldOf(const std::string& text, const TextField& field) {
  std::string bytes = ToCp1252(text);
  bytes.resize(static_cast<std::size_t>(field.size), ' ');
  return bytes;
}

// The tabulator visits what is read back: the loads of the axles that are there, and the first row
// of every other column.
void SetTabStops(const frmOVGParm2& page, int axles) {
  for (int row = 0; row < kRows; ++row) {
    const bool used = row < axles;
    page.txtAxleLoadUnladen[row].SetTabStop(used);
    page.txtAxleLoadLaden[row].SetTabStop(used);
    for (const auto* column :
         {&page.txtSuspensionPressUnladen, &page.txtSuspensionPressLaden,
          &page.txtBrakingPressUnladen, &page.txtBrakingPressLadenPm_AN,
          &page.txtBrakingPressLadenPm_K1, &page.txtBrakingPressLadenPm_Max, &page.txtLeverLength})
      (*column)[row].SetTabStop(row == 0);
  }
}

}  // namespace

frmOVGParm2::frmOVGParm2(const WizardParts& parts)
    : Form(parts.desktop, "frmOVGParm2"), parts_(parts), checks_(*this, parts.dictionary) {
  help_page = "load_sensing_page.html";
  WatchFields();
  cmdNext.on_click = [this] {
    if (checks_.Accept()) Next();
  };
  // Both drop what is in the field that is left.
  cmdPrev.causes_validation = cmdClose.causes_validation = false;
  cmdPrev.on_click = [this] { Previous(); };
  cmdClose.on_click = [this] { Close(); };
}

void frmOVGParm2::WatchColumn(const ControlArray<TextBox>& column, double high,
                              const char* complaint) {
  for (auto& field : column) checks_.Watch(*field, -kAnything, high, complaint);
}

void frmOVGParm2::WatchFields() {
  WatchColumn(txtAxleLoadLaden, 25000,
              "Axle Load Laden out of range.  Valid range : 0 - 25,000 kg");
  WatchColumn(txtAxleLoadUnladen, 25000,
              "Axle Load Unladen out of range.  Valid range : 0 - 25,000 kg");
  for (const auto* column :
       {&txtBrakingPressLadenPm_AN, &txtBrakingPressLadenPm_K1, &txtBrakingPressLadenPm_Max})
    WatchColumn(*column, 145, "Braking Pressure Laden out of range.  Valid range : 0 - 145 psi");
  WatchColumn(txtBrakingPressUnladen, 145,
              "Braking Pressure Unladen out of range.  Valid range : 0 - 145 psi");
  for (int row = 0; row < kRows; ++row)
    checks_.Watch(txtLeverLength[row], [this, row](double value) -> const char* {
      if (IsUnused(txtLeverLength, row)) return nullptr;
      return value < 50 || value > 200 ? "Lever Length out of range.  Valid range : 50 - 200 mm"
                                       : nullptr;
    });
  // 53 passes although the message says 52.
  checks_.Watch(txtProdWeek, -kAnything, 53, "Production Week out of range.  Valid range : 0 - 52");
  WatchColumn(txtSuspensionPressUnladen, 181,
              "Suspension Pressure Unladen out of range.  Valid range : 0 - 181 psi");
  WatchSuspensionLaden();
  for (TextBox* box : {&txtProdYear, &txtTrailerVIN, &txtManufacturer, &txtTrailerType})
    checks_.WatchFocus(*box);
  for (const auto* column : {&txtControlPressureUnladen, &txtControlPressureLaden})
    for (auto& field : *column) checks_.WatchFocus(*field);
}

void frmOVGParm2::WatchSuspensionLaden() {
  for (int row = 0; row < kRows; ++row)
    checks_.Watch(txtSuspensionPressLaden[row], [this, row](double value) -> const char* {
      if (IsUnused(txtSuspensionPressLaden, row)) return nullptr;
      if (bAirSuspension_)
        return value > 181 ? "Suspension Pressure Laden out of "
                             "range.  Valid range : 0 - 181 psi"
                           : nullptr;
      return value < 10 || value > 400 ? "Suspension Path Laden out of range.  Valid "
                                         "range : 10 - 400 mm"
                                       : nullptr;
    });
}

// An empty cell of an axle that is not there may stay so.
bool frmOVGParm2::IsUnused(const ControlArray<TextBox>& column, int row) const {
  return row >= parts_.image.nNumAxlesSelected && column[row].Text().empty();
}

void frmOVGParm2::OnLoad() {
  parts_.dictionary.TranslateForm(*this);
  lblStep.SetCaption(StepWords(parts_, WizardStep::kLoadSensing));
  CenterOnScreen();
  bAirSuspension_ = parts_.choices.air_suspension;
  ShowDiagram();
  ShowIdentity();
  ShowSuspensionKind();
  const int axles = parts_.image.nNumAxlesSelected;
  for (int i = 0; i < axles && i < kRows; ++i) ShowAxle(i);
  for (int i = axles < 0 ? 0 : axles; i < kRows; ++i)
    for (const auto* column : {&txtAxleLoadUnladen, &txtAxleLoadLaden}) {
      (*column)[i].SetEnabled(false);
      (*column)[i].SetBackColor(kColorButtonFace);
    }
  ShowControlPressures();
  SetTabStops(*this, parts_.image.nNumAxlesSelected);
}

void frmOVGParm2::ShowDiagram() {
  for (int i = 0; i < txtSensor.Size(); ++i) {
    const SystemChoices::DiagramBox& box = parts_.choices.diagram[static_cast<std::size_t>(i)];
    txtSensor[i].SetText(box.text);
    txtSensor[i].SetVisible(box.drawn);
  }
  picOVG_ECU.SetImage(parts_.choices.picture);
}

void frmOVGParm2::ShowIdentity() {
  const ParameterImage& image = parts_.image;
  txtProdYear.SetText(PackedText(parameter::kProductionCentury.In(image)) +
                      PackedText(parameter::kProductionYear.In(image)));
  txtProdWeek.SetText(PackedText(parameter::kProductionWeek.In(image)));
  txtTrailerVIN.SetText(BlockText(image, parameter::kVehicleId));
  txtManufacturer.SetText(BlockText(image, parameter::kManufacturer));
  txtTrailerType.SetText(BlockText(image, parameter::kTrailerType));
}

void frmOVGParm2::ShowSuspensionKind() {
  LeverLengthFrame.SetVisible(!bAirSuspension_);
  for (const auto* column : {&txtSuspensionPressUnladen, &txtSuspensionPressLaden})
    for (auto& field : *column)
      field->SetToolTipText(bAirSuspension_ ? parts_.dictionary.Translate("psi") : "");
  if (bAirSuspension_) return;
  const std::string header = parts_.dictionary.Translate("Suspension path (mm)");
  txtColHdrUnladen.SetText(header);
  txtColHdrLaden.SetText(header);
}

void frmOVGParm2::ShowAxle(int i) {
  const ParameterImage& image = parts_.image;
  txtAxleLoadUnladen[i].SetText(AxleLoadText(parameter::AxleLoadUnladen(i).In(image)));
  txtAxleLoadLaden[i].SetText(AxleLoadText(parameter::AxleLoadLaden(i).In(image)));
  if (bAirSuspension_) {
    txtSuspensionPressUnladen[i].SetText(PressureText(parameter::kSuspensionUnladen.In(image)));
    txtSuspensionPressLaden[i].SetText(PressureText(parameter::kSuspensionLaden.In(image)));
  } else {
    txtSuspensionPressUnladen[i].SetText("0");
    txtSuspensionPressLaden[i].SetText(LengthText(parameter::kSuspensionPath.In(image)));
    txtLeverLength[i].SetText(LengthText(parameter::kLeverLength.In(image)));
  }
  txtBrakingPressLadenPm_AN[i].SetText(PressureTextPmAn(parameter::kBrakingLadenPmAn.In(image)));
  txtBrakingPressLadenPm_K1[i].SetText(PressureText(parameter::kBrakingLadenPmK1.In(image)));
  txtBrakingPressLadenPm_Max[i].SetText(PressureText(parameter::kBrakingLadenPmMax.In(image)));
  txtBrakingPressUnladen[i].SetText(PressureText(parameter::kBrakingUnladen.In(image)));
}

void frmOVGParm2::ShowControlPressures() {
  txtControlPressureUnladen[0].SetText(kControlPressureUnladen);
  for (int i = 0; i < txtControlPressureLaden.Size(); ++i)
    txtControlPressureLaden[i].SetText(
        ControlPressureText(parameter::kControlPressure[i].In(parts_.image)));
}

void frmOVGParm2::Next() {
  StoreAxleLoads();
  StoreSuspension();
  StoreBrakingPressures();
  StoreProductionDate();
  StoreIdentity();
  Hide();
  ContinueWith(*parts_.pages.overturn_guard);
}

// Always all three: the empty rows of axles that are not there clear their loads.
void frmOVGParm2::StoreAxleLoads() {
  for (int a = 0; a < parameter::kAxles; ++a) {
    parameter::AxleLoadUnladen(a).Put(parts_.image, AxleLoadPair(txtAxleLoadUnladen[a].Text()));
    parameter::AxleLoadLaden(a).Put(parts_.image, AxleLoadPair(txtAxleLoadLaden[a].Text()));
  }
}

void frmOVGParm2::StoreSuspension() {
  ParameterImage& image = parts_.image;
  if (bAirSuspension_) {
    parameter::kSuspensionUnladen.Put(image,
                                      UnladenSuspensionByte(txtSuspensionPressUnladen[0].Text()));
    parameter::kSuspensionLaden.Put(image, PressureByte(txtSuspensionPressLaden[0].Text()));
    return;
  }
  parameter::kSuspensionPath.Put(image, LengthPair(txtSuspensionPressLaden[0].Text()));
  parameter::kLeverLength.Put(image, LengthPair(txtLeverLength[0].Text()));
}

void frmOVGParm2::StoreBrakingPressures() {
  ParameterImage& image = parts_.image;
  parameter::kBrakingLadenPmAn.Put(image, PressureByte(txtBrakingPressLadenPm_AN[0].Text()));
  parameter::kBrakingLadenPmK1.Put(image, PressureByte(txtBrakingPressLadenPm_K1[0].Text()));
  parameter::kBrakingLadenPmMax.Put(image, PressureByte(txtBrakingPressLadenPm_Max[0].Text()));
  parameter::kBrakingUnladen.Put(image, PressureByte(txtBrakingPressUnladen[0].Text()));
}

void frmOVGParm2::StoreProductionDate() {
  // In single-byte characters, so that any letter counts as one.
  const std::string year = ToCp1252(txtProdYear.Text());
  parameter::kProductionCentury.Put(parts_.image, Packed(Front(year, 2)));
  parameter::kProductionYear.Put(parts_.image, Packed(Back(year, 2)));
  // A single digit is the left and the right one: "7" is 0x77.
  parameter::kProductionWeek.Put(parts_.image, Packed(ToCp1252(txtProdWeek.Text())));
}

void frmOVGParm2::StoreIdentity() {
  ParameterImage& image = parts_.image;
  image.strTrailerVIN = txtTrailerVIN.Text();
  const std::string vehicle_id = ToCp1252(Trim(txtTrailerVIN.Text()));
  StoreBlockText(image, parameter::kVehicleId, vehicle_id);
  parts_.ecu_data.VehicleId.Store(vehicle_id, ' ');
  const std::string manufacturer = FieldOf(txtManufacturer.Text(), parameter::kManufacturer);
  StoreBlockText(image, parameter::kManufacturer, manufacturer);
  parts_.ecu_data.Manufacturer.Store(manufacturer);
  const std::string type = FieldOf(txtTrailerType.Text(), parameter::kTrailerType);
  StoreBlockText(image, parameter::kTrailerType, type);
  parts_.ecu_data.TrailerType.Store(type);
}

// What was typed here and has not passed Next is lost. The page before comes back loaded anew where
// it is the one of the functions.
void frmOVGParm2::Previous() {
  Unload();
  if (parts_.ecu_data.bNumModulators.Load() == 1) {
    ContinueWith(*parts_.pages.system);
    return;
  }
  parts_.pages.gio->Unload();
  ContinueWith(*parts_.pages.gio);
}

void frmOVGParm2::Close() {
  parts_.pages.system->Unload();
  parts_.pages.gio->Unload();
  Unload();
}

}  // namespace lorimet
