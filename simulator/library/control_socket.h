// A local socket beside the control file: who connects there sends commands, a line each, and gets
// a line of answer for each. It has one writer; another is told so by a line numbered 0 and let go.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "simulator/library/files.h"

namespace lorimet::simulator {

// There is none on Windows, nor where the path is too long for an address; then the control file
// alone serves.
class ControlSocket {
 public:
  // path: empty for no socket. One that is left over there is replaced.
  explicit ControlSocket(const std::filesystem::path& path);
  ControlSocket(const ControlSocket&) = delete;
  ControlSocket& operator=(const ControlSocket&) = delete;
  ~ControlSocket();

  bool Open() const { return listening_ >= 0; }
  // Takes in who has come and what was sent, and never waits. An answer that finds no room ends
  // its connection.
  void Poll(const std::function<CommandAnswer(const std::string&)>& run);

 private:
  struct Client {
    int descriptor;
    std::string received;  // of a line that has not ended
    int lines = 0;
  };

  void Accept(const std::function<CommandAnswer(const std::string&)>& run);
  void ServeWriter(const std::function<CommandAnswer(const std::string&)>& run);
  // False when the client is gone.
  static bool Serve(Client& client, const std::function<CommandAnswer(const std::string&)>& run);

  std::filesystem::path path_;
  int listening_ = -1;
  std::optional<Client> writer_;
};

}  // namespace lorimet::simulator
