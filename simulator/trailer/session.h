// The diagnostic session: opened, unlocked by the password, and lapsing when nothing keeps it
// alive.
#pragma once

#include <cstdint>

#include "simulator/trailer/kwp_status.h"

namespace lorimet::simulator {

class Session {
 public:
  static constexpr std::uint8_t kDiagnosticSession = 0x83;
  static constexpr double kSilenceSeconds = 5;  // without a reading, while readings keep it alive

  // timeout: seconds without a service until the session lapses, while readings do not keep it.
  explicit Session(double timeout) : timeout_(timeout) {}

  // Opens the session anew, which asks for the password again and keeps the parameter access.
  Status Start(std::uint8_t session);
  void Stop();
  Status Password();
  // Whether a service may run; it counts as traffic.
  Status Permit(bool needs_parameter_access);
  Status SetParameterAccess(bool open);

  // Whether the library's own reading keeps the session alive.
  void SetKeepAlive(bool on) { keep_alive_ = on; }
  // The library has read.
  void NoteReading() {
    if (keep_alive_) idle_ = 0;
  }

  bool Open() const { return open_; }
  bool Unlocked() const { return unlocked_; }
  bool ParameterAccess() const { return parameter_access_; }
  void Step();

 private:
  double timeout_;
  double idle_ = 0;
  bool keep_alive_ = true;
  bool open_ = false;
  bool unlocked_ = false;
  bool parameter_access_ = false;
};

}  // namespace lorimet::simulator
