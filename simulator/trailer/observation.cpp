#include "simulator/trailer/observation.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <iterator>

#include "simulator/trailer/command.h"

namespace lorimet::simulator {
namespace {

using Words = std::vector<std::string>;  // behind the name

// With a decimal point in every locale, at most three decimals.
std::string Text(double value) {
  char digits[64];
  const auto [end, error] =
      std::to_chars(digits, std::end(digits), value, std::chars_format::fixed, 3);
  if (error != std::errc()) return "nan";
  std::string text(digits, end);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text == "-0" ? "0" : text;
}
std::string Text(bool value, const char* yes, const char* no) { return value ? yes : no; }

Seen Told(std::string text) { return {std::move(text), {}}; }
Seen Wrong(const std::string& word) { return {{}, "'" + word + "' is not a valid value"}; }

Seen LookMode(const Simulation& s, const Words&) {
  constexpr const char* kModes[] = {"normal", "redundancy", "test"};
  return Told(kModes[static_cast<std::size_t>(s.trailer.Brake().Mode())]);
}

Seen LookChannel(const Simulation& s, const Words& words) {
  const auto channel = ParseInteger(words[0], 0, 6);
  if (!channel) return Wrong(words[0]);
  const auto value = s.trailer.Brake().TestChannel(static_cast<int>(*channel));
  return Told(value ? Text(*value) : "none");
}

std::string LetterAt(const Simulation& s, int position) {
  const auto index = s.trailer.Plan().SensorAt(position);
  return index ? std::string(1, kSensorLetters[static_cast<std::size_t>(*index)]) : "none";
}

Seen LookWheel(const Simulation& s, const Words& words) {
  const auto number = ParseInteger(words[0], 1, kPositions);
  if (!number || !s.trailer.Plan().HasWheel(static_cast<int>(*number))) return Wrong(words[0]);
  const int position = static_cast<int>(*number);
  if (words[1] == "speed") return Told(Text(s.trailer.Rolling().Speed(position)));
  if (words[1] == "brake") return Told(Text(s.trailer.WheelBrake(position)));
  if (words[1] == "sensor") return Told(LetterAt(s, position));
  if (words[1] != "turnable") return Wrong(words[1]);
  return Told(Text(s.trailer.Rolling().Turnable(position), "yes", "no"));
}

Seen LookLamp(const Simulation& s, const Words& words) {
  if (words[0] == "output") return Told(Text(s.trailer.LampOutput(), "on", "off"));
  if (words[0] == "lit") return Told(Text(s.trailer.LampLit(), "on", "off"));
  return Wrong(words[0]);
}

Seen LookSession(const Simulation& s, const Words&) {
  const Session& session = s.trailer.Diagnosis();
  return Told(!session.Open() ? "closed" : session.Unlocked() ? "unlocked" : "open");
}

Seen LookHeight(const Simulation& s, const Words&) {
  const auto counts = s.trailer.Height();
  return Told(counts ? std::to_string(*counts) : "none");
}

Seen LookOdr(const Simulation& s, const Words& words) {
  for (const RecorderCounterFacts& facts : kRecorderCounters)
    if (facts.name == words[0])
      return Told(std::to_string(s.trailer.Recorder().Value(facts.counter)));
  return Wrong(words[0]);
}

Seen LookFault(const Simulation& s, const Words& words) {
  const auto sid = ParseInteger(words[0], INT32_MIN, INT32_MAX);
  const auto fmi = ParseInteger(words[1], INT32_MIN, INT32_MAX);
  if (!sid) return Wrong(words[0]);
  if (!fmi) return Wrong(words[1]);
  for (const Fault& fault : s.trailer.Faults().Faults()) {
    if (fault.sid != *sid || fault.fmi != *fmi) continue;
    const std::string state = fault.status == kFaultActive   ? "active"
                              : fault.status == kFaultStored ? "stored"
                                                             : std::to_string(fault.status);
    return Told(state + " " + std::to_string(fault.times));
  }
  return Told("none");
}

Seen LookLast(const Simulation& s, const Words& words) {
  const auto operation = OperationByName(words[0]);
  if (!operation) return {{}, "no operation '" + words[0] + "'"};
  if (s.log.Requests(*operation) == 0) return Told("none");
  return Told("(" + s.log.Last(*operation) + ")");
}

Seen LookRequests(const Simulation& s, const Words& words) {
  const int count = s.log.Requests(words[0]);
  if (count < 0) return {{}, "no operation '" + words[0] + "'"};
  return Told(std::to_string(count));
}

Seen LookDistance(const Simulation& s, const Words& words) {
  const Distances& distances = s.trailer.Distance();
  if (words[0] == "odometer") return Told(Text(distances.odometer));
  if (words[0] == "trip") return Told(Text(distances.trip));
  if (words[0] == "next_service") return Told(Text(distances.next_service));
  return Wrong(words[0]);
}

// The names of the defects that stand.
Seen LookDefects(const Simulation& s, const Words&) {
  std::string names;
  for (const DefectFacts& facts : DefectTable()) {
    Defects mended = s.trailer.Wrong();
    RepairDefect(mended, facts.name);
    if (mended != s.trailer.Wrong()) names += (names.empty() ? "" : " ") + std::string(facts.name);
  }
  return Told(names.empty() ? "none" : names);
}

Seen LookFailures(const Simulation& s, const Words&) {
  std::string names;
  for (const FailureFacts& facts : FailureTable())
    if (s.failures.Stands(facts.mode))
      names += (names.empty() ? "" : " ") + std::string(facts.name);
  return Told(names.empty() ? "none" : names);
}

Seen LookRequest(const Simulation& s, const Words& words) {
  const auto number = ParseInteger(words[0], 1, INT32_MAX);
  if (!number) return Wrong(words[0]);
  const std::string& request = s.log.Request(static_cast<int>(*number));
  return Told(request.empty() ? "none" : request);
}

Seen LookBus(const Simulation& s, const Words& words) {
  if (words[0] == "sent") return Told(std::to_string(s.bus.Sent()));
  if (words[0] == "waiting") return Told(std::to_string(s.bus.Waiting()));
  if (words[0] == "monitored") return Told(std::to_string(s.monitored));
  return Wrong(words[0]);
}

struct Row {
  std::string_view name;
  std::size_t arguments;
  std::string_view usage;
  Seen (*look)(const Simulation&, const Words&);
};

#define LORIMET32_SEE(expression) \
  [](const Simulation& s, const Words&) -> Seen { return Told(expression); }

constexpr Row kRows[] = {
    {"time", 0, "", LORIMET32_SEE(Text(static_cast<double>(s.time) / 1e6))},
    {"scenario", 0, "", LORIMET32_SEE(s.scenario.empty() ? "none" : s.scenario)},
    {"configuration", 0, "", LORIMET32_SEE(std::string(FactsOf(s.trailer.Setup().system).name))},
    {"suspension", 0, "",
     LORIMET32_SEE(Text(s.trailer.Setup().suspension == Suspension::kAir, "air", "mechanical"))},
    {"mounting", 0, "", LORIMET32_SEE(Text(s.trailer.Setup().rear_mounted, "rear", "forward"))},
    {"connection", 0, "", LORIMET32_SEE(Text(s.connected, "on", "off"))},
    {"adapter", 0, "", LORIMET32_SEE(Text(s.adapter.present, "on", "off"))},
    {"cable", 0, "", LORIMET32_SEE(Text(s.failures.Armed(FailureMode::kCableOut), "out", "in"))},
    {"power", 0, "",
     LORIMET32_SEE(Text(s.trailer.Electric().Source() == VoltageSource::kPermanent, "on", "off"))},
    {"compressor", 0, "", LORIMET32_SEE(Text(s.trailer.Supply().Compressor(), "on", "off"))},
    {"supply", 0, "", LORIMET32_SEE(Text(s.trailer.Supply().Pressure()))},
    {"pedal", 0, "", LORIMET32_SEE(Text(s.trailer.Line().Pedal()))},
    {"control_line", 0, "", LORIMET32_SEE(Text(s.trailer.Line().Pressure()))},
    {"h1", 0, "", LORIMET32_SEE(Text(s.trailer.Brake().Delivered(1)))},
    {"h2", 0, "", LORIMET32_SEE(Text(s.trailer.Brake().Delivered(2)))},
    {"h3", 0, "", LORIMET32_SEE(Text(s.trailer.Brake().Delivered(3)))},
    {"mode", 0, "", LookMode},
    {"channel", 1, "N", LookChannel},
    {"load", 0, "", LORIMET32_SEE(Text(s.trailer.Load().Load()))},
    {"bellows", 0, "", LORIMET32_SEE(Text(s.trailer.BellowsPressure()))},
    {"wheel", 2, "N speed|brake|turnable|sensor", LookWheel},
    {"parking_brake", 0, "", LORIMET32_SEE(Text(s.trailer.ParkingBrake(), "on", "off"))},
    {"speed", 0, "", LORIMET32_SEE(Text(s.trailer.Road().Speed()))},
    {"distance", 1, "odometer|trip|next_service", LookDistance},
    {"volts", 0, "", LORIMET32_SEE(Text(s.trailer.Electric().Volts()))},
    {"ecu", 0, "",
     LORIMET32_SEE(!s.trailer.Powered()     ? "off"
                   : s.trailer.Restarting() ? "restarting"
                                            : "on")},
    {"lamp", 1, "output|lit", LookLamp},
    {"stop_lights", 0, "", LORIMET32_SEE(Text(s.trailer.StopLightsLit(), "on", "off"))},
    {"height", 0, "", LookHeight},
    {"calibrated", 0, "", LORIMET32_SEE(Text(s.trailer.Calibrated(), "yes", "no"))},
    {"flag", 0, "", LORIMET32_SEE(std::to_string(s.trailer.EndOfLineFlag()))},
    {"session", 0, "", LookSession},
    {"access", 0, "", LORIMET32_SEE(Text(s.trailer.Diagnosis().ParameterAccess(), "on", "off"))},
    {"broadcast", 0, "",
     LORIMET32_SEE(
         Text(s.trailer.Answering() && !s.trailer.Diagnosis().ParameterAccess(), "on", "off"))},
    {"towing_vehicle", 0, "", LORIMET32_SEE(Text(s.senders.TowingVehicle(), "on", "off"))},
    {"bus", 1, "sent|waiting|monitored", LookBus},
    {"recording", 0, "", LORIMET32_SEE(Text(s.recording, "on", "off"))},
    {"odr", 1, "level1|level2|stop_light|abs", LookOdr},
    {"transfer", 0, "", LORIMET32_SEE(s.transfer)},
    {"faults", 0, "", LORIMET32_SEE(std::to_string(s.trailer.Faults().Faults().size()))},
    {"fault", 2, "SID FMI", LookFault},
    {"defects", 0, "", LookDefects},
    {"failures", 0, "", LookFailures},
    {"told", 0, "", LORIMET32_SEE(std::to_string(s.log.Told()))},
    {"request", 1, "N", LookRequest},
    {"last", 1, "OPERATION", LookLast},
    {"requests", 1, "OPERATION", LookRequests},
};
#undef LORIMET32_SEE

}  // namespace

Seen Look(const Simulation& simulation, const std::vector<std::string>& words) {
  if (words.empty()) return {{}, "use: get NAME"};
  const auto* row = std::find_if(std::begin(kRows), std::end(kRows),
                                 [&](const Row& r) { return r.name == words.front(); });
  if (row == std::end(kRows)) return {{}, "nothing is called '" + words.front() + "'"};
  if (words.size() != row->arguments + 1)
    return {{}, "use: get " + std::string(row->name) + " " + std::string(row->usage)};
  return row->look(simulation, {words.begin() + 1, words.end()});
}

std::vector<SeenFacts> SeenTable() {
  std::vector<SeenFacts> facts;
  for (const Row& row : kRows) facts.push_back({row.name, row.usage});
  return facts;
}

}  // namespace lorimet::simulator
