// The whole program on a simulated trailer, in virtual time, on whatever desktop is measured.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "adapters/headless/headless_desktop.h"
#include "autotests/common/simulated_link.h"
#include "autotests/common/stand_ins.h"
#include "faults/faults.h"
#include "faults/faults_part.h"
#include "program.h"
#include "session/session_part.h"
#include "support/support_part.h"

namespace lorimet::benchmarks {

// The simulated link with as many faults as a measurement wants.
class BenchLink : public testing_support::SimulatedLink {
 public:
  std::vector<FaultRecord> faults;

  std::int32_t FaultLock() override { return 0; }
  std::int32_t FaultGetCount() override { return static_cast<std::int32_t>(faults.size()); }
  std::int32_t FaultGetData(void* first) override {
    std::memcpy(first, faults.data(), faults.size() * sizeof(FaultRecord));
    return 0;
  }
  std::int32_t FaultUnlock() override { return 0; }
};

// Started and connected.
struct SimulatedProgram : testing_support::StandIns {
  SimulatedProgram(Desktop& desktop, VirtualClock& virtual_clock, TranslationSource& texts)
      : clock(virtual_clock),
        program({desktop, clock, registry, hook, process, link, help_viewer, texts, profile_file,
                 text_files, printer}) {
    Drive(link.link, clock);
    if (program.Start() != EntryResult::kRunning ||
        program.session->main_form.txtECUType.Text().empty())
      std::abort();
  }
  ~SimulatedProgram() {
    program.session->main_form.Unload();
    clock.on_advance = nullptr;
  }
  SimulatedProgram(const SimulatedProgram&) = delete;
  SimulatedProgram& operator=(const SimulatedProgram&) = delete;

  ECUData& Ecu() { return program.session->records.ecu_data; }

  // Puts other values into every live field of the record than those of the call before.
  void ChangeLiveValues() {
    const double value = ++changes % 100 + 0.5;
    ECUData& ecu = Ecu();
    for (EcuDouble* field :
         {&ecu.dPrimaryVolts, &ecu.dOdometer, &ecu.dSupplyPress, &ecu.dSteerBellows,
          &ecu.dBrake1Press, &ecu.dBrake2Press, &ecu.dMainBellows, &ecu.dServiceBrake})
      field->Store(value * 2);
    for (EcuDouble& speed : ecu.dWheelSpeed) speed.Store(value + 2);
    ecu.dVoltageSource.Store(changes % 2);
    ecu.nWarningLamp.Store(static_cast<std::int16_t>(changes % 2));
  }
  // Faults of the catalogue, active and stored in turn.
  void SetFaults(std::size_t count) {
    const FaultTable& table = program.faults->fault_table;
    link.faults.clear();
    for (std::size_t i = 0; i < count; ++i) {
      FaultRecord record;
      record.Sid = table[i % table.Size()].Sid;
      record.Fmi = table[i % table.Size()].Fmi;
      record.Status = i % 2 == 0 ? kFaultActive : kFaultStored;
      record.Times = static_cast<std::int32_t>(i % 20);
      link.faults.push_back(record);
    }
  }

  VirtualClock& clock;
  BenchLink link;
  Program program;
  int changes = 0;
};

// The same without a display.
struct HeadlessProgram {
  VirtualClock clock;
  HeadlessDesktop desktop{clock};
  TsTranslations translations{InSource("translations")};
  SimulatedProgram simulated{desktop, clock, translations};
};

}  // namespace lorimet::benchmarks
