#include "parameters/record_refresh.h"

#include <cstdint>
#include <string>

#include "parameters/conversions.h"
#include "parameters/parameter_map.h"
#include "session/ecu_data.h"

namespace lorimet {
namespace {

std::string Bytes(const ParameterImage& image, const TextField& field) {
  std::string bytes;
  for (int i = 0; i < field.size; ++i)
    bytes += static_cast<char>((image.*field.block)(field.index + i));
  return bytes;
}

// Numbers of sensors and modulators by the ABS system.
struct AbsSystem {
  std::uint8_t sensors;
  std::uint8_t modulators;
};

constexpr AbsSystem SystemOf(int code) {
  switch (code) {
    case 0:
      return {2, 2};
    case 2:
      return {4, 3};
    case 4:
      return {2, 1};
    default:
      return {4, 2};
  }
}

// An axle of a file counts while none of its four load bytes is 0, so 4096 kg do not count.
bool IsLoaded(const ParameterImage& image, int axle) {
  const BytePair unladen = parameter::AxleLoadUnladen(axle).In(image);
  const BytePair laden = parameter::AxleLoadLaden(axle).In(image);
  return unladen.high != 0 && unladen.low != 0 && laden.high != 0 && laden.low != 0;
}

void RefreshSuspensionAndMounting(const ParameterImage& image, ECUData& ecu_data) {
  ecu_data.nMounting.Store(parameter::kRearMounted.In(image));
  ecu_data.nMechanicalSuspension.Store(parameter::kMechanical.In(image));
}

}  // namespace

void RefreshVehicleFields(const ParameterImage& image, ECUData& ecu_data) {
  ecu_data.nVehicleType.Store(parameter::kVehicleType.In(image));
  for (int a = 0; a < parameter::kAxles; ++a) {
    const auto i = static_cast<std::size_t>(a);
    ecu_data.nAxleLift[i].Store(parameter::AxleLift(a).In(image));
    ecu_data.nAxleFlag[i].Store(parameter::AxleFlag(a).In(image));
  }
}

void RefreshAxleSensors(const ParameterImage& image, ECUData& ecu_data) {
  for (int a = 0; a < parameter::kAxles; ++a)
    ecu_data.nAxleSensors[static_cast<std::size_t>(a)].Store(parameter::AxleSensors(a).In(image));
}

void RefreshIdentityFields(const ParameterImage& image, ECUData& ecu_data) {
  ecu_data.VehicleId.Store(Bytes(image, parameter::kVehicleId), ' ');
  ecu_data.Manufacturer.Store(Bytes(image, parameter::kManufacturer));
  ecu_data.TrailerType.Store(Bytes(image, parameter::kTrailerType));
}

void RefreshConfiguration(const ParameterImage& image, ECUData& ecu_data) {
  RefreshVehicleFields(image, ecu_data);
  RefreshIdentityFields(image, ecu_data);
  RefreshSuspensionAndMounting(image, ecu_data);
  const AbsSystem system = SystemOf(parameter::kAbsSystem.In(image));
  ecu_data.bNumSensors.Store(system.sensors);
  ecu_data.bNumModulators.Store(system.modulators);
  RefreshAxleSensors(image, ecu_data);
  std::int16_t axles = 0;
  for (int a = 0; a < parameter::kAxles; ++a)
    if (IsLoaded(image, a)) ++axles;
  ecu_data.nNumAxles.Store(axles);
}

void RefreshTestFields(const ParameterImage& image, ECUData& ecu_data) {
  RefreshSuspensionAndMounting(image, ecu_data);
  ecu_data.dTargetPressure1.Store(Psi(parameter::kBrakingLadenPmAn.In(image)));
  ecu_data.dTargetPressure2.Store(Psi(parameter::kBrakingLadenPmK1.In(image)));
  if (parameter::kMechanical.In(image) != 0)
    ecu_data.dLadenHeightValue.Store(Millimetres(parameter::kSuspensionPath.In(image)));
}

}  // namespace lorimet
