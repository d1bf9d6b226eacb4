#include "simulator/trailer/persistence.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <span>
#include <sstream>
#include <vector>

#include "simulator/trailer/command.h"

namespace lorimet::simulator {
namespace {

constexpr std::string_view kHeading = "lorimet32-simulator-state 2";

std::uint64_t Fingerprint(std::string_view text) {
  std::uint64_t hash = 0xCBF29CE484222325u;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
  return hash;
}

std::string Hex(std::span<const std::uint8_t> bytes) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text;
  for (const std::uint8_t byte : bytes) {
    text += kDigits[byte >> 4];
    text += kDigits[byte & 15];
  }
  return text;
}

std::optional<std::vector<std::uint8_t>> FromHex(const std::string& text) {
  std::vector<std::uint8_t> bytes;
  if (text.size() % 2 != 0) return std::nullopt;
  for (std::size_t i = 0; i < text.size(); i += 2) {
    const auto byte = ParseInteger("0x" + text.substr(i, 2), 0, 255);
    if (!byte) return std::nullopt;
    bytes.push_back(static_cast<std::uint8_t>(*byte));
  }
  return bytes;
}

struct Loaded {
  ParameterStore parameters;
  std::vector<Fault> faults;
  std::uint8_t flag = 0;
  bool calibrated = true;
  Distances distances;
  RecorderCounters recorder;
  RecorderMemory recorded;
  MemoryWords words;
};

// A number as it is, to the last bit.
std::string Exactly(double value) {
  char digits[32];
  const auto [end, error] = std::to_chars(digits, std::end(digits), value);
  return {digits, end};
}

bool ReadDistances(const std::vector<std::string>& words, Loaded& loaded) {
  const auto odometer = ParseNumber(words[1]);
  const auto trip = ParseNumber(words[2]);
  const auto next_service = ParseNumber(words[3]);
  if (!odometer || !trip || !next_service) return false;
  loaded.distances = {*odometer, *trip, *next_service};
  return true;
}

bool ReadCounter(const std::vector<std::string>& words, Loaded& loaded) {
  const auto value = ParseInteger(words[2], 0, RecorderCounters::kMost);
  if (!value) return false;
  for (const RecorderCounterFacts& facts : kRecorderCounters) {
    if (facts.name != words[1]) continue;
    loaded.recorder.Set(facts.counter, static_cast<int>(*value));
    return true;
  }
  return false;
}

// The recorder's own: sums, histogram and events.
bool ReadRecorded(const std::vector<std::string>& words, Loaded& loaded) {
  const auto starts = ParseInteger(words[1], 0, UINT32_MAX);
  const auto braking = ParseNumber(words[2]);
  const auto trip = ParseNumber(words[3]);
  if (!starts || !braking || !trip) return false;
  loaded.recorded.starts = static_cast<std::uint32_t>(*starts);
  loaded.recorded.braking_seconds = *braking;
  loaded.recorded.trip_km = *trip;
  return true;
}

bool ReadHistogram(const std::vector<std::string>& words, Loaded& loaded) {
  for (std::size_t i = 0; i < RecorderMemory::kClasses; ++i) {
    const auto seconds = ParseNumber(words[i + 1]);
    if (!seconds) return false;
    loaded.recorded.seconds_at_speed[i] = *seconds;
  }
  return true;
}

bool ReadEvent(const std::vector<std::string>& words, Loaded& loaded) {
  const auto counter = ParseInteger(words[1], 0, 255);
  const auto odometer = ParseInteger(words[2], 0, UINT32_MAX);
  if (!counter || !odometer) return false;
  loaded.recorded.Note(
      {static_cast<std::uint8_t>(*counter), static_cast<std::uint32_t>(*odometer)});
  return true;
}

bool ReadWord(const std::vector<std::string>& words, Loaded& loaded) {
  const auto address = ParseInteger(words[1], 0, 0xFFFFFF);
  const auto value = ParseInteger(words[2], 0, 0xFFFF);
  if (!address || !value) return false;
  loaded.words.Set(static_cast<std::uint32_t>(*address), static_cast<std::uint16_t>(*value));
  return true;
}

bool ReadLine(const std::vector<std::string>& words, Loaded& loaded) {
  const auto integer = [&](std::size_t i) { return ParseInteger(words[i], INT32_MIN, INT32_MAX); };
  if (words.size() == 4 && words[0] == "block") {
    const auto id = ParseInteger("0x" + words[1], 0, 255);
    const auto bytes = FromHex(words[3]);
    return id && bytes &&
           loaded.parameters.Restore(static_cast<std::uint8_t>(*id), *bytes, words[2] == "right");
  }
  if (words.size() == 5 && words[0] == "fault") {
    const auto sid = integer(1), fmi = integer(2), status = integer(3), times = integer(4);
    if (!sid || !fmi || !status || !times) return false;
    loaded.faults.push_back({static_cast<std::int32_t>(*sid), static_cast<std::int32_t>(*fmi),
                             static_cast<std::int32_t>(*status),
                             static_cast<std::int32_t>(*times)});
    return true;
  }
  if (words.size() == 4 && words[0] == "distances") return ReadDistances(words, loaded);
  if (words.size() == 3 && words[0] == "counter") return ReadCounter(words, loaded);
  if (words.size() == 4 && words[0] == "recorded") return ReadRecorded(words, loaded);
  if (words.size() == 1 + RecorderMemory::kClasses && words[0] == "histogram")
    return ReadHistogram(words, loaded);
  if (words.size() == 3 && words[0] == "event") return ReadEvent(words, loaded);
  if (words.size() == 3 && words[0] == "word") return ReadWord(words, loaded);
  if (words.size() == 2 && words[0] == "calibrated") {
    loaded.calibrated = words[1] == "yes";
    return true;
  }
  if (words.size() != 2 || words[0] != "flag") return false;
  const auto flag = ParseInteger(words[1], 0, 255);
  if (flag) loaded.flag = static_cast<std::uint8_t>(*flag);
  return flag.has_value();
}

}  // namespace

std::string SaveState(const Trailer& trailer, std::string_view scenario) {
  std::ostringstream body;
  body.imbue(std::locale::classic());
  body << kHeading << '\n' << "scenario " << Fingerprint(scenario) << '\n';
  for (const BlockFacts& block : kBlocks) {
    const std::uint8_t id[] = {block.id};
    body << "block " << Hex(id) << ' '
         << (trailer.Parameters().ChecksumRight(block.id) ? "right " : "wrong ")
         << Hex(*trailer.Parameters().Read(block.id)) << '\n';
  }
  for (const Fault& fault : trailer.Faults().Faults())
    body << "fault " << fault.sid << ' ' << fault.fmi << ' ' << fault.status << ' ' << fault.times
         << '\n';
  body << "flag " << int{trailer.EndOfLineFlag()} << '\n';
  body << "calibrated " << (trailer.Calibrated() ? "yes" : "no") << '\n';
  const Distances& distances = trailer.Distance();
  body << "distances " << Exactly(distances.odometer) << ' ' << Exactly(distances.trip) << ' '
       << Exactly(distances.next_service) << '\n';
  for (const RecorderCounterFacts& facts : kRecorderCounters)
    body << "counter " << facts.name << ' ' << trailer.Recorder().Value(facts.counter) << '\n';
  const RecorderMemory& recorded = trailer.Recorded();
  body << "recorded " << recorded.starts << ' ' << Exactly(recorded.braking_seconds) << ' '
       << Exactly(recorded.trip_km) << "\nhistogram";
  for (const double seconds : recorded.seconds_at_speed) body << ' ' << Exactly(seconds);
  body << '\n';
  for (const RecorderEvent& event : recorded.events)
    body << "event " << int{event.counter} << ' ' << event.odometer << '\n';
  for (const auto& [address, word] : trailer.Memory().Words())
    body << "word " << address << ' ' << word << '\n';
  const std::string text = body.str();
  return text + "end " + std::to_string(Fingerprint(text)) + "\n";
}

bool RestoreState(Trailer& trailer, std::string_view scenario, std::string_view state) {
  const std::size_t end = state.rfind("end ");
  if (end == std::string_view::npos) return false;
  if (state.substr(end) != "end " + std::to_string(Fingerprint(state.substr(0, end))) + "\n")
    return false;
  std::istringstream lines{std::string(state.substr(0, end))};
  std::string line;
  if (!std::getline(lines, line) || line != kHeading) return false;
  if (!std::getline(lines, line) || line != "scenario " + std::to_string(Fingerprint(scenario)))
    return false;
  Loaded loaded;
  loaded.parameters = trailer.Parameters();
  while (std::getline(lines, line)) {
    const auto words = SplitWords(line);
    if (!words || !ReadLine(*words, loaded)) return false;
  }
  trailer.Parameters() = loaded.parameters;
  trailer.Faults().Restore(loaded.faults);
  trailer.SetEndOfLineFlag(loaded.flag);
  trailer.SetCalibrated(loaded.calibrated);
  trailer.Distance() = loaded.distances;
  trailer.Recorder() = loaded.recorder;
  trailer.Recorded() = loaded.recorded;
  trailer.Memory() = loaded.words;
  trailer.Resume();
  return true;
}

}  // namespace lorimet::simulator
