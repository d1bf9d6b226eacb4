// The desktop without a display: time is a number, and the user is a script.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/controls.h"
#include "platform/desktop.h"
#include "platform/forms.h"

namespace lorimet {

class VirtualClock : public Clock {
 public:
  void Sleep(std::uint32_t milliseconds) override {
    sleeps.push_back(milliseconds);
    Advance(milliseconds);
  }
  std::uint32_t TickCount() override { return static_cast<std::uint32_t>(now_); }
  std::tm Now() override { return date_; }

  std::uint64_t Milliseconds() const { return now_; }
  void Advance(std::uint32_t milliseconds);
  void SetDate(const std::tm& date) { date_ = date; }
  // What else lives in this time, such as a simulated ECU; called as time passes.
  std::function<void(std::uint32_t milliseconds)> on_advance;
  // The sleeps, in order, for tests of a sequence.
  std::vector<std::uint32_t> sleeps;

 private:
  std::uint64_t now_ = 0;
  std::tm date_{};
};

class HeadlessDesktop : public Desktop {
 public:
  explicit HeadlessDesktop(VirtualClock& clock) : clock_(clock) {}

  // --- The script.
  // What the user does when the form of this name is shown modally, once; further calls queue up.
  void OnModal(const std::string& form, std::function<void(Form&)> action);
  // Something that happens at a moment from now, when events run.
  void After(std::uint32_t milliseconds, std::function<void()> action);
  // The answer to the next message box; kBoxOk or the box's only button without one.
  void AnswerBox(BoxButton answer) { answers_.push_back(answer); }
  // What happens while the next message box is open.
  void OnBox(std::function<void(const MessageBox&)> action) {
    on_box_.push_back(std::move(action));
  }
  // A user who stands before every box for a while and gives its answer.
  std::function<BoxButton(const MessageBox&)> at_box;
  void AnswerFileDialog(std::optional<std::string> path) { files_.push_back(std::move(path)); }
  void AnswerChoice(std::optional<int> choice) { choices_.push_back(choice); }
  // Lets time pass, with its timers and its script.
  void Run(std::uint32_t milliseconds);

  // --- What was seen.
  // The boxes since the last call.
  std::vector<MessageBox> TakeBoxes() { return std::exchange(boxes_, {}); }
  std::vector<FileDialog> TakeFileDialogs() { return std::exchange(file_dialogs_, {}); }
  struct List {
    std::string title;
    std::vector<std::string> items;
    int selected = 0;
  };
  // The lists that the user was to choose from since the last call.
  std::vector<List> TakeLists() { return std::exchange(lists_, {}); }
  // Forms that were shown modally, in order.
  const std::vector<std::string>& ModalForms() const { return modal_forms_; }
  // The form that owned one of this name when it was last shown; empty for none.
  const std::string& OwnerOf(const std::string& form) { return owners_[form]; }
  int Beeps() const { return beeps_; }
  int Repaints() const { return repaints_; }
  // How deep modal forms stood at the most.
  int DeepestModal() const { return deepest_modal_; }
  // How many controls were mirrored, for tests of the mirroring.
  int Touches() const { return touches_; }
  // Texts that stood on the screen when Repaint was called, by a control that a test watches.
  std::function<void()> on_repaint;
  std::function<void()> on_do_events;
  // Puts the controls where a window would have them.
  std::function<void(Form&)> on_lay_out;

  // --- Desktop.
  std::unique_ptr<FormView> CreateView(Form& form) override;
  void RunModal(Form& form) override;
  void DoEvents() override;
  void Repaint() override;
  void Beep() override { ++beeps_; }
  int ScreenWidth() const override { return 1024 * kTwipsPerPixel; }
  int ScreenHeight() const override { return 768 * kTwipsPerPixel; }
  BoxButton ShowMessageBox(const MessageBox& box) override;
  std::optional<std::string> ShowFileDialog(const FileDialog& dialog) override;
  std::optional<int> ChooseFromList(const std::string& title, const std::vector<std::string>& items,
                                    int selected) override;

  // For views.
  void TimerChanged(Timer& timer);
  void ForgetTimers(const Form& form);
  void CountTouch() { ++touches_; }
  void NoteOwner(const Form& form, const Form* owner) {
    owners_[form.Name()] = owner == nullptr ? "" : owner->Name();
  }

 private:
  struct Scheduled {
    std::uint64_t due = 0;
    std::function<void()> action;
  };

  struct RunningTimer {
    Timer* timer = nullptr;
    int interval = 0;
    std::uint64_t due = 0;
  };

  void RunPending();
  void RunDue();
  void StandModally(Form& form);
  std::optional<std::uint64_t> NextDue() const;

  VirtualClock& clock_;
  std::map<std::string, std::deque<std::function<void(Form&)>>> on_modal_;
  std::vector<Scheduled> scheduled_;
  std::vector<RunningTimer> timers_;
  std::deque<BoxButton> answers_;
  std::deque<std::function<void(const MessageBox&)>> on_box_;
  std::deque<std::optional<std::string>> files_;
  std::deque<std::optional<int>> choices_;
  std::vector<MessageBox> boxes_;
  std::vector<FileDialog> file_dialogs_;
  std::vector<List> lists_;
  std::vector<std::string> modal_forms_;
  std::map<std::string, std::string> owners_;
  int beeps_ = 0;
  int repaints_ = 0;
  int touches_ = 0;
  int modal_depth_ = 0;
  int deepest_modal_ = 0;
};

}  // namespace lorimet
