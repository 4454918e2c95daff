// A server that says the same to whatever it is asked.
#pragma once

#include <QByteArray>
#include <QString>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <string_view>
#include <thread>

#include "base/file_descriptor.h"

namespace norvex {

/// On loopback, a connection at a time: hears a request's beginning, answers, hangs up. Serves while it
/// lives.
class TalkingServer {
 public:
  explicit TalkingServer(QByteArray answer, bool drips = false)
      : answer_(std::move(answer)),
        drips_(drips),
        listening_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const plain = reinterpret_cast<sockaddr*>(&address);
    if (::bind(listening_.get(), plain, size) != 0 || ::listen(listening_.get(), 16) != 0 ||
        ::getsockname(listening_.get(), plain, &size) != 0)
      return;
    port_ = ntohs(address.sin_port);
    serving_ = std::thread([this] { serve(); });
  }
  ~TalkingServer() {
    ends_ = true;
    ::shutdown(listening_.get(), SHUT_RDWR);  // accept() gives up
    if (serving_.joinable()) serving_.join();
  }
  TalkingServer(const TalkingServer&) = delete;
  TalkingServer& operator=(const TalkingServer&) = delete;

  [[nodiscard]] QString address() const { return QStringLiteral("127.0.0.1:%1").arg(port_); }
  /// How often it answered.
  [[nodiscard]] int answers() const { return answers_; }

 private:
  void serve() {
    for (;;) {
      const FileDescriptor heard(::accept4(listening_.get(), nullptr, nullptr, SOCK_CLOEXEC));
      if (!heard.valid()) return;
      char request[4096];
      if (::recv(heard.get(), request, sizeof request, 0) <= 0) continue;
      static_cast<void>(::send(heard.get(), answer_.constData(), size_t(answer_.size()), MSG_NOSIGNAL));
      ++answers_;
      const std::string_view line = "X: y\r\n";
      for (size_t i = 0;
           drips_ && !ends_ && ::send(heard.get(), &line[i % line.size()], 1, MSG_NOSIGNAL) == 1; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
      // What was not read would be a reset, which may overtake the answer.
      ::shutdown(heard.get(), SHUT_WR);
      while (::recv(heard.get(), request, sizeof request, 0) > 0) continue;
    }
  }

  QByteArray answer_;
  bool drips_;
  FileDescriptor listening_;
  int port_ = 0;
  std::atomic<int> answers_ = 0;
  std::atomic<bool> ends_ = false;
  std::thread serving_;
};

}  // namespace norvex
