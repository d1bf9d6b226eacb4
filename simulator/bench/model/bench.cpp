#include "simulator/bench/model/bench.h"

#include <algorithm>

namespace lorimet::bench {
namespace {

constexpr int kRemembered = 100;  // requests that the trailer still knows

}  // namespace

void Bench::Open() {
  wire_.Open();
  looking_ = false;
  told_ = 0;
  requests_.clear();
  story_ = Story();
}

void Bench::Close() {
  const bool taken = wire_.Refused();
  wire_.Open();
  looking_ = false;
  SetPresence(taken ? Presence::kTaken : Presence::kAbsent);
}

bool Bench::Receive(std::string_view bytes) { return wire_.Receive(bytes); }

void Bench::SetPresence(Presence presence) {
  const bool changed = presence_ != presence;
  presence_ = presence;
  if (changed && on_seen) on_seen();
}

void Bench::Look() {
  if (looking_) return;
  looking_ = true;
  round_ = Sight();
  const auto& names = SightNames();
  for (std::size_t i = 0; i < names.size(); ++i) {
    const bool last = i + 1 == names.size();
    wire_.Send("get " + names[i], [this, i, last](const Answer& answer) {
      TakeSight(round_, i, answer.ok, answer.text);
      if (last) EndRound();
    });
  }
}

void Bench::EndRound() {
  const bool lit_before = seen_.lamp;
  if (round_.told < told_ || round_.time < seen_.time) {  // begun anew
    told_ = 0;
    requests_.clear();
    story_ = Story();
  }
  seen_ = round_;
  NoteLamp(lit_before);
  AskRequests();
}

// The round ends with the requests that are new, in their order.
void Bench::AskRequests() {
  const auto finish = [this] {
    looking_ = false;
    presence_ = Presence::kThere;
    if (on_seen) on_seen();
  };
  told_ = std::max(told_, seen_.told - kRemembered);
  if (told_ == seen_.told) return finish();
  for (int number = told_ + 1; number <= seen_.told; ++number) {
    const bool last = number == seen_.told;
    wire_.Send("get request " + std::to_string(number),
               [this, number, last, finish](const Answer& answer) {
                 TakeRequest(number, answer);
                 if (last) finish();
               });
  }
}

void Bench::TakeRequest(int number, const Answer& answer) {
  told_ = number;
  if (!answer.ok || answer.text == "none") return;
  requests_.push_back({seen_.time, answer.text});
  if (requests_.size() > kKeptRequests) requests_.pop_front();
  story_.Note(ReadRequest(answer.text), seen_.time);
}

void Bench::NoteLamp(bool lit_before) {
  if (story_.Now() != Activity::kLamp)
    lamp_rises_ = 0;
  else if (seen_.lamp && !lit_before)
    ++lamp_rises_;
}

void Bench::Do(const std::string& command) {
  done_at_ = seen_.time;
  wire_.Send(command, [this, command](const Answer& answer) {
    if (on_answer) on_answer(command, answer);
  });
}

}  // namespace lorimet::bench
