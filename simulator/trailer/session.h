// The diagnostic session: opened, unlocked by the password, and lapsing when no service comes.
#pragma once

#include <cstdint>

#include "simulator/trailer/kwp_status.h"

namespace lorimet::simulator {

class Session {
 public:
  static constexpr std::uint8_t kDiagnosticSession = 0x83;

  // timeout: seconds without a service until the session lapses.
  explicit Session(double timeout) : timeout_(timeout) {}

  // Opens the session anew, which asks for the password again and keeps the parameter access.
  Status Start(std::uint8_t session);
  void Stop();
  Status Password();
  // Whether a service may run; it counts as traffic.
  Status Permit(bool needs_parameter_access);
  Status SetParameterAccess(bool open);

  bool Open() const { return open_; }
  bool Unlocked() const { return unlocked_; }
  bool ParameterAccess() const { return parameter_access_; }
  void Advance(double seconds);

 private:
  double timeout_;
  double idle_ = 0;
  bool open_ = false;
  bool unlocked_ = false;
  bool parameter_access_ = false;
};

}  // namespace lorimet::simulator
