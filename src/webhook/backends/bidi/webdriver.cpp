#include "webhook/backends/bidi/webdriver.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QNetworkAccessManager>
#include <QNetworkReply>

#include "shared/textfile.h"
#include "shared/wait.h"
#include "webhook/protocol/bidi/bidi.h"

namespace Corvex::Webhook {

namespace {

const QString alwaysMatch = QStringLiteral("alwaysMatch");
const QString firstMatch = QStringLiteral("firstMatch");
const QString wrapped = QStringLiteral("capabilities");

constexpr int endTimeoutMs = 2000;
constexpr qint64 answerLimit = 16 * 1024 * 1024;

struct HttpAnswer {
  QJsonObject value;
  QString error;  ///< Without its end mark.
};

QString failureOf(const QNetworkReply& reply, const QJsonObject& value) {
  const QString message = value.value(QLatin1String("message")).toString().simplified().left(300);
  if (!message.isEmpty()) {
    return message;
  }
  const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  return status ? QStringLiteral("it answered with HTTP status %1").arg(status) : reply.errorString();
}

HttpAnswer finish(QNetworkReply* reply, const QDeadlineTimer& deadline) {
  const std::unique_ptr<QNetworkReply> owned(reply);
  const auto finished = std::make_shared<Pending>();
  reply->setReadBufferSize(answerLimit + 1);
  bool endless = false;
  QObject::connect(reply, &QNetworkReply::readyRead, [reply, finished, &endless] {
    endless = reply->bytesAvailable() > answerLimit;
    if (endless) {
      finished->complete();
    }
  });
  QObject::connect(reply, &QNetworkReply::finished, [finished] { finished->complete(); });
  if (waitFor(*finished, deadline) != WaitResult::Complete) {
    return {{}, QStringLiteral("there was no answer in time")};
  }
  if (endless) {
    return {{}, QStringLiteral("its answer is longer than %1 MB").arg(answerLimit / (1024 * 1024))};
  }
  const QJsonObject body = QJsonDocument::fromJson(reply->readAll()).object();
  HttpAnswer answer{body.value(QLatin1String("value")).toObject(), {}};
  if (reply->error() != QNetworkReply::NoError) {
    answer.error = failureOf(*reply, answer.value);
  }
  return answer;
}

QNetworkRequest requestTo(const QUrl& url) {
  QNetworkRequest request(url);
  request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json; charset=utf-8"));
  return request;
}

QString notCreated(const QString& url, const QString& why) {
  return QStringLiteral(
             "The server at '%1' opened no browser: %2. Check the address, that a WebDriver server runs there, and the "
             "capabilities.")
      .arg(url, why);
}

QString noWebSocket(const QString& url) {
  return QStringLiteral(
             "The server at '%1' offers no webSocketUrl, so its browser cannot be driven. Use a server and a browser "
             "that support WebDriver BiDi.")
      .arg(url);
}

QJsonObject proxyCapability(const Proxy& proxy) {
  QJsonObject capability{{QStringLiteral("proxyType"), QStringLiteral("manual")}};
  if (proxy.kind == Proxy::Socks) {
    capability.insert(QStringLiteral("socksProxy"), proxy.place());
    capability.insert(QStringLiteral("socksVersion"), 5);
  } else {
    capability.insert(QStringLiteral("httpProxy"), proxy.place());
    capability.insert(QStringLiteral("sslProxy"), proxy.place());
  }
  return capability;
}

QString badCapabilities(const QString& why) {
  return QStringLiteral("The capabilities cannot be used: %1. Give a JSON object, or @ and the path of a file of one.")
      .arg(why);
}

}  // namespace

WebDriverSession::WebDriverSession(const QString& url)
    : m_url(url.endsWith(QLatin1Char('/')) ? url.chopped(1) : url),
      m_network(std::make_unique<QNetworkAccessManager>()) {}

WebDriverSession::~WebDriverSession() = default;

WebDriverSession::Start WebDriverSession::create(const QString& url, const QJsonObject& capabilities,
                                                 const QDeadlineTimer& deadline) {
  std::unique_ptr<WebDriverSession> session(new WebDriverSession(url));
  const QString scheme = session->m_url.scheme();
  if (!session->m_url.isValid() || session->m_url.host().isEmpty() || !scheme.startsWith(QLatin1String("http"))) {
    return {nullptr, QStringLiteral("'%1' is no address of a WebDriver server. Give it as http://host:port.").arg(url)};
  }
  const QUrl target(session->m_url.toString() + QStringLiteral("/session"));
  const QByteArray body = QJsonDocument(QJsonObject{{wrapped, capabilities}}).toJson(QJsonDocument::Compact);
  const HttpAnswer answer = finish(session->m_network->post(requestTo(target), body), deadline);
  if (!answer.error.isEmpty()) {
    return {nullptr, notCreated(url, answer.error)};
  }
  const QString id = answer.value.value(QLatin1String("sessionId")).toString();
  if (id.isEmpty()) {
    return {nullptr, notCreated(url, QStringLiteral("its answer names no session"))};
  }
  session->m_url = QUrl(target.toString() + QLatin1Char('/') + id);
  session->m_capabilities = answer.value.value(wrapped).toObject();
  session->m_webSocketUrl = QUrl(session->m_capabilities.value(QLatin1String("webSocketUrl")).toString());
  if (!session->m_webSocketUrl.host().isEmpty()) {
    return {std::move(session), {}};
  }
  session->end();
  return {nullptr, noWebSocket(url)};
}

void WebDriverSession::end() {
  if (m_ended || !QCoreApplication::instance()) {
    return;
  }
  m_ended = true;
  finish(m_network->deleteResource(requestTo(m_url)), QDeadlineTimer(endTimeoutMs));
}

WantedCapabilities wantedCapabilities(const SessionOptions& options, const QString& browser) {
  const QString& text = options.capabilities;
  QByteArray json = text.isEmpty() ? QByteArray("{}") : text.toUtf8();
  if (text.startsWith(QLatin1Char('@'))) {
    const FunctionCallResult<QString> file = readTextFile(text.mid(1));
    if (file.failed()) {
      return {{}, badCapabilities(QStringLiteral("the file '%1' cannot be read: %2").arg(text.mid(1), file.error))};
    }
    json = file.value.toUtf8();
  }
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(json, &error);
  if (!document.isObject()) {
    const QString why = error.error ? error.errorString() : QStringLiteral("the JSON is no object");
    return {{}, badCapabilities(why)};
  }
  QJsonObject given = document.object();
  if (given.value(wrapped).isObject()) {
    given = given.value(wrapped).toObject();
  }
  const bool hasForm = given.contains(alwaysMatch) || given.contains(firstMatch);
  QJsonObject result = hasForm ? given : QJsonObject{{alwaysMatch, given}};
  QJsonObject always = result.value(alwaysMatch).toObject();
  const QJsonObject needed = Bidi::neededCapabilities();
  for (auto entry = needed.begin(); entry != needed.end(); ++entry) {
    always.insert(entry.key(), entry.value());
  }
  always.insert(QStringLiteral("webSocketUrl"), true);
  if (options.ignoreCertificateErrors) {
    always.insert(QStringLiteral("acceptInsecureCerts"), true);
  }
  if (options.proxy.kind != Proxy::None) {
    always.insert(QStringLiteral("proxy"), proxyCapability(options.proxy));
  }
  if (!browser.isEmpty() && !result.contains(firstMatch) && !always.contains(QLatin1String("browserName"))) {
    always.insert(QStringLiteral("browserName"), browser);
  }
  result.insert(alwaysMatch, always);
  return {result, {}};
}

}  // namespace Corvex::Webhook
