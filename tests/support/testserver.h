#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QTcpServer>
#include <memory>

class QTcpSocket;

namespace TestSupport {

/// What the server answers to one path.
struct ServerPage {
  QByteArray body;
  QByteArray type = "text/html; charset=utf-8";
  QList<QPair<QByteArray, QByteArray>> headers = {};
  int status = 200;
  bool silent = false;    ///< Takes the request and never answers.
  QByteArray login = {};  ///< USER:PASSWORD that the page is kept for; others are asked for it.
  int missing = 0;        ///< Bytes that are promised and do not come; the connection ends after a moment.
};

/// A small HTTP server on a free port of the loopback interface. It serves from the event loop of the thread that made
/// it, so whatever waits for a page has to let events run.
class TestServer {
public:
  TestServer();
  /// One of https, for the certificate and the key in PEM.
  TestServer(const QByteArray& certificate, const QByteArray& key);

  bool isListening() const { return m_server->isListening(); }

  /// Answers `path` (such as "/a.html") with `page`.
  void add(const QString& path, const ServerPage& page) { m_pages[path] = page; }

  /// Answers every path that is not added and begins with `prefix` with the file of the rest of its name below
  /// `folder`.
  void serveFolder(const QString& folder, const QString& prefix = QStringLiteral("/")) {
    m_folders.insert(prefix, folder);
  }

  /// "http://127.0.0.1:port" + path, or with https; `host` may be another name of the loopback interface.
  QString url(const QString& path, const QString& host = QStringLiteral("127.0.0.1")) const;

  /// The paths that were asked for, queries included, in order.
  const QStringList& requests() const { return m_requests; }

private:
  void listen();
  void serve(QTcpSocket* socket);
  ServerPage pageFor(const QString& path) const;
  void answer(QTcpSocket* socket, const QByteArray& request);

  QString m_scheme = QStringLiteral("http");
  std::unique_ptr<QTcpServer> m_server;
  QMap<QString, ServerPage> m_pages;
  QMap<QString, QString> m_folders;  ///< By the beginnings of the paths that they serve.
  QStringList m_requests;
};

}  // namespace TestSupport
