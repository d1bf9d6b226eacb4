#include "adapters/headless/headless_desktop.h"

#include <algorithm>
#include <stdexcept>

#include "adapters/headless/ui_design.h"

namespace lorimet {
namespace {

// A modal form that is open so long in virtual time never closes.
constexpr std::uint64_t kPatience = 3'600'000;

class HeadlessView : public FormView {
 public:
  HeadlessView(HeadlessDesktop& desktop, Form& form) : desktop_(desktop), form_(form) {
    static std::map<std::string, UiDesign> designs;
    auto found = designs.find(form.Name());
    if (found == designs.end())
      found = designs.emplace(form.Name(), ReadUiDesign(form.Name())).first;
    const UiDesign& design = found->second;
    form.ImportDesign(design.caption, design.width * kTwipsPerPixel,
                      design.height * kTwipsPerPixel);
    for (Control* control : form.Controls()) {
      const auto drawn = design.controls.find(control->Name());
      if (drawn != design.controls.end()) control->ImportDesign(drawn->second.design);
    }
  }
  ~HeadlessView() override { desktop_.ForgetTimers(form_); }

  void Changed(Control* control) override {
    if (control == nullptr) return;
    changed_.push_back(control);
    if (control->Kind() == ControlKind::kTimer)
      desktop_.TimerChanged(static_cast<Timer&>(*control));
  }
  void Show(bool modal, Form* owner) override {
    static_cast<void>(modal);
    desktop_.NoteOwner(form_, owner);
  }
  void Hide() override {}
  void SetFocus(Control& control) override { form_.UserFocus(&control); }
  void LayOut() override {
    if (desktop_.on_lay_out) desktop_.on_lay_out(form_);
  }
  void Flush() override {
    for (Control* control : std::exchange(changed_, {})) {
      if (control->Kind() == ControlKind::kTimer)
        desktop_.TimerChanged(static_cast<Timer&>(*control));
      if (control->TakeChanges() != 0) desktop_.CountTouch();
    }
  }

 private:
  HeadlessDesktop& desktop_;
  Form& form_;
  std::vector<Control*> changed_;
};

template <typename T>
std::optional<T> TakeFirst(std::deque<T>& queue) {
  if (queue.empty()) return std::nullopt;
  T first = std::move(queue.front());
  queue.pop_front();
  return first;
}

}  // namespace

void VirtualClock::Advance(std::uint32_t milliseconds) {
  now_ += milliseconds;
  if (on_advance) on_advance(milliseconds);
}

std::unique_ptr<FormView> HeadlessDesktop::CreateView(Form& form) {
  return std::make_unique<HeadlessView>(*this, form);
}

void HeadlessDesktop::OnModal(const std::string& form, std::function<void(Form&)> action) {
  on_modal_[form].push_back(std::move(action));
}

void HeadlessDesktop::After(std::uint32_t milliseconds, std::function<void()> action) {
  scheduled_.push_back({clock_.Milliseconds() + milliseconds, std::move(action)});
}

void HeadlessDesktop::TimerChanged(Timer& timer) {
  const auto known = std::ranges::find(timers_, &timer, &RunningTimer::timer);
  const int interval = timer.Interval();
  // Another interval starts the timer anew.
  if (known != timers_.end() && (!timer.Running() || known->interval != interval))
    timers_.erase(known);
  else if (known != timers_.end())
    return;
  if (!timer.Running()) return;
  timers_.push_back({&timer, interval, clock_.Milliseconds() + static_cast<unsigned>(interval)});
}

// A form that is destroyed while it is loaded has lost its timers by now: only their addresses
// count.
void HeadlessDesktop::ForgetTimers(const Form& form) {
  const std::vector<Control*>& controls = form.Controls();
  std::erase_if(timers_, [&](const auto& entry) {
    return std::ranges::find(controls, static_cast<Control*>(entry.timer)) != controls.end();
  });
}

// Runs what is due, each timer once.
void HeadlessDesktop::RunDue() {
  const std::uint64_t now = clock_.Milliseconds();
  std::vector<Scheduled> due;
  std::erase_if(scheduled_, [&](Scheduled& entry) {
    if (entry.due > now) return false;
    due.push_back(std::move(entry));
    return true;
  });
  std::ranges::stable_sort(due, {}, &Scheduled::due);
  for (const Scheduled& entry : due) RunEvent(entry.action);
  for (RunningTimer& entry : timers_) {
    if (entry.due > now) continue;
    entry.due = now + static_cast<unsigned>(entry.interval);
    PostTick(*entry.timer);
  }
  RunTicks();
}

std::optional<std::uint64_t> HeadlessDesktop::NextDue() const {
  std::optional<std::uint64_t> next;
  const auto consider = [&](std::uint64_t due) { next = next ? std::min(*next, due) : due; };
  for (const Scheduled& entry : scheduled_) consider(entry.due);
  for (const RunningTimer& entry : timers_) consider(entry.due);
  return next;
}

void HeadlessDesktop::Run(std::uint32_t milliseconds) {
  const std::uint64_t end = clock_.Milliseconds() + milliseconds;
  DoEvents();
  while (clock_.Milliseconds() < end) {
    const std::uint64_t next = std::min(NextDue().value_or(end), end);
    if (next > clock_.Milliseconds())
      clock_.Advance(static_cast<std::uint32_t>(next - clock_.Milliseconds()));
    DoEvents();
  }
}

void HeadlessDesktop::DoEvents() {
  RunLoop(Loop::kPassing, [this] { RunPending(); });
}

void HeadlessDesktop::RunPending() {
  if (on_do_events) on_do_events();
  RunDue();
}

void HeadlessDesktop::Repaint() {
  Flush();
  ++repaints_;
  if (on_repaint) on_repaint();
}

void HeadlessDesktop::RunModal(Form& form) {
  modal_forms_.push_back(form.Name());
  deepest_modal_ = std::max(deepest_modal_, ++modal_depth_);
  const struct Left {
    int& depth;
    ~Left() { --depth; }
  } left{modal_depth_};
  RunLoop(Loop::kStanding, [&] { StandModally(form); });
}

void HeadlessDesktop::StandModally(Form& form) {
  if (auto action = TakeFirst(on_modal_[form.Name()])) RunEvent([&] { (*action)(form); });
  const std::uint64_t patience = clock_.Milliseconds() + kPatience;
  while (form.Visible() && !life.Failed()) {
    const auto next = NextDue();
    if (!next || clock_.Milliseconds() > patience)
      throw std::logic_error("the modal form " + form.Name() + " stays open: nobody acts on it");
    if (*next > clock_.Milliseconds())
      clock_.Advance(static_cast<std::uint32_t>(*next - clock_.Milliseconds()));
    Flush();
    RunPending();
  }
}

BoxButton HeadlessDesktop::ShowMessageBox(const MessageBox& box) {
  std::optional<BoxButton> answer;
  RunLoop(Loop::kStanding, [&] {
    boxes_.push_back(box);
    if (auto action = TakeFirst(on_box_)) (*action)(box);
    if (at_box) answer = at_box(box);
  });
  if (!answer) answer = TakeFirst(answers_);
  if (answer) return *answer;
  for (const BoxButton button : {kBoxOk, kBoxYes, kBoxNo, kBoxCancel})
    if (box.buttons & button) return button;
  return kBoxOk;
}

std::optional<std::string> HeadlessDesktop::ShowFileDialog(const FileDialog& dialog) {
  Flush();
  file_dialogs_.push_back(dialog);
  return TakeFirst(files_).value_or(std::nullopt);
}

std::optional<int> HeadlessDesktop::ChooseFromList(const std::string& title,
                                                   const std::vector<std::string>& items,
                                                   int selected) {
  Flush();
  lists_.push_back({title, items, selected});
  return TakeFirst(choices_).value_or(std::nullopt);
}

}  // namespace lorimet
