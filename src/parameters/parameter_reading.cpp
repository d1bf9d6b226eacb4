#include "parameters/parameter_reading.h"

#include <algorithm>
#include <array>

#include "parameters/block_table.h"
#include "parameters/found_configuration.h"
#include "parameters/function_blocks.h"
#include "parameters/record_refresh.h"
#include "platform/desktop.h"
#include "platform/forms.h"
#include "session/link_library.h"
#include "support/dictionary.h"

namespace lorimet {
namespace {

void ShowProgress(const ReadingParts& parts, const std::string& text) {
  parts.error_text.SetText(text);
  parts.desktop.Repaint();
}

void RefreshRecord(const ReadingParts& parts, BlockName block) {
  if (block == &ParameterImage::EOL1) RefreshVehicleFields(parts.image, parts.ecu_data);
  if (block == &ParameterImage::EOL7) RefreshIdentityFields(parts.image, parts.ecu_data);
}

}  // namespace

std::int32_t ReadBlock(LinkLibrary& link, std::uint8_t local_id, ParmBlock& block,
                       bool forget_count) {
  return TryLinkCall([&] {
    if (forget_count) block.bNumBytes = 0;
    // The library writes where the block's bytes are, so a short answer leaves the tail.
    std::array<std::uint8_t, kReadBufferSize> buffer{};
    std::ranges::copy(block.DataArr, buffer.begin());
    std::uint8_t count = block.bNumBytes;
    const std::int32_t status = link.Trailer_OVG_ReadDataByLocId(local_id, &count, buffer.data());
    if (status != 0) return status;
    block.bNumBytes = count;
    std::copy_n(buffer.begin(), block.DataArr.size(), block.DataArr.begin());
    return status;
  });
}

std::int32_t ReadParmsFromECU(const ReadingParts& parts) {
  ParameterImage& image = parts.image;
  LinkLibrary& link = parts.link;
  parts.found.Restore();
  parts.main_form.SetMousePointer(MousePointer::kHourglass);
  StartEcuSession(link);
  SetParameterAccess(link, 1);
  ShowProgress(parts, parts.dictionary.Translate("Reading Parameter Data..."));
  std::int32_t status = 0;
  for (const BlockRow* row : kBlocksInOrder<&BlockRow::ecu_read>) {
    status = ReadBlock(link, row->local_id, image.*row->block, row->block == &ParameterImage::EOL2);
    if (status == 0) RefreshRecord(parts, row->block);
  }
  image.EOL7.bNumBytes = kTrailerBytes;
  image.EOL4.bNumBytes = 0;
  image.EOL6.bNumBytes = 0;
  DropFunctionBlocks(image);
  ShowProgress(parts, " ");
  parts.main_form.SetMousePointer(MousePointer::kArrow);
  return status;
}

}  // namespace lorimet
