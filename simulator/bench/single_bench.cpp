#include "simulator/bench/single_bench.h"

#include <QLocalSocket>
#include <QObject>
#include <utility>

namespace lorimet::bench {
namespace {

constexpr int kPatience = 500;  // ms

}  // namespace

bool SingleBench::CallTheOther() const {
  QLocalSocket other;
  other.connectToServer(path_);
  return other.waitForConnected(kPatience);
}

void SingleBench::Stand(std::function<void()> come_forward) {
  QLocalServer::removeServer(path_);
  QObject::connect(&server_, &QLocalServer::newConnection, &server_,
                   [this, come_forward = std::move(come_forward)] {
                     while (QLocalSocket* other = server_.nextPendingConnection())
                       other->deleteLater();
                     come_forward();
                   });
  server_.listen(path_);
}

}  // namespace lorimet::bench
