// Writes what the ECU tells into the program's record, with a scenario's values in its place.
#pragma once

#include <cstdint>

#include "session/ecu_data.h"
#include "simulator/trailer/simulation.h"

namespace lorimet::simulator {

class RecordWriter {
 public:
  // The simulation to write about; it outlives the writer, or the next one's coming.
  explicit RecordWriter(const Simulation& simulation) : simulation_(&simulation) {}
  void Follow(const Simulation& simulation) { simulation_ = &simulation; }

  // record: null while there is none.
  void Attach(ECUData* record) { record_ = record; }
  // The state before anything is received: -1.0, 0 and empty texts. Fields of transfers stay.
  void WriteNothingKnown();
  void WriteLive(const LiveValues& live);
  // The end of the static read: everything that is told once.
  void WriteStatic();
  // The vehicle as the stored parameters tell it: test points, axles, suspension and mounting.
  void WriteVehicle();
  // The same and the brake system, as a reading of those parameters tells both.
  void WriteVehicleAndSystem();
  // The three fields of transfers, each when it is told.
  void WriteJobDone(std::int16_t value);
  void WriteBytesRemaining(double bytes);
  void WriteUploadStep(std::int16_t step);

 private:
  void FillLive(const LiveValues& live);
  void FillSystem();
  void FillVehicle();
  void FillIdentity();
  // Copies the fields of a group, and everywhere the values that a scenario has put.
  void Publish(FieldGroup group);
  void PublishOverrides();
  void PublishField(const char* name);

  const Simulation* simulation_;
  ECUData* record_ = nullptr;
  ECUData known_ = {};
};

}  // namespace lorimet::simulator
