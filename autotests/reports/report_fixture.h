// The reports with records that a test fills, a memory for a disk and a printer that records.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "autotests/common/program_fixture.h"
#include "faults/faults_part.h"
#include "parameters/parameters_part.h"
#include "reports/reports_part.h"
#include "session/session_part.h"
#include "support/support_part.h"
#include "tests/tests_part.h"

namespace lorimet::testing_support {

class ReportTest : public ProgramTest {
 protected:
  void SetUp() override {
    Records().lECUFamily = kTrailerFamily;
    clock.SetDate(Date(2026, 11, 21, 15, 7));
  }

  static std::tm Date(int year, int month, int day, int hour, int minute) {
    std::tm date{};
    date.tm_year = year - 1900;
    date.tm_mon = month - 1;
    date.tm_mday = day;
    date.tm_hour = hour;
    date.tm_min = minute;
    return date;
  }

  SessionRecords& Records() { return program.session->records; }
  TestResults& Results() { return program.tests->test_results; }
  std::string& WizardVin() { return program.parameters->image.strTrailerVIN; }

  // The store that the fake library answers with.
  void Hold(const std::vector<FaultRecord>& records) {
    link.always["FaultGetCount"] = static_cast<std::int32_t>(records.size());
    link.fault_data = [records](void* first) {
      std::copy(records.begin(), records.end(), static_cast<FaultRecord*>(first));
    };
  }

  void Save() { SaveEOLReport(Parts()); }
  void Print(std::int16_t kind) { PrintEOLReport(Parts(), kind); }
  const ReportParts& Parts() { return program.reports->report; }
};

}  // namespace lorimet::testing_support
