// The trailers that the tour signs off and tests.
#pragma once

#include <QString>

namespace lorimet {

class Script;

struct TrailerRow {
  const char* configuration;
  const char* suspension;
  int axles;
  const char* vehicle;
  const char* mounting;
  const char* more;  // further commands of the scenario, a line each
};

// "2S1M-AIR": names the trailer, its scenario and its report.
QString NameOf(const TrailerRow& row);
// Drives another trailer up and connects to it.
void ChangeTrailer(Script& script, const TrailerRow& row);

}  // namespace lorimet
