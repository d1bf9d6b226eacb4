// Two threads at the shared record as in the program: one fills it as the link library does, one
// reads it as the panel does, with no lock. Built with the accesses of the record, the thread
// sanitizer is silent; built with LORIMET_RACY_RECORD it must speak, which shows that it would.
#include <cstdio>
#include <functional>
#include <thread>

#include "session/ecu_data.h"

namespace {

constexpr int kRounds = 2000;

void Fill(lorimet::ECUData& record) {
  for (int i = 0; i < kRounds; ++i) record.dOdometer.Store(i);
}

double Read(const lorimet::ECUData& record) {
  double last = 0;
  for (int i = 0; i < kRounds; ++i) last = record.dOdometer.Load();
  return last;
}

}  // namespace

int main() {
  lorimet::ECUData record;
  std::thread library(Fill, std::ref(record));
  const double seen = Read(record);
  library.join();
  std::printf("seen last: %g of %g\n", seen, record.dOdometer.Load());
  return record.dOdometer.Load() == kRounds - 1 ? 0 : 1;
}
