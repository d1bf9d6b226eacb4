#include "parameters/found_configuration.h"

#include "parameters/parm_block.h"
#include "parameters/record_refresh.h"
#include "session/ecu_data.h"

namespace lorimet {
namespace {

std::array<std::int16_t, 3> Loaded(const std::array<EcuShort, 3>& fields) {
  return {fields[0].Load(), fields[1].Load(), fields[2].Load()};
}

void Store(std::array<EcuShort, 3>& fields, const std::array<std::int16_t, 3>& values) {
  for (std::size_t i = 0; i < fields.size(); ++i) fields[i].Store(values[i]);
}

}  // namespace

void FoundConfiguration::Keep() {
  if (kept_) return;
  kept_ = Fields{
      .vehicle_type = ecu_data_.nVehicleType.Load(),
      .suspension = ecu_data_.nMechanicalSuspension.Load(),
      .mounting = ecu_data_.nMounting.Load(),
      .axles = ecu_data_.nNumAxles.Load(),
      .lift = Loaded(ecu_data_.nAxleLift),
      .flag = Loaded(ecu_data_.nAxleFlag),
      .axle_sensors = Loaded(ecu_data_.nAxleSensors),
      .sensors = ecu_data_.bNumSensors.Load(),
      .modulators = ecu_data_.bNumModulators.Load(),
      .vehicle_id = ecu_data_.VehicleId.Load(),
      .manufacturer = ecu_data_.Manufacturer.Load(),
      .trailer_type = ecu_data_.TrailerType.Load(),
  };
}

void FoundConfiguration::Restore() {
  if (!kept_) return;
  ecu_data_.nVehicleType.Store(kept_->vehicle_type);
  ecu_data_.nMechanicalSuspension.Store(kept_->suspension);
  ecu_data_.nMounting.Store(kept_->mounting);
  ecu_data_.nNumAxles.Store(kept_->axles);
  Store(ecu_data_.nAxleLift, kept_->lift);
  Store(ecu_data_.nAxleFlag, kept_->flag);
  Store(ecu_data_.nAxleSensors, kept_->axle_sensors);
  ecu_data_.bNumSensors.Store(kept_->sensors);
  ecu_data_.bNumModulators.Store(kept_->modulators);
  ecu_data_.VehicleId.Store(kept_->vehicle_id);
  ecu_data_.Manufacturer.Store(kept_->manufacturer);
  ecu_data_.TrailerType.Store(kept_->trailer_type);
  kept_.reset();
}

void FoundConfiguration::TakeWritten(const ParameterImage& image) {
  if (kept_) {
    ecu_data_.bNumSensors.Store(kept_->sensors);
    ecu_data_.bNumModulators.Store(kept_->modulators);
    kept_.reset();
  }
  RefreshVehicleFields(image, ecu_data_);
  RefreshAxleSensors(image, ecu_data_);
  ecu_data_.nNumAxles.Store(image.nNumAxlesSelected);
}

}  // namespace lorimet
