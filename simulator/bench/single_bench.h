// One bench a trailer: another start brings the one that stands to the front.
#pragma once

#include <QLocalServer>
#include <QString>
#include <functional>

namespace lorimet::bench {

class SingleBench {
 public:
  // path: of the socket at which the benches of one trailer find each other.
  explicit SingleBench(QString path) : path_(std::move(path)) {}

  // True when one stands already; it comes to the front.
  bool CallTheOther() const;
  // From now on this one stands.
  void Stand(std::function<void()> come_forward);

 private:
  QString path_;
  QLocalServer server_;
};

}  // namespace lorimet::bench
