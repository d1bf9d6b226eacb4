#include "platform/desktop.h"

#include <algorithm>
#include <utility>

#include "platform/runtime_error.h"

namespace lorimet {
namespace {

constexpr std::int32_t kInternalError = 51;

// Gives a value back its old one however the scope is left.
template <typename T>
class Restore {
 public:
  Restore(T& place, T value) : place_(place), old_(std::exchange(place, std::move(value))) {}
  ~Restore() { place_ = std::move(old_); }
  Restore(const Restore&) = delete;
  Restore& operator=(const Restore&) = delete;

 private:
  T& place_;
  T old_;
};

}  // namespace

void Desktop::Flush() {
  // By index: mirroring may not load or unload forms, but a view may be asked while one is built.
  for (std::size_t i = 0; i < views_.size(); ++i) views_[i]->Flush();
}

void Desktop::RunEvent(const std::function<void()>& handler) {
  if (life.Failed()) return;
  const Restore depth(event_depth_, event_depth_ + 1);
  const bool outermost = event_depth_ == 1;
  std::exception_ptr unhandled;
  try {
    handler();
    if (outermost) Flush();
  } catch (const Unwinding&) {
    if (!outermost) throw;
    unhandled = std::exchange(error_, nullptr);  // null when the top has it already
  } catch (...) {
    if (!outermost) throw;
    unhandled = std::current_exception();
  }
  if (unhandled == nullptr) return;
  if (!on_unhandled_error) std::rethrow_exception(unhandled);
  try {
    std::rethrow_exception(unhandled);
  } catch (const RuntimeError& error) {
    Fail(error);
  } catch (const std::exception& error) {
    Fail(RuntimeError(kInternalError, error.what()));
  }
}

void Desktop::Fail(const RuntimeError& error) {
  if (life.Unwinding()) return;
  life.Fail();
  ticks_.clear();
  on_unhandled_error(error);
  life.Unwind();
  EndLoops();
}

void Desktop::RunLoop(Loop kind, const std::function<void()>& loop) {
  Flush();
  const int below = event_depth_;
  {
    const Restore depth(event_depth_, 0);
    const Restore standing(standing_loops_, standing_loops_ + (kind == Loop::kStanding ? 1 : 0));
    try {
      loop();
    } catch (...) {
      if (below == 0) throw;
      error_ = std::current_exception();
    }
  }
  if (below > 0 && (error_ != nullptr || life.Unwinding())) throw Unwinding{};
}

// --- Ticks -------------------------------------------------------------------------------------

void Desktop::PostTick(Ticker& timer) {
  if (life.Failed() || std::ranges::find(ticks_, &timer) != ticks_.end()) return;
  ticks_.push_back(&timer);
  TickPosted();
}

bool Desktop::MayTick(const Ticker& timer) const {
  return std::ranges::none_of(ticking_, [&](const Ticking& running) {
    return running.timer == &timer && running.standing_loops >= standing_loops_;
  });
}

void Desktop::RunTicks() {
  for (Ticker* timer : std::vector(ticks_)) {
    // The handler of another one may have stopped it, or have run it.
    const auto posted = std::ranges::find(ticks_, timer);
    if (posted == ticks_.end() || !MayTick(*timer)) continue;
    ticks_.erase(posted);
    if (timer->Running()) RunTick(*timer);
  }
}

void Desktop::RunTick(Ticker& timer) {
  ticking_.push_back({&timer, standing_loops_});
  const struct Done {
    std::vector<Ticking>& ticking;
    ~Done() { ticking.pop_back(); }
  } done{ticking_};
  timer.Tick();
  // What was posted meanwhile had to wait for this one.
  if (!ticks_.empty()) TickPosted();
}

}  // namespace lorimet
