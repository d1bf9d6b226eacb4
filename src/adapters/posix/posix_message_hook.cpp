#include "adapters/posix/posix_message_hook.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <bit>
#include <cctype>
#include <cerrno>
#include <utility>

#include "platform/runtime_error.h"

namespace lorimet {

namespace {

// Registered messages have the numbers from here to 0xFFFF.
constexpr std::uint32_t kFirstMessage = 0xC000;
constexpr std::uint32_t kLastMessage = 0xFFFF;
// The most that a user without privileges may ask for.
constexpr int kPipeSize = 1 << 20;

// Moves a descriptor out of the standard ones' way: the window's handle must not be 0.
FileDescriptor AboveStandard(int descriptor) {
  const FileDescriptor low(descriptor);
  return FileDescriptor(fcntl(low.Get(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

}  // namespace

PosixMessageHook::PosixMessageHook(WindowProcedure* original, const std::string& message_name)
    : original_(original != nullptr ? original : &ignorer_), current_(original_) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) {
    throw RuntimeError(ErrorNumber::kDeviceIoError);
  }
  reading_ = AboveStandard(ends[0]);
  writing_ = AboveStandard(ends[1]);
  if (!reading_.IsOpen() || !writing_.IsOpen()) {
    throw RuntimeError(ErrorNumber::kDeviceIoError);
  }
  // A smaller pipe does too.
  fcntl(writing_.Get(), F_SETPIPE_SZ, kPipeSize);
  status_message_ = RegisterMessage(message_name);
}

std::uint32_t PosixMessageHook::RegisterMessage(const std::string& name) {
  // Names of messages match without regard to case.
  std::string folded = name;
  for (char& character : folded) {
    character = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
  }
  const std::uint32_t next = kFirstMessage + static_cast<std::uint32_t>(messages_.size());
  if (folded.empty() || (next > kLastMessage && !messages_.contains(folded))) {
    return 0;
  }
  return messages_.try_emplace(folded, next).first->second;
}

std::uintptr_t PosixMessageHook::MainWindow() {
  return static_cast<std::uintptr_t>(writing_.Get());
}

WindowProcedure* PosixMessageHook::SetProcedure(std::uintptr_t window, WindowProcedure* procedure) {
  if (window != MainWindow()) {
    return nullptr;
  }
  return std::exchange(current_, procedure != nullptr ? procedure : original_);
}

std::intptr_t PosixMessageHook::CallProcedure(WindowProcedure* previous, std::uintptr_t window,
                                              std::uint32_t message, std::uintptr_t wparam,
                                              std::intptr_t lparam) {
  return chain_.PassOn(previous, *original_, window, message, wparam, lparam);
}

std::size_t PosixMessageHook::Arrived() const {
  int bytes = 0;
  ioctl(reading_.Get(), FIONREAD, &bytes);
  const std::size_t arrived = partial_size_ + static_cast<std::size_t>(bytes);
  // The front of a status counts as one, so that it is taken out of the pipe.
  return (arrived + sizeof(std::int32_t) - 1) / sizeof(std::int32_t);
}

void PosixMessageHook::DropPending() {
  for (std::size_t left = Arrived(); left > 0 && ReadStatus(); --left) {
  }
}

void PosixMessageHook::Drain() {
  for (std::size_t left = Arrived(); left > 0; --left) {
    const std::optional<std::int32_t> status = ReadStatus();
    if (!status) {
      return;
    }
    Send(status_message_, 0, *status);
  }
}

std::intptr_t PosixMessageHook::Send(std::uint32_t message, std::uintptr_t wparam,
                                     std::intptr_t lparam) {
  return chain_.Deliver(*current_, MainWindow(), message, wparam, lparam);
}

std::optional<std::int32_t> PosixMessageHook::ReadStatus() {
  while (partial_size_ < partial_.size()) {
    const ssize_t count =
        read(reading_.Get(), partial_.data() + partial_size_, partial_.size() - partial_size_);
    if (count < 0 && errno == EINTR) {
      continue;
    }
    if (count <= 0) {
      return std::nullopt;
    }
    partial_size_ += static_cast<std::size_t>(count);
  }
  partial_size_ = 0;
  return std::bit_cast<std::int32_t>(partial_);
}

}  // namespace lorimet
