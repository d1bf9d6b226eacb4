// The desktop port: windows for forms, message boxes, file dialogs, events and repainting.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace lorimet {

class Control;
class Form;

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

class Desktop {
 public:
  virtual ~Desktop() = default;

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

  // Loaded forms in the order of their loading.
  const std::vector<Form*>& LoadedForms() const { return loaded_forms_; }
  // Mirrors what the handlers changed. Every event ends with it.
  void Flush();
  // Runs an event's handler and flushes behind it.
  virtual void RunEvent(const std::function<void()>& handler);

 private:
  friend class Form;
  std::vector<Form*> loaded_forms_;
};

}  // namespace lorimet
