// The message hook port: registered window messages and the procedure that a window sends them to.
#pragma once

#include <cstdint>
#include <string>

namespace lorimet {

// What takes the messages of a window.
class WindowProcedure {
 public:
  virtual ~WindowProcedure() = default;
  virtual std::intptr_t OnMessage(std::uintptr_t window, std::uint32_t message,
                                  std::uintptr_t wparam, std::intptr_t lparam) = 0;
};

// Messages arrive on the user-interface thread, in order.
class MessageHook {
 public:
  virtual ~MessageHook() = default;
  // The identifier of a message name, the same for every program on the desktop; 0 on failure.
  virtual std::uint32_t RegisterMessage(const std::string& name) = 0;
  // The main form's window, or what replaces it where there are no window messages.
  virtual std::uintptr_t MainWindow() = 0;
  // Makes `procedure` the window's own and returns the one that was.
  virtual WindowProcedure* SetProcedure(std::uintptr_t window, WindowProcedure* procedure) = 0;
  // Passes a message on. When `previous` is the very procedure that is running, which a second
  // SetProcedure with no removal between them leaves behind, the message goes to the window's
  // original procedure instead of round in a circle.
  virtual std::intptr_t CallProcedure(WindowProcedure* previous, std::uintptr_t window,
                                      std::uint32_t message, std::uintptr_t wparam,
                                      std::intptr_t lparam) = 0;
  // Drops the registered messages that are still on their way.
  virtual void DropPending() = 0;
};

}  // namespace lorimet
