#include "simulator/bench/model/story.h"

#include <charconv>
#include <optional>

namespace lorimet::bench {
namespace {

// The bytes of the pressure of 3.4 bar by which the sensor test brakes.
constexpr int kBrakeHigh = 0x00;
constexpr int kBrakeLow = 0x44;

int ReadNumber(std::string_view text) {
  const bool hexadecimal = text.starts_with("0x");
  if (hexadecimal) text.remove_prefix(2);
  int number = -1;
  std::from_chars(text.data(), text.data() + text.size(), number, hexadecimal ? 16 : 10);
  return number;
}

void Erase(std::string& text, std::string_view part) {
  if (const auto at = text.find(part); at != std::string::npos) text.erase(at, part.size());
}

constexpr int kFlagId = 0x2A;
constexpr int kEndValves = 0x41;

struct OperationRow {
  std::string_view operation;
  Activity activity;
};

// Routines and the flag aside.
constexpr OperationRow kOperations[] = {
    {"Connect", Activity::kConnected},
    {"ReadStaticData", Activity::kConnected},
    {"WriteMemory", Activity::kWriting},
    {"IOControl", Activity::kHeight},
    {"StopLightActivation", Activity::kStopLights},
    {"DeleteODRData", Activity::kRecorder},
    {"UploadData", Activity::kRecorder},
    {"ExportODRData", Activity::kRecorder},
    {"UploadODRData", Activity::kRecorder},
};

std::optional<Activity> ActivityOf(const ToldRequest& request) {
  for (const OperationRow& row : kOperations)
    if (row.operation == request.operation) return row.activity;
  if (request.operation == "ReadData" && request.Number(0) != kFlagId) return Activity::kParameters;
  return std::nullopt;
}

bool IsChannelOfLoad(int channel) { return channel == 4 || channel == 6; }

// What a request means. A number of -1 stands for any.
struct WordsRow {
  std::string_view operation;
  int number;  // the first one: a routine, or a block
  int index;   // of the byte that tells more
  int byte;
  const char* words;
};

constexpr WordsRow kWords[] = {
    {"Connect", -1, -1, -1, "Connected"},
    {"ReadStaticData", -1, -1, -1, "Identity read"},
    {"StartSession", -1, -1, -1, "Session opened"},
    {"Password", -1, -1, -1, "Password sent"},
    {"StartRoutine", 0x42, 2, 1, "Work begun"},
    {"StartRoutine", 0x42, 2, 0, "Work ended"},
    {"StartRoutine", 0x37, 2, 0, "Brakes normal"},
    {"StartRoutine", 0x37, 2, 1, "Brakes in redundancy"},
    {"StartRoutine", 0x37, 2, 2, "Brakes in test mode"},
    {"StartRoutine", 0x06, 0, 0, "Control pressure set"},
    {"StartRoutine", 0x06, 0, 1, "Pressure of H1 set"},
    {"StartRoutine", 0x06, 0, 2, "Pressure of H2 set"},
    {"StartRoutine", 0x06, -1, -1, "Load set"},
    {"StartRoutine", 0x07, 0, 1, "Warning lamp switched on"},
    {"StartRoutine", 0x07, 0, 0, "Warning lamp switched off"},
    {"StartRoutine", 0x3C, -1, -1, "Height sensor calibrated"},
    {"StartRoutine", kEndValves, -1, -1, "Valves released"},
    {"StartRoutine", 0x05, -1, -1, "Changes stored"},
    {"ReadData", -1, -1, -1, "Block read"},
    {"WriteMemory", kFlagId, -1, -1, "End-of-line flag written"},
    {"WriteMemory", -1, -1, -1, "Block written"},
    {"IOControl", -1, -1, -1, "Height sensor read"},
    {"ClearAllFaults", -1, -1, -1, "Faults cleared"},
    {"FaultGetData", -1, -1, -1, "Faults read"},
    {"ResetECU", -1, -1, -1, "ECU restarted"},
    {"StopLightActivation", -1, -1, -1, "Stop lights switched"},
};

}  // namespace

std::string WordsOf(const ToldRequest& request) {
  for (const WordsRow& row : kWords) {
    if (row.operation != request.operation) continue;
    if (row.number >= 0 && row.number != request.Number(0)) continue;
    if (row.index < 0 || request.Byte(static_cast<std::size_t>(row.index)) == row.byte)
      return row.words;
  }
  return {};
}

ToldRequest ReadRequest(std::string_view text) {
  ToldRequest request;
  const std::size_t open = text.find('(');
  request.operation = std::string(text.substr(0, open));
  for (const std::string_view part :
       {"Trailer_ABS_KWP_", "Trailer_ABS_QOR_", "Trailer_OVG_", "ByLocId"})
    Erase(request.operation, part);
  if (open == std::string_view::npos) return request;
  std::string_view rest = text.substr(open + 1);
  const std::size_t bytes = rest.find('[');
  std::string_view numbers = rest.substr(0, bytes);
  while (!numbers.empty()) {
    const std::size_t end = numbers.find_first_of(",)");
    const std::string_view number = numbers.substr(0, end);
    if (!number.empty() && number != " ") request.numbers.push_back(ReadNumber(number));
    if (end == std::string_view::npos) break;
    numbers.remove_prefix(end + 1);
    while (numbers.starts_with(' ')) numbers.remove_prefix(1);
  }
  if (bytes == std::string_view::npos) return request;
  for (rest.remove_prefix(bytes + 1); rest.size() >= 2 && !rest.starts_with(']');) {
    std::uint8_t byte = 0;
    std::from_chars(rest.data(), rest.data() + 2, byte, 16);
    request.data.push_back(byte);
    rest.remove_prefix(2);
    if (rest.starts_with(' ')) rest.remove_prefix(1);
  }
  return request;
}

void Story::Begin(Activity activity, double time) {
  if (activity_ != activity) since_ = time;
  activity_ = activity;
}

void Story::Note(const ToldRequest& request, double time) {
  const std::string& operation = request.operation;
  const bool had_ended_valves = valves_ended_;
  if (operation == "Connect") *this = Story();
  last_ = time;
  if (operation == "StartRoutine")
    NoteRoutine(request, time);
  else if (operation == "WriteMemory" && request.Number(0) == kFlagId)
    NoteFlag(request.Byte(0), time);
  else if (const auto activity = ActivityOf(request))
    Begin(*activity, time);
  if (had_ended_valves) valves_ended_ = valves_ended_ && request.Number(0) == kEndValves;
}

void Story::NoteFlag(int flag, double time) {
  flag_ = flag;
  Begin(Activity::kFlag, time);
  since_ = time;
}

void Story::NoteRoutine(const ToldRequest& request, double time) {
  switch (request.Number(0)) {
    case 0x06:
      NoteChannel(request, time);
      break;
    case 0x07:
      Begin(Activity::kLamp, time);
      break;
    case 0x37:
      NoteMode(request.Byte(2), time);
      break;
    case 0x3C:
      Begin(Activity::kHeightDone, time);
      break;
    case kEndValves:
      valves_ended_ = true;
      break;
    case 0x42:
      access_ = request.Byte(2) == 1;
      Begin(access_ ? Activity::kPrepared : Activity::kConnected, time);
      break;
    default:
      break;
  }
}

void Story::NoteMode(int mode, double time) {
  free_channel_ = 0;
  if (mode == 2) {
    wheels_answered_ = 0;
    Begin(Activity::kTakingOver, time);
  } else if (valves_ended_) {
    Begin(Activity::kWheelsDone, time);
  } else {
    Begin(Activity::kRedundancy, time);
    since_ = time;
  }
}

// The pressure test sets a load and a control pressure; the sensor test brakes everything, then
// frees one side, and brakes that side when its wheel has answered.
void Story::NoteChannel(const ToldRequest& request, double time) {
  const int channel = request.Byte(0);
  if (IsChannelOfLoad(channel)) return Begin(Activity::kPressures, time);
  const bool brakes = request.Byte(1) == kBrakeHigh && request.Byte(2) == kBrakeLow;
  if (channel == 0) {
    if (brakes) Begin(Activity::kWheels, time);
    return;
  }
  if (activity_ != Activity::kWheels) return;
  if (brakes && channel == free_channel_) {
    ++wheels_answered_;
    free_channel_ = 0;
  } else if (!brakes) {
    if (free_channel_ != channel) freed_at_ = time;
    free_channel_ = channel;
  }
}

}  // namespace lorimet::bench
