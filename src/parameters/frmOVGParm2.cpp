#include "parameters/frmOVGParm2.h"

#include "parameters/conversions.h"
#include "parameters/frmGIOSelection.h"
#include "parameters/frmOVGParm1.h"
#include "parameters/frmOVGParm3.h"
#include "parameters/parm_block.h"
#include "session/ecu_data.h"
#include "support/dictionary.h"
#include "support/numbers.h"
#include "support/text.h"

namespace lorimet {
namespace {

constexpr double kAnything = 1e300;
constexpr int kRows = 5;
constexpr int kVehicleIdSize = 18;
constexpr int kManufacturerSize = 20;
constexpr int kTrailerTypeSize = 20;
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
std::string FieldOf(const std::string& text, std::size_t size) {
  std::string bytes = ToCp1252(text);
  bytes.resize(size, ' ');
  return bytes;
}

}  // namespace

frmOVGParm2::frmOVGParm2(const WizardParts& parts)
    : Form(parts.desktop, "frmOVGParm2"), parts_(parts), checks_(*this, parts.dictionary) {
  WatchFields();
  cmdNext.on_click = [this] {
    if (checks_.Accept()) Next();
  };
  cmdPrev.on_click = [this] {
    if (checks_.Accept()) Previous();
  };
  cmdClose.on_click = [this] {
    if (checks_.Accept()) Close();
  };
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
  for (auto& field : txtLeverLength)
    checks_.Watch(*field, 50, 200, "Lever Length out of range.  Valid range : 50 - 200 mm");
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
  for (auto& field : txtSuspensionPressLaden)
    checks_.Watch(*field, [this](double value) -> const char* {
      if (bAirSuspension_)
        return value > 181 ? "Suspension Pressure Laden out of range.  Valid range : 0 - 181 psi"
                           : nullptr;
      return value < 10 || value > 400
                 ? "Suspension Path Laden out of range.  Valid range : 10 - 400 mm"
                 : nullptr;
    });
}

void frmOVGParm2::OnLoad() {
  parts_.dictionary.TranslateForm(*this);
  CenterOnScreen();
  bAirSuspension_ = parts_.pages.system->optSuspensionType[0].Value();
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
}

void frmOVGParm2::ShowDiagram() {
  frmOVGParm1& system = *parts_.pages.system;
  for (int i = 0; i < 6; ++i) {
    txtSensor[i].SetText(system.txtSensor[i].Text());
    txtSensor[i].SetVisible(system.txtSensor[i].Enabled());
  }
  picOVG_ECU.SetImage(system.picOVG_ECU.Image());
}

void frmOVGParm2::ShowIdentity() {
  const ParmBlock& trailer = parts_.image.EOL7;
  txtProdYear.SetText(PackedText(trailer(1)) + PackedText(trailer(2)));
  txtProdWeek.SetText(PackedText(trailer(3)));
  txtTrailerVIN.SetText(BlockText(trailer, 4, kVehicleIdSize));
  txtManufacturer.SetText(BlockText(trailer, 22, kManufacturerSize));
  txtTrailerType.SetText(BlockText(trailer, 42, kTrailerTypeSize));
}

void frmOVGParm2::ShowSuspensionKind() {
  LeverLengthFrame.SetVisible(!bAirSuspension_);
  if (bAirSuspension_) return;
  const std::string header = parts_.dictionary.Translate("Suspension path (mm)");
  txtColHdrUnladen.SetText(header);
  txtColHdrLaden.SetText(header);
}

void frmOVGParm2::ShowAxle(int i) {
  const ParmBlock& vehicle = parts_.image.EOL1;
  const int at = 6 * i;
  txtAxleLoadUnladen[i].SetText(AxleLoadText(vehicle(3 + at), vehicle(4 + at)));
  txtAxleLoadLaden[i].SetText(AxleLoadText(vehicle(5 + at), vehicle(6 + at)));
  if (bAirSuspension_) {
    txtSuspensionPressUnladen[i].SetText(PressureText(vehicle(33)));
    txtSuspensionPressLaden[i].SetText(PressureText(vehicle(34)));
  } else {
    txtSuspensionPressUnladen[i].SetText("0");
    txtSuspensionPressLaden[i].SetText(LengthText(vehicle(68), vehicle(69)));
    txtLeverLength[i].SetText(LengthText(vehicle(64), vehicle(65)));
  }
  txtBrakingPressLadenPm_AN[i].SetText(PressureTextPmAn(vehicle(42)));
  txtBrakingPressLadenPm_K1[i].SetText(PressureText(vehicle(43)));
  txtBrakingPressLadenPm_Max[i].SetText(PressureText(vehicle(45)));
  txtBrakingPressUnladen[i].SetText(PressureText(vehicle(46)));
}

void frmOVGParm2::ShowControlPressures() {
  const ParmBlock& vehicle = parts_.image.EOL1;
  txtControlPressureUnladen[0].SetText(kControlPressureUnladen);
  txtControlPressureLaden[0].SetText(ControlPressureText(vehicle(38)));
  txtControlPressureLaden[1].SetText(ControlPressureText(vehicle(39)));
  txtControlPressureLaden[2].SetText(ControlPressureText(vehicle(41)));
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
  ParmBlock& vehicle = parts_.image.EOL1;
  for (int a = 0; a < 3; ++a) {
    const BytePair unladen = AxleLoadPair(txtAxleLoadUnladen[a].Text());
    vehicle(3 + 6 * a) = unladen.high;
    vehicle(4 + 6 * a) = unladen.low;
    const BytePair laden = AxleLoadPair(txtAxleLoadLaden[a].Text());
    vehicle(5 + 6 * a) = laden.high;
    vehicle(6 + 6 * a) = laden.low;
  }
}

void frmOVGParm2::StoreSuspension() {
  ParmBlock& vehicle = parts_.image.EOL1;
  if (bAirSuspension_) {
    vehicle(33) = UnladenSuspensionByte(txtSuspensionPressUnladen[0].Text());
    vehicle(34) = PressureByte(txtSuspensionPressLaden[0].Text());
    return;
  }
  const BytePair path = LengthPair(txtSuspensionPressLaden[0].Text());
  vehicle(68) = path.high;
  vehicle(69) = path.low;
  const BytePair lever = LengthPair(txtLeverLength[0].Text());
  vehicle(64) = lever.high;
  vehicle(65) = lever.low;
}

void frmOVGParm2::StoreBrakingPressures() {
  ParmBlock& vehicle = parts_.image.EOL1;
  vehicle(42) = PressureByte(txtBrakingPressLadenPm_AN[0].Text());
  vehicle(43) = PressureByte(txtBrakingPressLadenPm_K1[0].Text());
  vehicle(45) = PressureByte(txtBrakingPressLadenPm_Max[0].Text());
  vehicle(46) = PressureByte(txtBrakingPressUnladen[0].Text());
}

void frmOVGParm2::StoreProductionDate() {
  ParmBlock& trailer = parts_.image.EOL7;
  // In single-byte characters, so that any letter counts as one.
  const std::string year = ToCp1252(txtProdYear.Text());
  trailer(1) = Packed(Front(year, 2));
  trailer(2) = Packed(Back(year, 2));
  // A single digit is the left and the right one: "7" is 0x77.
  trailer(3) = Packed(ToCp1252(txtProdWeek.Text()));
}

void frmOVGParm2::StoreIdentity() {
  ParmBlock& trailer = parts_.image.EOL7;
  parts_.image.strTrailerVIN = txtTrailerVIN.Text();
  const std::string vehicle_id = ToCp1252(Trim(txtTrailerVIN.Text()));
  StoreBlockText(trailer, 4, kVehicleIdSize, vehicle_id);
  parts_.ecu_data.VehicleId.Store(vehicle_id, ' ');
  const std::string manufacturer = FieldOf(txtManufacturer.Text(), kManufacturerSize);
  StoreBlockText(trailer, 22, kManufacturerSize, manufacturer);
  parts_.ecu_data.Manufacturer.Store(manufacturer);
  const std::string type = FieldOf(txtTrailerType.Text(), kTrailerTypeSize);
  StoreBlockText(trailer, 42, kTrailerTypeSize, type);
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
