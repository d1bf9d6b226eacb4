#include "simulator/trailer/default_parameters.h"

#include <algorithm>

#include "simulator/trailer/identity.h"

namespace lorimet::simulator {
namespace {

constexpr int kUnladenLoad = 2100;  // kg, each axle
constexpr int kLadenLoad = 9000;    // kg, each axle

struct IndexedByte {
  int index;
  std::uint8_t value;
};

void SetPair(ParameterStore& store, int index, int value) {
  store.SetByte(kEol1, index, static_cast<std::uint8_t>(value / 256));
  store.SetByte(kEol1, index + 1, static_cast<std::uint8_t>(value % 256));
}

// Pressures count 0.1 bar, circumferences 25 mm.
constexpr IndexedByte kLoadSensing[] = {
    {38, 10},  {39, 45},  {41, 65},              // control pressures
    {42, 8},   {43, 40},  {45, 62},  {46, 22},   // braking pressures laden, and unladen
    {55, 130}, {56, 130}, {58, 100}, {59, 100},  // circumferences, teeth
    {62, 1},                                     // twin tyres
};

void SetVehicle(ParameterStore& store, const TrailerSetup& setup) {
  const SystemFacts& facts = FactsOf(setup.system);
  const bool mechanical = setup.suspension == Suspension::kMechanical;
  store.SetByte(
      kEol1, 1,
      static_cast<std::uint8_t>(setup.vehicle_type | facts.parameter_code << 2 |
                                (mechanical ? 0x20 : 0) | (setup.rear_mounted ? 0x80 : 0)));
  const int cd_axle = std::min(1, setup.axles - 1);
  for (int a = 0; a < setup.axles; ++a) {
    SetPair(store, 3 + 6 * a, kUnladenLoad);
    SetPair(store, 5 + 6 * a, kLadenLoad);
    const int sensors = (a == cd_axle ? 0x10 : 0) | (a == 0 && facts.sensors == 4 ? 0x20 : 0);
    store.SetByte(kEol1, 7 + 6 * a, static_cast<std::uint8_t>(sensors));
  }
  for (const auto& [index, value] : kLoadSensing) store.SetByte(kEol1, index, value);
  if (mechanical) {
    SetPair(store, 64, 1000);  // lever 100 mm
    SetPair(store, 68, 800);   // path 80 mm
  } else {
    store.SetByte(kEol1, 33, 7);
    store.SetByte(kEol1, 34, 48);
  }
}

void SetFunctions(ParameterStore& store, const TrailerSetup& setup) {
  const bool one_modulator = FactsOf(setup.system).modulators == 1;
  const bool mechanical = setup.suspension == Suspension::kMechanical;
  store.SetByte(kEol2, 2, one_modulator ? 0 : 0x80);
  store.SetByte(kEol2, 4, mechanical ? 1 : 0);
  store.SetByte(kEol2, 5, mechanical ? 0xA0 : 0xB0);  // Overturn Guard on; air suspension
  constexpr IndexedByte kEol3Bytes[] = {{1, 15}, {2, 10}, {3, 2}, {33, 7},
                                        {35, 3}, {36, 3}, {38, 1}};
  for (const auto& [index, value] : kEol3Bytes) store.SetByte(kEol3, index, value);
}

void SetPins(ParameterStore& store, const TrailerSetup& setup) {
  const bool one_modulator = FactsOf(setup.system).modulators == 1;
  if (!one_modulator) store.SetByte(kEol5, 20, 65);
  if (setup.suspension == Suspension::kMechanical)
    store.SetByte(kEol5, 34, one_modulator ? 20 : 148);
  constexpr IndexedByte kEol5Bytes[] = {{39, 209}, {40, 211}, {41, 212}};
  for (const auto& [index, value] : kEol5Bytes) store.SetByte(kEol5, index, value);
  for (int i = 85; i <= 108; ++i) store.SetByte(kEol5, i, 255);
}

void SetTrailer(ParameterStore& store) {
  constexpr IndexedByte kProduction[] = {{1, 0x20}, {2, 0x24}, {3, 0x14}};  // year 2024, week 14
  for (const auto& [index, value] : kProduction) store.SetByte(kEol7, index, value);
  store.SetText(kEol7, 4, kDefaultVehicleId, 18);
  store.SetText(kEol7, 22, kDefaultManufacturer, 20);
  store.SetText(kEol7, 42, kDefaultTrailerType, 20);
}

void SetFunctionBlocks(ParameterStore& store) {
  constexpr IndexedByte kEmpty[] = {{3, 255}, {4, 255},  {5, 255},  {6, 255},  {7, 255},
                                    {8, 255}, {10, 100}, {11, 255}, {47, 255}, {48, 7}};
  for (const BlockFacts& block : kBlocks) {
    if (!block.name.starts_with("FCF")) continue;
    for (const auto& [index, value] : kEmpty) store.SetByte(block.id, index, value);
    store.SetText(block.id, 51, "", 20);
  }
}

}  // namespace

ParameterStore DefaultParameters(const TrailerSetup& setup) {
  ParameterStore store;
  SetVehicle(store, setup);
  SetFunctions(store, setup);
  SetPins(store, setup);
  SetTrailer(store);
  SetFunctionBlocks(store);
  return store;
}

}  // namespace lorimet::simulator
