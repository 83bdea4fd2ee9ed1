#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>

#include <QByteArray>
#include <utility>

#include "webhook/process/filedescriptor.h"

/// What came back from a server. `status` is 0 if it closed without a whole reply.
struct RawReply {
  int status = 0;
  QByteArray head;
  QByteArray body;

  /// The value of a header, or a null text.
  QByteArray header(const QByteArray& name) const {
    for (const QByteArray& line : head.split('\n')) {
      if (line.toLower().startsWith(name.toLower() + ": ")) {
        return line.mid(name.size() + 2).trimmed();
      }
    }
    return {};
  }
};

/// A connection to a port of 127.0.0.1 that sends whatever it is told to. It blocks, for 10 s at most, and runs no
/// events.
class RawClient {
public:
  explicit RawClient(quint16 port) : m_socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    const timeval patience{10, 0};
    ::setsockopt(m_socket.get(), SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    ::setsockopt(m_socket.get(), SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    m_connected = ::connect(m_socket.get(), reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
  }

  bool isConnected() const { return m_connected; }

  /// Sends as much as the other side takes.
  void send(const QByteArray& bytes) {
    for (int sent = 0; sent < bytes.size();) {
      const auto step =
          ::send(m_socket.get(), bytes.constData() + sent, std::size_t(bytes.size() - sent), MSG_NOSIGNAL);
      if (step <= 0) {
        return;
      }
      sent += int(step);
    }
  }

  void finishSending() { ::shutdown(m_socket.get(), SHUT_WR); }
  void close() { m_socket.close(); }

  RawReply receive() {
    while (!m_buffer.contains("\r\n\r\n")) {
      if (!fill()) {
        return {};
      }
    }
    RawReply reply;
    const int end = m_buffer.indexOf("\r\n\r\n");
    reply.head = m_buffer.left(end);
    const int length = reply.header("Content-Length").toInt();
    while (m_buffer.size() < end + 4 + length) {
      if (!fill()) {
        return {};
      }
    }
    reply.status = reply.head.mid(int(sizeof "HTTP/1.1"), 3).toInt();
    reply.body = m_buffer.mid(end + 4, length);
    m_buffer.remove(0, end + 4 + length);
    return reply;
  }

  RawReply exchange(const QByteArray& request) {
    send(request);
    return receive();
  }

private:
  bool fill() {
    char bytes[65536];
    const auto got = ::recv(m_socket.get(), bytes, sizeof bytes, 0);
    if (got <= 0) {
      return false;
    }
    m_buffer.append(bytes, int(got));
    return true;
  }

  Corvex::Webhook::FileDescriptor m_socket;
  bool m_connected = false;
  QByteArray m_buffer;
};
