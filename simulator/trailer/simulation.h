// The trailer together with all that can be made wrong about it and its link: what a scenario and
// its commands act on.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "simulator/trailer/bus.h"
#include "simulator/trailer/bus_senders.h"
#include "simulator/trailer/failure_modes.h"
#include "simulator/trailer/record_fields.h"
#include "simulator/trailer/request_log.h"
#include "simulator/trailer/schedule.h"
#include "simulator/trailer/trailer.h"
#include "simulator/trailer/transfer_plan.h"

namespace lorimet::simulator {

// The adapter, and what Connect has to ask it for; empty where everything will do.
struct AdapterDemands {
  bool present = true;  // an adapter is there at all
  std::string vendor;
  std::string protocol;
  std::optional<std::int32_t> device;
};

struct Simulation {
  explicit Simulation(const TrailerSetup& setup) : trailer(setup) {}

  Trailer trailer;
  Bus bus;
  BusSenders senders;
  FailurePlan failures;
  FieldOverrides fields;
  AdapterDemands adapter;
  RequestLog log;
  Schedule schedule;
  std::optional<std::string> answered_vendor;  // written over the text given to Connect
  std::optional<std::string> answered_protocol;
  // What the library makes of the two texts of a data log, when it answers that it records.
  std::optional<std::pair<std::string, std::string>> recording_renamed;
  bool recording = false;     // a data log runs
  std::size_t monitored = 0;  // messages that wait in the monitor
  std::int32_t client_id = 0;
  UploadPlan upload;
  ExportPlan exporting;
  std::string transfer = "none";             // that is under way, as `get` tells it
  std::vector<std::int32_t> statuses;        // to be posted at the next chance
  std::vector<std::string> complaints;       // of commands that waited, oldest first
  std::optional<std::string> next_scenario;  // the file of the trailer to take this one's place
  std::int64_t time = 0;                     // microseconds of the world
  std::string scenario;                      // the file that the trailer was built from, if any
  bool connected = false;                    // a program holds a connection
};

}  // namespace lorimet::simulator
