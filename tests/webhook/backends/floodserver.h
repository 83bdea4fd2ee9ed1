#pragma once

#include <QByteArray>
#include <QTcpServer>
#include <QTcpSocket>
#include <functional>

/// A server on the loopback interface that answers a request and then goes on and on, up to a bound.
class FloodServer {
public:
  /// `begin` gives what answers a request, `more` is sent over and over after it.
  FloodServer(std::function<QByteArray(const QByteArray& request)> begin, const QByteArray& more)
      : m_begin(std::move(begin)), m_more(more) {
    m_server.listen(QHostAddress::LocalHost);
    QObject::connect(&m_server, &QTcpServer::newConnection, &m_server,
                     [this] { serve(m_server.nextPendingConnection()); });
  }

  QString address() const { return QStringLiteral("127.0.0.1:%1").arg(m_server.serverPort()); }
  qint64 sent() const { return m_sent; }

  static constexpr qint64 bound = 400 * 1024 * 1024;

private:
  void serve(QTcpSocket* socket) {
    QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
      const QByteArray request = socket->readAll();
      if (!socket->property("answered").toBool() && request.contains("\r\n\r\n")) {
        socket->setProperty("answered", true);
        socket->write(m_begin(request));
      }
    });
    QObject::connect(socket, &QTcpSocket::bytesWritten, socket, [this, socket] {
      if (m_sent < bound && socket->bytesToWrite() < m_more.size()) {
        socket->write(m_more);
        m_sent += m_more.size();
      }
    });
    QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
  }

  QTcpServer m_server;
  const std::function<QByteArray(const QByteArray& request)> m_begin;
  const QByteArray m_more;
  qint64 m_sent = 0;
};
