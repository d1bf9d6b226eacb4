#include "simulator/library/error_texts.h"

namespace lorimet::simulator {
namespace {

struct Row {
  std::int32_t code;
  std::string_view text;
};

constexpr Row kTexts[] = {
    {-100, "No response from the ECU."},
    {-500, "A message from the ECU was lost."},
    {128, "The adapter's driver library could not be initialised."},
    {129, "The client identifier is not valid, or no connection is open."},
    {130, "This client is connected already."},
    {131, "The adapter has no room for another client."},
    {132, "The adapter's memory could not be released."},
    {133, "There is not enough memory for the connection."},
    {134, "The device identifier is not known to the adapter's driver."},
    {135, "The adapter is in use by another program."},
    {136, "The adapter does not support the protocol."},
    {137, "The adapter's transmit queue is full."},
    {138, "The adapter's transmit queue is damaged."},
    {139, "The adapter's receive queue is full."},
    {140, "The adapter's receive queue is damaged."},
    {141, "The message is too long for the adapter."},
    {142, "The adapter does not respond.  Check its cable and its power supply."},
    {143, "The command is not supported."},
    {144, "The command is not valid."},
    {148, "The client has been disconnected."},
    {149, "The connection is not allowed."},
    {150, "The adapter could not change its mode."},
    {151, "The data link is off: the adapter has left the bus."},
    {200, "The scenario file of the simulated trailer is not valid."},
};

}  // namespace

std::string_view ErrorText(std::int32_t code) {
  for (const Row& row : kTexts)
    if (row.code == code) return row.text;
  return {};
}

}  // namespace lorimet::simulator
