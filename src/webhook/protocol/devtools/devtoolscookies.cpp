#include "webhook/protocol/devtools/devtoolscookies.h"

#include <QJsonArray>

namespace Corvex::Webhook::DevTools {

namespace {

QString textAt(const QJsonObject& object, const char* key) { return object.value(QLatin1String(key)).toString(); }

/// "Strict", "Lax" or "None".
QString sameSiteName(const QString& name) { return name.left(1).toUpper() + name.mid(1); }

}  // namespace

Command listCookies(const QString& url) {
  return {QStringLiteral("Network.getCookies"), {{QStringLiteral("urls"), QJsonArray{url}}}};
}

QVector<Cookie> readCookies(const QJsonObject& answer) {
  QVector<Cookie> cookies;
  for (const QJsonValue& each : answer.value(QLatin1String("cookies")).toArray()) {
    const QJsonObject object = each.toObject();
    Cookie cookie;
    cookie.name = textAt(object, "name");
    cookie.value = textAt(object, "value");
    cookie.domain = textAt(object, "domain");
    cookie.path = textAt(object, "path");
    cookie.secure = object.value(QLatin1String("secure")).toBool();
    cookie.httpOnly = object.value(QLatin1String("httpOnly")).toBool();
    cookie.sameSite = textAt(object, "sameSite").toLower();
    const double expires = object.value(QLatin1String("expires")).toDouble(-1);
    cookie.expires = expires >= 0 ? std::optional<qint64>(qint64(expires)) : std::nullopt;
    cookies.append(cookie);
  }
  return cookies;
}

Command setCookie(const QString& url, const Cookie& cookie) {
  QJsonObject parameters{{QStringLiteral("url"), url},
                         {QStringLiteral("name"), cookie.name},
                         {QStringLiteral("value"), cookie.value},
                         {QStringLiteral("path"), cookie.path},
                         {QStringLiteral("secure"), cookie.secure},
                         {QStringLiteral("httpOnly"), cookie.httpOnly}};
  if (!cookie.domain.isEmpty()) {
    parameters.insert(QStringLiteral("domain"), cookie.domain);
  }
  if (!cookie.sameSite.isEmpty()) {
    parameters.insert(QStringLiteral("sameSite"), sameSiteName(cookie.sameSite));
  }
  if (cookie.expires) {
    parameters.insert(QStringLiteral("expires"), *cookie.expires);
  }
  return {QStringLiteral("Network.setCookie"), parameters};
}

bool isCookieSet(const QJsonObject& answer) { return answer.value(QLatin1String("success")).toBool(true); }

Command deleteCookie(const Cookie& cookie) {
  return {QStringLiteral("Network.deleteCookies"),
          {{QStringLiteral("name"), cookie.name},
           {QStringLiteral("domain"), cookie.domain},
           {QStringLiteral("path"), cookie.path}}};
}

}  // namespace Corvex::Webhook::DevTools
