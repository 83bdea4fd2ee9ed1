#include "support/testserver.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>

namespace TestSupport {

namespace {

const int breakAfterMs = 300;

QByteArray typeOf(const QString& path) {
  static const QMap<QString, QByteArray> types{{QStringLiteral("html"), "text/html; charset=utf-8"},
                                               {QStringLiteral("js"), "text/javascript; charset=utf-8"},
                                               {QStringLiteral("css"), "text/css; charset=utf-8"},
                                               {QStringLiteral("json"), "application/json"},
                                               {QStringLiteral("svg"), "image/svg+xml"},
                                               {QStringLiteral("png"), "image/png"}};
  return types.value(QFileInfo(path).suffix(), "text/plain; charset=utf-8");
}

int bodyLength(const QByteArray& head) {
  static const QRegularExpression line(QStringLiteral("\\ncontent-length: *(\\d+)"),
                                       QRegularExpression::CaseInsensitiveOption);
  return line.match(QString::fromLatin1(head)).captured(1).toInt();
}

QByteArray responseText(const ServerPage& page) {
  QByteArray text = "HTTP/1.1 " + QByteArray::number(page.status) + " Status\r\n";
  text += "Content-Type: " + page.type + "\r\nContent-Length: " + QByteArray::number(page.body.size() + page.missing) +
          "\r\n";
  for (const auto& header : page.headers) {
    text += header.first + ": " + header.second + "\r\n";
  }
  return text + "Connection: close\r\n\r\n" + page.body;
}

/// Its sockets speak TLS.
class SecureServer : public QTcpServer {
public:
  SecureServer(const QByteArray& certificate, const QByteArray& key)
      : m_certificate(certificate), m_key(key, QSsl::Ec) {}

protected:
  void incomingConnection(qintptr descriptor) override {
    auto* const socket = new QSslSocket(this);
    socket->setSocketDescriptor(descriptor);
    socket->setLocalCertificate(m_certificate);
    socket->setPrivateKey(m_key);
    socket->startServerEncryption();
    addPendingConnection(socket);
  }

private:
  const QSslCertificate m_certificate;
  const QSslKey m_key;
};

}  // namespace

TestServer::TestServer() : m_server(std::make_unique<QTcpServer>()) { listen(); }

TestServer::TestServer(const QByteArray& certificate, const QByteArray& key)
    : m_scheme(QStringLiteral("https")), m_server(std::make_unique<SecureServer>(certificate, key)) {
  listen();
}

void TestServer::listen() {
  QObject::connect(m_server.get(), &QTcpServer::newConnection, m_server.get(), [this] {
    while (QTcpSocket* socket = m_server->nextPendingConnection()) {
      serve(socket);
    }
  });
  m_server->listen(QHostAddress::LocalHost);
}

QString TestServer::url(const QString& path, const QString& host) const {
  return QStringLiteral("%1://%2:%3%4").arg(m_scheme, host, QString::number(m_server->serverPort()), path);
}

void TestServer::serve(QTcpSocket* socket) {
  QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
  QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
    const QByteArray seen = socket->peek(64 * 1024);
    const int headEnd = seen.indexOf("\r\n\r\n");
    if (headEnd >= 0 && seen.size() >= headEnd + 4 + bodyLength(seen.left(headEnd))) {
      answer(socket, socket->readAll());
    }
  });
}

void TestServer::answer(QTcpSocket* socket, const QByteArray& request) {
  const QString target = QString::fromLatin1(request.split(' ').value(1));
  m_requests.append(target);
  ServerPage page = pageFor(QUrl::fromPercentEncoding(target.section(QLatin1Char('?'), 0, 0).toLatin1()));
  if (!page.login.isEmpty() && !request.contains("Basic " + page.login.toBase64() + "\r\n")) {
    page = {"<title>Refused</title>Who is it?", page.type, {{"WWW-Authenticate", "Basic realm=\"test\""}}, 401};
  }
  if (page.silent) {
    return;
  }
  socket->write(responseText(page));
  if (page.missing > 0) {
    QTimer::singleShot(breakAfterMs, socket, &QTcpSocket::disconnectFromHost);
    return;
  }
  socket->disconnectFromHost();
}

ServerPage TestServer::pageFor(const QString& path) const {
  if (m_pages.contains(path)) {
    return m_pages.value(path);
  }
  // The longest beginning of all comes last.
  for (auto folder = m_folders.constEnd(); folder != m_folders.constBegin();) {
    --folder;
    QFile file(folder.value() + QLatin1Char('/') + path.mid(folder.key().size()));
    if (path.startsWith(folder.key()) && !path.contains(QStringLiteral("..")) && file.open(QIODevice::ReadOnly)) {
      return {file.readAll(), typeOf(path)};
    }
  }
  return {"<title>Not found</title>", "text/html", {}, 404};
}

}  // namespace TestSupport
