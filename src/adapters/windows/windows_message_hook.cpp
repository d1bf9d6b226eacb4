#include "adapters/windows/windows_message_hook.h"

#include <windows.h>

#include <utility>

namespace lorimet {

namespace {

// The window's property that leads from the system's call back to its hook.
constexpr char kHookProperty[] = "NorvickLorimetHook";

// A message queue holds no more, so this many are all that had been posted when the dropping began;
// a library that floods the queue ends it too.
constexpr int kQueueLimit = 10'000;

HWND Window(std::uintptr_t window) { return reinterpret_cast<HWND>(window); }

// A window made for wide characters keeps them: the narrow call would have the system turn what the
// user types into the code page.
LONG_PTR ExchangeProcedure(HWND window, LONG_PTR procedure) {
  return IsWindowUnicode(window) ? SetWindowLongPtrW(window, GWLP_WNDPROC, procedure)
                                 : SetWindowLongPtrA(window, GWLP_WNDPROC, procedure);
}

LONG_PTR StandingProcedure(HWND window) {
  return IsWindowUnicode(window) ? GetWindowLongPtrW(window, GWLP_WNDPROC)
                                 : GetWindowLongPtrA(window, GWLP_WNDPROC);
}

LRESULT CALLBACK HookedProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  auto* hook = static_cast<WindowsMessageHook*>(GetPropA(window, kHookProperty));
  if (hook == nullptr) {
    return IsWindowUnicode(window) ? DefWindowProcW(window, message, wparam, lparam)
                                   : DefWindowProcA(window, message, wparam, lparam);
  }
  return hook->Deliver(message, wparam, lparam);
}

}  // namespace

std::intptr_t WindowsMessageHook::Original::OnMessage(std::uintptr_t window, std::uint32_t message,
                                                      std::uintptr_t wparam, std::intptr_t lparam) {
  const auto procedure = reinterpret_cast<WNDPROC>(address);
  return IsWindowUnicode(Window(window))
             ? CallWindowProcW(procedure, Window(window), message, wparam, lparam)
             : CallWindowProcA(procedure, Window(window), message, wparam, lparam);
}

WindowsMessageHook::WindowsMessageHook(std::function<void(const RuntimeError&)> on_error)
    : on_error_(std::move(on_error)) {}

WindowsMessageHook::~WindowsMessageHook() {
  Remove();
  RemovePropA(Window(window_), kHookProperty);
}

void WindowsMessageHook::SetMainWindow(std::uintptr_t window) {
  if (window != window_) {
    Remove();
    window_ = window;
  }
}

std::uint32_t WindowsMessageHook::RegisterMessage(const std::string& name) {
  const UINT message = RegisterWindowMessageA(name.c_str());
  if (message != 0) {
    registered_.insert(message);
  }
  return message;
}

std::uintptr_t WindowsMessageHook::MainWindow() { return window_; }

WindowProcedure* WindowsMessageHook::SetProcedure(std::uintptr_t window,
                                                  WindowProcedure* procedure) {
  if (window == 0 || window != window_) {
    return nullptr;
  }
  WindowProcedure* const previous =
      std::exchange(current_, procedure != nullptr ? procedure : &original_);
  if (current_ == &original_) {
    Remove();
  } else {
    Install();
  }
  return previous;
}

std::intptr_t WindowsMessageHook::CallProcedure(WindowProcedure* previous, std::uintptr_t window,
                                                std::uint32_t message, std::uintptr_t wparam,
                                                std::intptr_t lparam) {
  return chain_.PassOn(previous, original_, window, message, wparam, lparam);
}

void WindowsMessageHook::Hold(bool held) {
  held_ = held;
  if (held_) return;
  for (const Message& kept : std::exchange(waiting_, {}))
    PostMessageA(Window(window_), kept.message, kept.wparam, kept.lparam);
}

void WindowsMessageHook::DropPending() {
  waiting_.clear();
  MSG dropped{};
  for (const std::uint32_t message : registered_) {
    int left = kQueueLimit;
    while (left > 0 &&
           PeekMessageA(&dropped, Window(window_), message, message, PM_REMOVE | PM_NOYIELD)) {
      --left;
    }
  }
}

std::intptr_t WindowsMessageHook::Deliver(std::uint32_t message, std::uintptr_t wparam,
                                          std::intptr_t lparam) {
  if (held_ && registered_.contains(message)) {
    waiting_.push_back({message, wparam, lparam});
    return 0;
  }
  // Behind the window's last message nothing may be called any more.
  const bool last = message == WM_NCDESTROY;
  std::intptr_t answer = 0;
  try {
    answer = chain_.Deliver(*current_, window_, message, wparam, lparam);
  } catch (const RuntimeError& error) {
    on_error_(error);
  }
  if (last) {
    Remove();
    window_ = 0;
  }
  return answer;
}

void WindowsMessageHook::Install() {
  if (original_.address == 0) {
    SetPropA(Window(window_), kHookProperty, this);
    original_.address =
        ExchangeProcedure(Window(window_), reinterpret_cast<LONG_PTR>(&HookedProcedure));
  }
}

// Leaves the window as it was. Where somebody else has hooked it meanwhile our procedure stays
// under theirs and passes all messages to the original one.
void WindowsMessageHook::Remove() {
  current_ = &original_;
  if (original_.address == 0 ||
      StandingProcedure(Window(window_)) != reinterpret_cast<LONG_PTR>(&HookedProcedure)) {
    return;
  }
  ExchangeProcedure(Window(window_), original_.address);
  RemovePropA(Window(window_), kHookProperty);
  original_.address = 0;
}

}  // namespace lorimet
