// What the ECU tells about itself; the vehicle's own identity stands among the parameters.
#pragma once

#include <string>
#include <string_view>

#include "simulator/trailer/configuration.h"

namespace lorimet::simulator {

// Texts in code page 1252; an empty one is not known.
struct Identity {
  std::string part_number = "NL320417-02M";
  std::string production_date = "14/2024";
  std::string software = "3.07";
  std::string serial_number = "000417723518";
  std::string diagnostic_id = "NL137-06";
  std::string system_name;
};

inline Identity DefaultIdentity(const TrailerSetup& setup) {
  Identity identity;
  identity.system_name = "TRAILER OVG " + std::string(FactsOf(setup.system).name);
  return identity;
}

constexpr std::string_view kDefaultVehicleId = "1NL4S2M30A0012345";
constexpr std::string_view kDefaultManufacturer = "NORTHLEA TRAILERS";
constexpr std::string_view kDefaultTrailerType = "CURTAIN SIDER 13.6";

}  // namespace lorimet::simulator
