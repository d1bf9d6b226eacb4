#include "simulator/bench/bench_socket.h"

#include <QByteArray>
#include <chrono>
#include <string_view>

namespace lorimet::bench {
namespace {

using namespace std::chrono_literals;

constexpr auto kTick = 100ms;
constexpr int kTicksToTryAgain = 5;

}  // namespace

BenchSocket::BenchSocket(Bench& bench, const QString& path) : bench_(bench), path_(path) {
  connect(&socket_, &QLocalSocket::connected, this, [this] {
    bench_.Open();
    bench_.Look();
    Send();
  });
  connect(&socket_, &QLocalSocket::readyRead, this, [this] { Receive(); });
  connect(&socket_, &QLocalSocket::disconnected, this, [this] { bench_.Close(); });
  connect(&timer_, &QTimer::timeout, this, [this] { Tick(); });
  timer_.start(kTick);
  Tick();
}

BenchSocket::~BenchSocket() { socket_.disconnect(this); }

void BenchSocket::Tick() {
  if (socket_.state() == QLocalSocket::ConnectedState) {
    bench_.Look();
    Send();
  } else if (socket_.state() == QLocalSocket::UnconnectedState &&
             ticks_++ % kTicksToTryAgain == 0) {
    socket_.connectToServer(path_);
  }
}

void BenchSocket::Receive() {
  const QByteArray bytes = socket_.readAll();
  if (!bench_.Receive(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size()))))
    socket_.abort();
  Send();
}

void BenchSocket::Send() {
  if (socket_.state() != QLocalSocket::ConnectedState) return;
  const std::string bytes = bench_.TakeOutgoing();
  socket_.write(bytes.data(), static_cast<qint64>(bytes.size()));
  socket_.flush();
}

}  // namespace lorimet::bench
