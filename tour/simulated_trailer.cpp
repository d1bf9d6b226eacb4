#include "tour/simulated_trailer.h"

#include <dlfcn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace lorimet {

SimulatedTrailer::~SimulatedTrailer() {
  if (socket_ >= 0) close(socket_);
}

void SimulatedTrailer::Load(const std::string& library, const std::string& socket_path) {
  void* loaded = dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (loaded == nullptr) return on_failure_(dlerror());
  advance_ = reinterpret_cast<void (*)(std::int32_t)>(dlsym(loaded, "SimulatorAdvance"));
  if (advance_ == nullptr)
    return on_failure_(library + " is no simulated trailer: its time cannot be driven");
  advance_(0);
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  if (socket_path.size() >= sizeof address.sun_path)
    return on_failure_("The name of the socket is too long: " + socket_path);
  socket_path.copy(address.sun_path, socket_path.size());
  socket_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
    on_failure_("The simulated trailer cannot be reached at " + socket_path);
}

// The answer is there as soon as the trailer has been given the chance to look.
std::string SimulatedTrailer::Answer() {
  std::string answer;
  advance_(0);
  while (!answer.ends_with('\n')) {
    char bytes[4096];
    const ssize_t count = recv(socket_, bytes, sizeof bytes, MSG_DONTWAIT);
    if (count <= 0) break;
    answer.append(bytes, static_cast<std::size_t>(count));
  }
  while (answer.ends_with('\n')) answer.pop_back();
  return answer;
}

std::string SimulatedTrailer::Ask(const std::string& line) {
  const std::string sent = line + "\n";
  if (send(socket_, sent.data(), sent.size(), MSG_NOSIGNAL) != static_cast<ssize_t>(sent.size()))
    on_failure_("The simulated trailer is gone");
  const std::string answer = Answer();  // "3 ok", "3 ok 112.4" or "3 and what is wrong"
  const std::size_t blank = answer.find(' ');
  const std::string words = blank == std::string::npos ? "no answer" : answer.substr(blank + 1);
  if (words == "ok") return {};
  if (!words.starts_with("ok "))
    on_failure_("The simulated trailer refuses '" + line + "': " + words);
  return words.substr(3);
}

}  // namespace lorimet
