#include "simulator/library/record_writer.h"

#include <algorithm>
#include <cstddef>

namespace lorimet::simulator {

void RecordWriter::WriteNothingKnown() {
  known_ = {};
  FieldOverrides nothing;
  for (const RecordField& field : RecordFields()) {
    if (field.kind != FieldKind::kDouble) continue;
    nothing.Set(field.name, "none");
    for (int i = 0; i < field.count; ++i) StoreField(known_, field, i, *nothing.Get(field, i));
  }
  for (const FieldGroup group :
       {FieldGroup::kLive, FieldGroup::kIdentity, FieldGroup::kSystem, FieldGroup::kVehicle})
    Publish(group);
}

void RecordWriter::WriteLive(const LiveValues& live) {
  FillLive(live);
  Publish(FieldGroup::kLive);
  PublishOverrides();
}

void RecordWriter::WriteStatic() {
  FillIdentity();
  Publish(FieldGroup::kIdentity);
  WriteVehicleAndSystem();
}

void RecordWriter::WriteVehicle() {
  FillVehicle();
  Publish(FieldGroup::kVehicle);
}

void RecordWriter::WriteVehicleAndSystem() {
  FillSystem();
  Publish(FieldGroup::kSystem);
  WriteVehicle();
}

void RecordWriter::WriteJobDone(std::int16_t value) {
  known_.nLinkJobDone.Store(value);
  PublishField("nLinkJobDone");
}

void RecordWriter::WriteBytesRemaining(double bytes) {
  known_.dBytesRemaining.Store(bytes);
  PublishField("dBytesRemaining");
}

void RecordWriter::WriteUploadStep(std::int16_t step) {
  known_.nODRUploadStep.Store(step);
  PublishField("nODRUploadStep");
}

void RecordWriter::PublishField(const char* name) {
  if (record_ == nullptr) return;
  const RecordField& field = *FindField(name);
  const auto override = simulation_->fields.Get(field, 0);
  StoreField(*record_, field, 0, override ? *override : LoadField(known_, field, 0));
}

void RecordWriter::FillLive(const LiveValues& live) {
  known_.dPrimaryVolts.Store(live.primary_volts);
  known_.dVoltageSource.Store(live.voltage_source);
  for (std::size_t i = 0; i < live.wheel_speed.size(); ++i)
    known_.dWheelSpeed[i].Store(live.wheel_speed[i]);
  known_.dOdometer.Store(live.odometer);
  known_.dNextService.Store(live.next_service);
  known_.dTripReading.Store(live.trip);
  known_.dSupplyPress.Store(live.supply);
  known_.dSteerBellows.Store(live.steer_bellows);
  known_.dBrake1Press.Store(live.brake1);
  known_.dBrake2Press.Store(live.brake2);
  known_.dMainBellows.Store(live.main_bellows);
  known_.dServiceBrake.Store(live.service_brake);
  known_.nWarningLamp.Store(live.warning_lamp ? 1 : 0);
  known_.bNumFaults.Store(static_cast<std::uint8_t>(std::min(live.faults, 255)));
}

void RecordWriter::FillSystem() {
  const VehicleParameters vehicle = simulation_->trailer.Vehicle();
  const auto system = SystemByParameterCode(vehicle.SystemCode());
  known_.bNumSensors.Store(system ? static_cast<std::uint8_t>(FactsOf(*system).sensors) : 0);
  known_.bNumModulators.Store(system ? FactsOf(*system).modulators : 0);
}

void RecordWriter::FillVehicle() {
  const VehicleParameters vehicle = simulation_->trailer.Vehicle();
  known_.dControlPressure1.Store(vehicle.Control(0) * kPsiPerCount);
  known_.dControlPressure2.Store(vehicle.Control(1) * kPsiPerCount);
  known_.dTargetPressure1.Store(vehicle.LadenBraking(0) * kPsiPerCount);
  known_.dTargetPressure2.Store(vehicle.LadenBraking(1) * kPsiPerCount);
  const bool mechanical = vehicle.Mechanical();
  known_.dLadenBellows.Store(mechanical ? kNoValue : vehicle.LadenSuspension() * kPsiPerCount);
  known_.dUnladenBellows.Store(mechanical ? kNoValue : vehicle.UnladenSuspension() * kPsiPerCount);
  known_.dLadenHeightValue.Store(mechanical ? vehicle.LadenPath() * 0.1 : kNoValue);
  known_.nMechanicalSuspension.Store(mechanical ? 1 : 0);
  known_.nMounting.Store(vehicle.RearMounted() ? 1 : 0);
  known_.nVehicleType.Store(static_cast<std::int16_t>(vehicle.VehicleType()));
  known_.nNumAxles.Store(static_cast<std::int16_t>(vehicle.AxleCount()));
  for (int a = 0; a < kAxles; ++a) {
    const auto axle = static_cast<std::size_t>(a);
    known_.nAxleLift[axle].Store(static_cast<std::int16_t>(vehicle.Lift(a)));
    known_.nAxleFlag[axle].Store(vehicle.Flag(a) ? 1 : 0);
    known_.nAxleSensors[axle].Store(static_cast<std::int16_t>(vehicle.Sensors(a)));
  }
}

void RecordWriter::FillIdentity() {
  const VehicleParameters vehicle = simulation_->trailer.Vehicle();
  known_.VehicleId.Store(vehicle.VehicleId());
  known_.Manufacturer.Store(vehicle.Manufacturer());
  known_.TrailerType.Store(vehicle.TrailerType());
  const Identity& identity = simulation_->trailer.Ident();
  known_.PartNum.Store(identity.part_number);
  known_.MfgDate.Store(identity.production_date);
  known_.SWRev.Store(identity.software);
  known_.SerialNum.Store(identity.serial_number);
  known_.DiagId.Store(identity.diagnostic_id);
  known_.SysName.Store(identity.system_name);
}

void RecordWriter::Publish(FieldGroup group) {
  if (record_ == nullptr) return;
  for (const RecordField& field : RecordFields()) {
    if (field.group != group) continue;
    for (int i = 0; i < field.count; ++i) {
      const auto override = simulation_->fields.Get(field, i);
      StoreField(*record_, field, i, override ? *override : LoadField(known_, field, i));
    }
  }
}

void RecordWriter::PublishOverrides() {
  if (record_ == nullptr) return;
  for (const RecordField& field : RecordFields())
    for (int i = 0; i < field.count; ++i)
      if (const auto override = simulation_->fields.Get(field, i))
        StoreField(*record_, field, i, *override);
}

}  // namespace lorimet::simulator
