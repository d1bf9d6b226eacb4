// Writes what the ECU tells into the program's record, with a scenario's values in its place.
#pragma once

#include <cstdint>

#include "session/ecu_data.h"
#include "simulator/trailer/simulation.h"

namespace lorimet::simulator {

class RecordWriter {
 public:
  // The simulation outlives the writer.
  explicit RecordWriter(const Simulation& simulation) : simulation_(simulation) {}

  // record: null while there is none.
  void Attach(ECUData* record) { record_ = record; }
  // The state before anything is received: -1.0, 0 and empty texts. Fields of transfers stay.
  void WriteNothingKnown();
  void WriteLive();
  void WriteStatic();
  void WriteJobDone(std::int16_t value);

 private:
  void FillLive();
  void FillStatic();
  void FillIdentity();
  // Copies the fields of a group, and everywhere the values that a scenario has put.
  void Publish(FieldGroup group);
  void PublishOverrides();

  const Simulation& simulation_;
  ECUData* record_ = nullptr;
  ECUData known_ = {};
};

}  // namespace lorimet::simulator
