// The statuses with which the ECU, or the link in its place, answers a service.
#pragma once

#include <cstdint>

namespace lorimet::simulator {

using Status = std::int32_t;

constexpr Status kDone = 0;
constexpr Status kNoAnswer = 1;  // the ECU is silent: cable out, or no time left
constexpr Status kRejected = 0x10;
constexpr Status kServiceNotSupported = 0x11;
constexpr Status kSubfunctionNotSupported = 0x12;
constexpr Status kBusy = 0x21;
constexpr Status kConditionsNotCorrect = 0x22;
constexpr Status kOutOfRange = 0x31;
constexpr Status kAccessDenied = 0x33;  // no password, or no parameter access
constexpr Status kNoSession = 0x80;

}  // namespace lorimet::simulator
