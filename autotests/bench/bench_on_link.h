// The bench's model on a simulated trailer in virtual time, its answers in the words of the socket.
#pragma once

#include <sstream>
#include <string>

#include "simulator/bench/model/bench.h"
#include "simulator/library/files.h"
#include "simulator/library/link.h"

namespace lorimet::bench {

// Carries between the two what a socket would.
class LinkSocket {
 public:
  LinkSocket(Bench& bench, simulator::Link& link) : bench_(bench), link_(link) { bench_.Open(); }

  // Until the bench has nothing more to ask.
  void Carry() {
    for (std::string sent; !(sent = bench_.TakeOutgoing()).empty();) {
      std::istringstream lines(sent);
      std::string answers;
      for (std::string line; std::getline(lines, line);) {
        const simulator::Seen seen = link_.Ask(line);
        answers += simulator::AnswerLine(++lines_, {seen.value, seen.error});
      }
      fine_ = bench_.Receive(answers) && fine_;
    }
  }
  void Look() {
    bench_.Look();
    Carry();
  }
  bool Fine() const { return fine_; }

 private:
  Bench& bench_;
  simulator::Link& link_;
  int lines_ = 0;
  bool fine_ = true;
};

}  // namespace lorimet::bench
