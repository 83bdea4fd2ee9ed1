#include "webhook/browser/proxy.h"

#include <QRegularExpression>
#include <QUrl>

namespace Corvex::Webhook {

QString Proxy::place() const {
  const bool isLongAddress = host.contains(QLatin1Char(':'));
  return (isLongAddress ? QStringLiteral("[%1]:%2") : QStringLiteral("%1:%2")).arg(host, QString::number(port));
}

FunctionCallResult<Proxy> Proxy::read(const QString& text) {
  const bool hasScheme = text.contains(QLatin1String("://"));
  const QUrl url(hasScheme ? text : QStringLiteral("http://") + text);
  static const QRegularExpression plainHost(QStringLiteral("^[0-9A-Za-z._:-]+$"));
  const bool isSocks = url.scheme() == QLatin1String("socks5");
  const bool isKnown = isSocks || url.scheme() == QLatin1String("http");
  const bool isPlain = url.userInfo().isEmpty() && (url.path().isEmpty() || url.path() == QLatin1String("/")) &&
                       !url.hasQuery() && !url.hasFragment();
  if (!isKnown || !isPlain || url.port() < 1 || !plainHost.match(url.host()).hasMatch()) {
    return FunctionCallResult<Proxy>::failure(
        QStringLiteral("a host and a port, such as proxy.example.com:8080 or socks5://127.0.0.1:1080; a user and a "
                       "password are given by --credentials"));
  }
  return FunctionCallResult<Proxy>::success({isSocks ? Socks : Http, url.host(), url.port()});
}

}  // namespace Corvex::Webhook
