// The message hook by subclassing the main form's window.
#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "platform/message_hook.h"
#include "platform/procedure_chain.h"
#include "platform/runtime_error.h"

namespace lorimet {

// The first SetProcedure puts one procedure of the system's kind on the window, which hands every
// message to the WindowProcedure that is set at that moment; setting the original one takes it off
// again. Messages that the message loop dispatches reach it on the window's thread.
class WindowsMessageHook : public MessageHook {
 public:
  // `on_error` takes what a procedure throws, which must not pass through the system's frames; the
  // message is then answered with 0.
  explicit WindowsMessageHook(std::function<void(const RuntimeError&)> on_error);
  ~WindowsMessageHook() override;
  WindowsMessageHook(const WindowsMessageHook&) = delete;
  WindowsMessageHook& operator=(const WindowsMessageHook&) = delete;

  // The main form's window (an HWND), known once the form has one; takes the hook off the window
  // before.
  void SetMainWindow(std::uintptr_t window);

  std::uint32_t RegisterMessage(const std::string& name) override;
  std::uintptr_t MainWindow() override;
  // Null, and nothing changed, for a window that is not the main one. A null procedure stands for
  // the original one.
  WindowProcedure* SetProcedure(std::uintptr_t window, WindowProcedure* procedure) override;
  std::intptr_t CallProcedure(WindowProcedure* previous, std::uintptr_t window,
                              std::uint32_t message, std::uintptr_t wparam,
                              std::intptr_t lparam) override;
  void DropPending() override;

  // While held, registered messages wait, because the window's events run for its repainting alone;
  // letting go posts them again in their order.
  void Hold(bool held);
  class Held {
   public:
    explicit Held(WindowsMessageHook& hook) : hook_(hook) { hook_.Hold(true); }
    ~Held() { hook_.Hold(false); }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;

   private:
    WindowsMessageHook& hook_;
  };

  // Hands a message of the main window to the procedure that is set.
  std::intptr_t Deliver(std::uint32_t message, std::uintptr_t wparam, std::intptr_t lparam);

 private:
  // The procedure that the window had before.
  class Original : public WindowProcedure {
   public:
    std::intptr_t OnMessage(std::uintptr_t window, std::uint32_t message, std::uintptr_t wparam,
                            std::intptr_t lparam) override;
    std::intptr_t address = 0;
  };

  void Install();
  void Remove();

  std::function<void(const RuntimeError&)> on_error_;
  std::uintptr_t window_ = 0;
  Original original_;
  WindowProcedure* current_ = &original_;
  ProcedureChain chain_;
  std::set<std::uint32_t> registered_;

  struct Message {
    std::uint32_t message;
    std::uintptr_t wparam;
    std::intptr_t lparam;
  };
  bool held_ = false;
  std::vector<Message> waiting_;
};

}  // namespace lorimet
