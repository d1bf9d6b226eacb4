// The link's error codes and their English words.
#pragma once

#include <cstdint>
#include <string_view>

namespace lorimet::simulator {

constexpr std::int32_t kStatusHealthy = 0;
constexpr std::int32_t kStatusRecorderEnded = -66;
constexpr std::int32_t kStatusRecorderStep = -67;
constexpr std::int32_t kStatusLinkError = -100;
constexpr std::int32_t kStatusLostMessage = -500;

constexpr std::int32_t kNotInitialised = 128;
constexpr std::int32_t kInvalidClient = 129;
constexpr std::int32_t kAlreadyConnected = 130;
constexpr std::int32_t kInvalidDevice = 134;
constexpr std::int32_t kInvalidProtocol = 136;
constexpr std::int32_t kHardwareSilent = 142;
constexpr std::int32_t kCommandNotSupported = 143;
constexpr std::int32_t kScenarioBroken = 200;

// Empty for a code that has no text.
std::string_view ErrorText(std::int32_t code);

}  // namespace lorimet::simulator
