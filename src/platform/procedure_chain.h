// The way of one message through the procedures that hooked a window on top of one another.
#pragma once

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "platform/message_hook.h"

namespace lorimet {

// A window hooked twice with no removal between has a procedure whose predecessor is itself. The
// chain knows whom the message in hand has passed, and sends it to the original procedure instead
// of to one of them again. A message that arrives while another is handled has a chain of its own.
class ProcedureChain {
 public:
  // Hands a message that has just arrived to the window's procedure.
  std::intptr_t Deliver(WindowProcedure& procedure, std::uintptr_t window, std::uint32_t message,
                        std::uintptr_t wparam, std::intptr_t lparam) {
    const Scope scope(passed_, {&procedure});
    return procedure.OnMessage(window, message, wparam, lparam);
  }

  // Hands the message on to `previous`, or to `original` if there is none or it had it before.
  std::intptr_t PassOn(WindowProcedure* previous, WindowProcedure& original, std::uintptr_t window,
                       std::uint32_t message, std::uintptr_t wparam, std::intptr_t lparam) {
    const bool circle = std::find(passed_.begin(), passed_.end(), previous) != passed_.end();
    if (previous == nullptr || circle) {
      return original.OnMessage(window, message, wparam, lparam);
    }
    std::vector<WindowProcedure*> passed = passed_;
    passed.push_back(previous);
    const Scope scope(passed_, std::move(passed));
    return previous->OnMessage(window, message, wparam, lparam);
  }

 private:
  // Puts the outer message's chain back however the procedure is left.
  class Scope {
   public:
    Scope(std::vector<WindowProcedure*>& place, std::vector<WindowProcedure*> inner)
        : place_(place), outer_(std::exchange(place, std::move(inner))) {}
    ~Scope() { place_ = std::move(outer_); }
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

   private:
    std::vector<WindowProcedure*>& place_;
    std::vector<WindowProcedure*> outer_;
  };

  std::vector<WindowProcedure*> passed_;
};

}  // namespace lorimet
