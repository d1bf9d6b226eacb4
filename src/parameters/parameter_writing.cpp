#include "parameters/parameter_writing.h"

#include <algorithm>
#include <array>
#include <string>

#include "faults/faults.h"
#include "parameters/block_table.h"
#include "parameters/found_configuration.h"
#include "parameters/parameter_errors.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/forms.h"
#include "session/ecu_routines.h"
#include "session/link_library.h"
#include "support/dictionary.h"
#include "support/message_boxes.h"
#include "support/text.h"

namespace lorimet {
namespace {

constexpr std::uint8_t kParameterErrors = 0x29;  // local id of the error bytes
constexpr int kLastErrorByte = 19;               // byte 20 is never reported

constexpr std::uint32_t kAccessWait = 100;  // ms, after each step of the ECU
constexpr std::uint32_t kChecksumWait = 2000;
constexpr std::uint32_t kClearWait = 2000;
constexpr std::uint32_t kResetWait = 3000;

// The boxes of this sequence are shown without the dictionary.
void ShowStatus(const WritingParts& parts, const char* text) {
  parts.status.SetText(parts.dictionary.Translate(text));
  parts.desktop.Repaint();
}

void WriteBlock(const WritingParts& parts, const BlockRow& row) {
  const ParmBlock& block = parts.image.*row.block;
  if (block.bNumBytes == 0) return;
  ShowStatus(parts, row.status);
  const auto count = static_cast<std::uint8_t>(block.bNumBytes - 1);
  // Of a count beyond the block the rest is sent as zeros.
  std::array<std::uint8_t, 256> data{};
  std::copy(block.DataArr.begin() + 1, block.DataArr.end(), data.begin());
  const std::int32_t result = TryLinkCall([&] {
    return parts.link.Trailer_ABS_KWP_WriteMemoryByLocId(row.local_id, count, data.data());
  });
  if (result != 0)
    ShowPlainBox(parts.desktop, row.error, "Write Error");
  else if (row.block == &ParameterImage::EOL1)
    parts.found.TakeWritten(parts.image);
}

void ShowVerdict(const WritingParts& parts) {
  std::array<std::uint8_t, kReadBufferSize> bytes{};
  std::uint8_t count = 0;
  const std::int32_t result = TryLinkCall([&] {
    return parts.link.Trailer_OVG_ReadDataByLocId(kParameterErrors, &count, bytes.data());
  });
  if (result != 0) {
    ShowPlainBox(parts.desktop, "Unable to read the Parameter Errors", "Read Error");
    return;
  }
  for (int n = 1; n <= kLastErrorByte; ++n)
    for (int bit = 0; bit < 8; ++bit)
      if (bytes[static_cast<std::size_t>(n)] & (1 << bit))
        ShowParmError(parts.desktop, static_cast<std::int16_t>(n),
                      static_cast<std::uint8_t>(1 << bit));
}

}  // namespace

void ShowParmError(Desktop& desktop, std::int16_t n, std::uint8_t bMask) {
  ShowPlainBox(desktop, std::string(ParameterErrorText(n, bMask)), "Parameter Error");
}

void WriteParmsToECU(const WritingParts& parts) {
  LinkLibrary& link = parts.link;
  parts.page.SetMousePointer(MousePointer::kHourglass);
  StartEcuSession(link);
  SetParameterAccess(link, 1);
  for (const BlockRow* row : kBlocksInOrder<&BlockRow::ecu_write>) WriteBlock(parts, *row);
  SetParameterAccess(link, 0);
  parts.clock.Sleep(kAccessWait);
  ShowStatus(parts, "Updating Checksums");
  std::uint8_t nothing = 0;
  link.Trailer_ABS_KWP_StartRoutineByLocId(kFinishRoutine, 0, &nothing);
  parts.clock.Sleep(kChecksumWait);
  ShowStatus(parts, "Clearing Faults");
  parts.faults.ClearFaults();
  parts.clock.Sleep(kClearWait);
  ShowStatus(parts, "Performing Reset of ECU");
  TryLinkCall([&] { return link.ResetECU(); });
  parts.clock.Sleep(kResetWait);
  ShowStatus(parts, "Checking for Parameter Errors");
  ShowVerdict(parts);
  parts.page.SetMousePointer(MousePointer::kDefault);
  parts.status.SetText(" ");
  ShowPlainBox(parts.desktop,
               std::string("               The Parameter Data has been saved.") + kCrLf +
                   "It is highly recommended that the End of Line Test be run again.",
               "Parameter Data");
}

}  // namespace lorimet
