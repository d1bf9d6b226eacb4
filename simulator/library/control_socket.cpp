#include "simulator/library/control_socket.h"

#if !defined(_WIN32)
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#endif

namespace lorimet::simulator {

#if defined(_WIN32)

ControlSocket::ControlSocket(const std::filesystem::path&) {}
ControlSocket::~ControlSocket() = default;
void ControlSocket::Poll(const std::function<CommandAnswer(const std::string&)>&) {}

#else

namespace {

constexpr std::size_t kLongestLine =
    65536;  // bytes; more without a line's end is no client of ours
constexpr int kWaitingClients = 4;

void MakeReady(int descriptor) {
  fcntl(descriptor, F_SETFD, FD_CLOEXEC);
  fcntl(descriptor, F_SETFL, O_NONBLOCK);
}

}  // namespace

ControlSocket::ControlSocket(const std::filesystem::path& path) : path_(path) {
  sockaddr_un address = {};
  const std::string name = path.string();
  if (name.empty() || name.size() >= sizeof address.sun_path) return;
  address.sun_family = AF_UNIX;
  std::memcpy(address.sun_path, name.c_str(), name.size() + 1);
  const int descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
  if (descriptor < 0) return;
  MakeReady(descriptor);
  unlink(name.c_str());
  const auto* general = reinterpret_cast<const sockaddr*>(&address);
  if (bind(descriptor, general, sizeof address) != 0 || listen(descriptor, kWaitingClients) != 0) {
    close(descriptor);
    return;
  }
  listening_ = descriptor;
}

ControlSocket::~ControlSocket() {
  if (writer_) close(writer_->descriptor);
  if (listening_ < 0) return;
  close(listening_);
  unlink(path_.string().c_str());
}

void ControlSocket::Accept(const std::function<CommandAnswer(const std::string&)>& run) {
  for (int descriptor = 0; (descriptor = accept(listening_, nullptr, nullptr)) >= 0;) {
    MakeReady(descriptor);
    ServeWriter(run);  // who has gone meanwhile makes room for who has come
    if (!writer_) {
      writer_ = {descriptor, {}};
      continue;
    }
    const std::string refusal = AnswerLine(0, {{}, "somebody else has the trailer"});
    send(descriptor, refusal.data(), refusal.size(), MSG_NOSIGNAL);
    close(descriptor);
  }
}

bool ControlSocket::Serve(Client& client,
                          const std::function<CommandAnswer(const std::string&)>& run) {
  char bytes[4096];
  ssize_t count = 0;
  while ((count = recv(client.descriptor, bytes, sizeof bytes, 0)) > 0)
    client.received.append(bytes, static_cast<std::size_t>(count));
  const bool ended = count == 0 || (errno != EAGAIN && errno != EWOULDBLOCK && errno != EINTR);
  std::string answers;
  for (std::size_t end = 0; (end = client.received.find('\n')) != std::string::npos;) {
    answers += AnswerLine(++client.lines, run(client.received.substr(0, end)));
    client.received.erase(0, end + 1);
  }
  if (!answers.empty() && send(client.descriptor, answers.data(), answers.size(), MSG_NOSIGNAL) !=
                              static_cast<ssize_t>(answers.size()))
    return false;
  return !ended && client.received.size() < kLongestLine;
}

void ControlSocket::Poll(const std::function<CommandAnswer(const std::string&)>& run) {
  if (listening_ < 0) return;
  Accept(run);
  ServeWriter(run);
}

void ControlSocket::ServeWriter(const std::function<CommandAnswer(const std::string&)>& run) {
  if (!writer_ || Serve(*writer_, run)) return;
  close(writer_->descriptor);
  writer_.reset();
}

#endif

}  // namespace lorimet::simulator
