// The conversation with the simulated trailer: commands a line each, and the answers in their
// order.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>

namespace lorimet::bench {

struct Answer {
  bool ok = false;
  std::string text;  // what was asked for, or what is wrong
};

class Wire {
 public:
  using Answered = std::function<void(const Answer&)>;

  // A connection has just been made; what the one before left without an answer is forgotten.
  void Open();
  void Send(std::string_view command, Answered answered);
  // What is to be sent since the last call.
  std::string TakeOutgoing();
  // Takes bytes as they come. False when they are no answers; the connection is then of no use.
  bool Receive(std::string_view bytes);
  // The other end has said that somebody else has the trailer.
  bool Refused() const { return refused_; }
  // Commands without an answer.
  std::size_t Waiting() const { return waiting_.size(); }

 private:
  bool TakeLine(std::string_view line);

  std::string outgoing_;
  std::string received_;  // of a line that has not ended
  std::deque<Answered> waiting_;
  int answered_ = 0;  // lines
  bool refused_ = false;
};

}  // namespace lorimet::bench
