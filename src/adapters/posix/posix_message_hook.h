// The message hook where there are no window messages: a pipe that carries the link's statuses.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "adapters/posix/file_descriptor.h"
#include "platform/message_hook.h"
#include "platform/procedure_chain.h"

namespace lorimet {

// The window is the writing end of the pipe. A status is one native-endian int32_t and arrives as
// the lparam of the message that `message_name` registers.
//
// Neither end blocks. A writing end that did would hold the library's thread while the user
// interface is busy, and for good in a disconnect, in which the user interface waits for that very
// thread and reads nothing. So the pipe is made as large as the system allows, some 260,000
// statuses; one that comes when it is full is lost.
class PosixMessageHook : public MessageHook {
 public:
  // `original` is the procedure that the window has before any hook; without one all messages are
  // ignored there. Throws error 57 when the system has no pipe to give.
  explicit PosixMessageHook(WindowProcedure* original = nullptr,
                            const std::string& message_name = "NorvickABSError");

  std::uint32_t RegisterMessage(const std::string& name) override;
  std::uintptr_t MainWindow() override;
  // Null, and nothing changed, for a window that is not the main one. A null procedure stands for
  // the original one.
  WindowProcedure* SetProcedure(std::uintptr_t window, WindowProcedure* procedure) override;
  std::intptr_t CallProcedure(WindowProcedure* previous, std::uintptr_t window,
                              std::uint32_t message, std::uintptr_t wparam,
                              std::intptr_t lparam) override;
  // Drops what has arrived when it is called, so that a library that floods the pipe ends it too. A
  // status of which only the front has arrived is not dropped, since its rest would be taken for
  // the front of the next one.
  void DropPending() override;

  // What an event loop watches for reading, level-triggered, and then calls Drain.
  int ReadDescriptor() const { return reading_.Get(); }
  // Hands the statuses that have arrived when it is called to the window's procedure, in order.
  // Each leaves the pipe just before its turn, so a procedure that runs an event loop of its own
  // finds the ones behind it still there. What the procedure throws passes through.
  void Drain();
  // Sends any message to the window's procedure and returns its answer.
  std::intptr_t Send(std::uint32_t message, std::uintptr_t wparam, std::intptr_t lparam);

 private:
  // The original procedure of a window that was given none.
  class Ignorer : public WindowProcedure {
   public:
    std::intptr_t OnMessage(std::uintptr_t, std::uint32_t, std::uintptr_t, std::intptr_t) override {
      return 0;
    }
  };

  // How many statuses are in the pipe, one of which only the front has arrived included.
  std::size_t Arrived() const;
  // The next whole status; none when the pipe is empty. The front of one is kept for later.
  std::optional<std::int32_t> ReadStatus();

  Ignorer ignorer_;
  WindowProcedure* original_;
  WindowProcedure* current_;
  std::uint32_t status_message_ = 0;
  std::map<std::string, std::uint32_t> messages_;
  ProcedureChain chain_;
  // The writing end is closed first, so that no write can meet a pipe without a reader.
  FileDescriptor reading_;
  FileDescriptor writing_;
  std::array<char, sizeof(std::int32_t)> partial_{};
  std::size_t partial_size_ = 0;
};

}  // namespace lorimet
