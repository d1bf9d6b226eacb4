// The bench's knowledge of the simulated trailer: asks in rounds what can be seen, follows what the
// ECU is told, and carries out what the person does.
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <string>

#include "simulator/bench/model/sight.h"
#include "simulator/bench/model/story.h"
#include "simulator/bench/model/wire.h"

namespace lorimet::bench {

enum class Presence {
  kAbsent,  // no trailer can be reached
  kTaken,   // there is one, and somebody else has it
  kThere,   // and it has told what can be seen
};

struct ToldLine {
  double time = 0;   // seconds of the trailer, when it was noticed
  std::string text;  // the request in the trailer's words
};

class Bench {
 public:
  static constexpr std::size_t kKeptRequests = 200;

  // The connection has been made, or is lost.
  void Open();
  void Close();
  // Bytes from the trailer. False when the connection is of no use any more.
  bool Receive(std::string_view bytes);
  // What is to be sent.
  std::string TakeOutgoing() { return wire_.TakeOutgoing(); }

  // Begins a round of looking, unless the last one is still under way.
  void Look();
  // A command of the person; its answer comes by on_answer.
  void Do(const std::string& command);

  Presence Where() const { return presence_; }
  // As the last whole round has seen it.
  const Sight& Seen() const { return seen_; }
  const Story& Told() const { return story_; }
  // Oldest first.
  const std::deque<ToldLine>& Requests() const { return requests_; }
  // How often the lamp has gone on since it has been commanded.
  int LampRises() const { return lamp_rises_; }
  // When the pedal or anything else was touched last, in seconds of the trailer.
  double DoneAt() const { return done_at_; }

  std::function<void()> on_seen;  // a round has ended, or the presence has changed
  std::function<void(const std::string& command, const Answer& answer)> on_answer;

 private:
  void EndRound();
  void AskRequests();
  void TakeRequest(int number, const Answer& answer);
  void NoteLamp(bool lit_before);
  void SetPresence(Presence presence);

  Wire wire_;
  Presence presence_ = Presence::kAbsent;
  bool looking_ = false;
  Sight round_;  // that is under way
  Sight seen_;
  Story story_;
  std::deque<ToldLine> requests_;
  int told_ = 0;  // requests that have been asked for
  int lamp_rises_ = 0;
  double done_at_ = 0;
};

}  // namespace lorimet::bench
