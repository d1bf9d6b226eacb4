// Carries the bench's words to the trailer's control socket and back, and connects again by itself.
#pragma once

#include <QLocalSocket>
#include <QObject>
#include <QString>
#include <QTimer>

#include "simulator/bench/model/bench.h"

namespace lorimet::bench {

class BenchSocket : public QObject {
 public:
  // path: of the socket, whole. The bench outlives this.
  BenchSocket(Bench& bench, const QString& path);
  ~BenchSocket() override;

  // Sends at once what waits to be sent.
  void Send();

 private:
  void Tick();
  void Receive();

  Bench& bench_;
  QString path_;
  QLocalSocket socket_;
  QTimer timer_;
  int ticks_ = 0;
};

}  // namespace lorimet::bench
