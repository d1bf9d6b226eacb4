// The desktop port: windows for forms, message boxes, file dialogs, events and repainting.
#pragma once

#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/life_cycle.h"

namespace lorimet {

class Control;
class Desktop;
class Form;
class RuntimeError;

// The window of one loaded form. Owned by the form; mirrors its controls. Called on the
// user-interface thread.
class FormView {
 public:
  virtual ~FormView() = default;
  // A control (null: the form itself) has something new to mirror; mirrored at the next Flush.
  virtual void Changed(Control* control) = 0;
  virtual void Show(bool modal, Form* owner) = 0;
  virtual void Hide() = 0;
  virtual void SetFocus(Control& control) = 0;
  // Mirrors all that has changed.
  virtual void Flush() = 0;
  // Gives a window that is still hidden the size and the places that it will be shown with.
  virtual void LayOut() {}
};

enum class BoxIcon { kNone, kInformation, kQuestion, kWarning, kCritical };
// Bits of the buttons of a box and, one of them, its answer.
enum BoxButton : unsigned { kBoxYes = 1, kBoxNo = 2, kBoxOk = 4, kBoxCancel = 8 };

// Texts as they are to be shown, translated already where they are to be.
struct MessageBox {
  std::string text;
  std::string title;
  BoxIcon icon = BoxIcon::kNone;
  unsigned buttons = kBoxOk;
  // Captions of the buttons; empty leaves the desktop's own.
  std::string yes, no, ok, cancel;

  bool operator==(const MessageBox&) const = default;
};

struct FileDialog {
  enum class Kind { kOpen, kSave };
  Kind kind = Kind::kOpen;
  std::string title;
  std::string file_name;  // proposed
  std::string initial_directory;
  std::string default_extension;  // with its point
  std::string filter;             // "ECU (*.ecu)|*.ecu|Text (*.txt)|*.txt"
  bool file_must_exist = false;
  bool path_must_exist = false;
};

// The form, as its controls know it.
class ControlOwner {
 public:
  virtual void Load() = 0;
  virtual bool Loaded() const = 0;
  virtual FormView* View() const = 0;
  virtual Desktop& GetDesktop() const = 0;
  // The focus moved by the user's hand or by the toolkit; raises the two focus events.
  virtual void UserFocus(Control* control) = 0;

 protected:
  ~ControlOwner() = default;

 private:
  friend class Control;
  virtual void AddControl(Control* control) = 0;
};

// What ticks: a form's timer.
class Ticker {
 public:
  virtual bool Running() const = 0;
  virtual void Tick() = 0;

 protected:
  ~Ticker() = default;
};

// What an event may do is decided here, for every desktop alike:
//
// - An event that code raises within another one is part of it: its error passes through the code
//   that raised it, like that of a call, and the screen follows when the outermost one ends.
// - While a screen is modal, a box waits for its answer or DoEvents runs, other events run on
//   top of the one that waits. An error that one of them leaves unhandled reaches the top at once;
//   what waits below it is not continued, and cannot trap it.
// - A timer's tick is posted, one at most, and runs when events run: also while the timer's own
//   handler has a modal screen open, but not within a DoEvents of that handler, which would else
//   call itself without end on a slow machine.
class Desktop {
 public:
  virtual ~Desktop() = default;

  // The top: takes an error that an event left unhandled. Events, ticks and messages are dropped
  // from then on. Without it the error goes to the caller of the outermost event.
  std::function<void(const RuntimeError&)> on_unhandled_error;
  // The user pressed F1 on a form.
  std::function<void(const Form&)> on_help;

  // The words of the user's language, for the names that only a screen reader says.
  std::function<std::string(const std::string&)> translate;

  // Builds the window of a form that is being loaded and imports the design of its controls.
  virtual std::unique_ptr<FormView> CreateView(Form& form) = 0;
  // Runs events until the form is no longer visible.
  virtual void RunModal(Form& form) = 0;

  // Mirrors all changes, then lets pending events run: input, timers that are due, messages.
  virtual void DoEvents() = 0;
  // Mirrors all changes and lets the screen repaint; no event runs.
  virtual void Repaint() = 0;
  virtual void Beep() = 0;
  // Twips.
  virtual int ScreenWidth() const = 0;
  virtual int ScreenHeight() const = 0;

  // Modal; the answer is kBoxCancel or, without a Cancel button, the last button when the box is
  // closed without a choice.
  virtual BoxButton ShowMessageBox(const MessageBox& box) = 0;
  // Nothing on a cancel.
  virtual std::optional<std::string> ShowFileDialog(const FileDialog& dialog) = 0;
  // A list to choose from; nothing on a cancel.
  virtual std::optional<int> ChooseFromList(const std::string& title,
                                            const std::vector<std::string>& items,
                                            int selected) = 0;

  LifeCycle life;

  // Every form that there is, loaded or not, in the order of their making.
  const std::vector<Form*>& Forms() const { return forms_; }
  // Loaded forms in the order of their loading.
  const std::vector<Form*>& LoadedForms() const { return loaded_forms_; }
  // Mirrors what the handlers changed. Every event ends with it.
  void Flush();
  // Runs an event's handler and flushes behind it; nothing once the program has failed.
  void RunEvent(const std::function<void()>& handler);

  // A timer's interval has passed: its tick is posted, unless one is posted already.
  void PostTick(Ticker& timer);
  // The timer was stopped or started anew, or its form has ended.
  void ForgetTick(const Ticker& timer) { std::erase(ticks_, &timer); }

 protected:
  // A screen or box that stays, or a look at what is pending.
  enum class Loop { kStanding, kPassing };
  // Every event loop of a desktop runs through here. What happens in it is an event of its own,
  // whatever event waits below.
  void RunLoop(Loop kind, const std::function<void()>& loop);
  // Runs the ticks that are posted, each once.
  void RunTicks();
  // A tick is there for the event loop to take by RunTicks.
  virtual void TickPosted() {}
  // An error has reached the top: all loops are to end.
  virtual void EndLoops() {}

 private:
  friend class Form;

  // Passes through the events that waited below an error, past all that traps errors.
  struct Unwinding {};
  struct Ticking {
    const Ticker* timer;
    int standing_loops;
  };

  void Fail(const RuntimeError& error);
  bool MayTick(const Ticker& timer) const;
  void RunTick(Ticker& timer);

  std::vector<Form*> forms_;
  std::vector<Form*> loaded_forms_;
  std::vector<FormView*> views_;
  std::vector<Ticker*> ticks_;    // posted
  std::vector<Ticking> ticking_;  // their handlers are running, the innermost last
  std::exception_ptr error_;      // what unwinds
  int event_depth_ = 0;           // within the running loop
  int standing_loops_ = 0;
};

}  // namespace lorimet
