#include "tour/driven_time.h"

#include <QAbstractEventDispatcher>
#include <thread>

#include "adapters/qt/qt_desktop.h"
#include "platform/controls.h"
#include "platform/forms.h"

namespace lorimet {
namespace {

constexpr std::int32_t kStep = 10;            // ms, the trailer's own grid
constexpr std::int32_t kIdleTime = 50;        // ms that pass at once while nothing happens
constexpr std::uint32_t kShortestWait = 100;  // ms, for which nobody's hand is quick enough

}  // namespace

void DrivenTime::Drive(QtDesktop& desktop) {
  desktop_ = &desktop;
  desktop.LeaveTicksToOthers();
  QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance();
  QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, dispatcher,
                   [this, dispatcher] {
                     OnIdle();
                     dispatcher->wakeUp();
                   });
}

void DrivenTime::OnIdle() {
  if (on_idle && on_idle()) return;
  for (std::int32_t passed = 0; passed < kIdleTime; passed += kStep) {
    Pass();
    if (PostTicks()) break;
  }
  KeepPace();
}

void DrivenTime::Pass() {
  now_ += kStep;
  trailer_(kStep);
  if (on_passed) on_passed();
}

bool DrivenTime::PostTicks() {
  bool posted = false;
  std::map<Timer*, Running> running;
  for (Form* form : desktop_->LoadedForms()) {
    for (Control* control : form->Controls()) {
      if (control->Kind() != ControlKind::kTimer) continue;
      auto* timer = static_cast<Timer*>(control);
      if (!timer->Running()) continue;
      const auto interval = static_cast<std::uint64_t>(timer->Interval());
      const auto before = running_.find(timer);
      const bool goes_on = before != running_.end() && before->second.interval == timer->Interval();
      std::uint64_t due = goes_on ? before->second.due : now_ + interval;
      if (due <= now_) {
        desktop_->PostTick(*timer);
        posted = true;
        due = now_ + interval;
      }
      running[timer] = {timer->Interval(), due};
    }
  }
  running_ = std::move(running);
  return posted;
}

void DrivenTime::Sleep(std::uint32_t milliseconds) {
  const std::uint64_t end = now_ + milliseconds;
  const auto pass = [this, end] {
    Pass();
    PostTicks();
    KeepPace();
    return now_ < end;
  };
  if (milliseconds >= kShortestWait) return desktop_->WaitWhile(pass);
  while (now_ < end) pass();
}

std::tm DrivenTime::Now() {
  const std::time_t now =
      std::chrono::system_clock::to_time_t(begun_ + std::chrono::milliseconds(now_));
  std::tm result{};
  localtime_r(&now, &result);
  return result;
}

void DrivenTime::KeepPace() const {
  if (fastest <= 0) return;
  const std::chrono::duration<double, std::milli> wanted(static_cast<double>(now_) / fastest);
  std::this_thread::sleep_until(
      started_ + std::chrono::duration_cast<std::chrono::steady_clock::duration>(wanted));
}

}  // namespace lorimet
