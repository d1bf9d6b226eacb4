// What goes otherwise than it should in the transfers of the ECU's memory.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace lorimet::simulator {

// The upload of the EEPROM; numbers of bytes that are still to come.
struct UploadPlan {
  static constexpr int kSize = 8192;

  int size = kSize;
  std::vector<int> restart_at = {4096};  // the library asks to be resumed; from the highest on
  std::optional<int> stall_at;           // nothing comes any more
  std::optional<int> backwards_at;       // the number climbs back to the size, once
};

// The export of the recorder; numbers of its steps, 1 to 9.
struct ExportPlan {
  std::optional<int> stall_step;       // it never ends
  std::optional<int> end_at;           // the export is told to have ended with it, and has no file
  bool no_end = false;                 // the end is never told, and there is no file
  double speed = 1;                    // of its memories; 2 is twice as fast
  std::optional<std::string> renames;  // what the program reads back as the path
};

}  // namespace lorimet::simulator
