// What the ECU has been told lately, request by request, and what that makes of the program's work.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lorimet::bench {

// A request as the trailer tells it, such as "ResetECU()" or
// "Trailer_ABS_KWP_StartRoutineByLocId(0x37, 3, [00 00 02])".
struct ToldRequest {
  std::string operation;           // without the prefixes and "ByLocId"
  std::vector<int> numbers;        // in front of the bytes
  std::vector<std::uint8_t> data;  // the bytes, if any

  int Number(std::size_t index) const { return index < numbers.size() ? numbers[index] : -1; }
  int Byte(std::size_t index) const { return index < data.size() ? data[index] : -1; }
};
ToldRequest ReadRequest(std::string_view text);
// What that means, in an English text that is the key of its translation; empty where the request
// says it well enough.
std::string WordsOf(const ToldRequest& request);

enum class Activity {
  kNothing,
  kConnected,   // connected and read, or at its main screen again
  kPrepared,    // a session is open and the ECU's own messages are off
  kParameters,  // parameters are read
  kWriting,     // parameters are written
  kTakingOver,  // the brakes are in the test mode, and nothing has been set yet
  kPressures,   // the brake pressures are set, one after the other
  kRedundancy,  // the brakes are in redundancy, for the comparison
  kWheels,      // wheels are braked and freed for the sensors
  kWheelsDone,  // all sensors have answered, or the test was stopped
  kLamp,        // the warning lamp is commanded
  kHeight,      // the height sensor is read again and again
  kHeightDone,  // its calibration was commanded
  kStopLights,  // the stop lights are commanded
  kFlag,        // the end-of-line flag is written
  kRecorder,    // the recorder is read, emptied or transferred
};

class Story {
 public:
  // time: seconds of the trailer.
  void Note(const ToldRequest& request, double time);

  Activity Now() const { return activity_; }
  double Since() const { return since_; }  // when this activity began
  double Last() const { return last_; }    // when the last request of any kind came
  bool Access() const { return access_; }  // the program has not ended its work
  // The sensor test: how many wheels have answered, and whether one is free to be spun.
  int WheelsAnswered() const { return wheels_answered_; }
  bool WheelFree() const { return free_channel_ != 0; }
  double FreedAt() const { return freed_at_; }
  int Flag() const { return flag_; }  // that was written last; 0 for none

 private:
  void Begin(Activity activity, double time);
  void NoteRoutine(const ToldRequest& request, double time);
  void NoteChannel(const ToldRequest& request, double time);
  void NoteFlag(int flag, double time);
  void NoteMode(int mode, double time);

  Activity activity_ = Activity::kNothing;
  double since_ = 0;
  double last_ = 0;
  bool access_ = false;
  bool valves_ended_ = false;  // by the request before
  int free_channel_ = 0;
  int wheels_answered_ = 0;
  double freed_at_ = 0;
  int flag_ = 0;
};

}  // namespace lorimet::bench
