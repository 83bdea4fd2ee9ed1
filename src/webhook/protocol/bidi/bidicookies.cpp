#include "webhook/protocol/bidi/bidicookies.h"

#include <QJsonArray>

namespace Corvex::Webhook::Bidi {

namespace {

QString textAt(const QJsonObject& object, const char* key) { return object.value(QLatin1String(key)).toString(); }

Command inJarOf(const char* method, const QString& page, QJsonObject parameters) {
  const QJsonObject jar{{QStringLiteral("type"), QStringLiteral("context")}, {QStringLiteral("context"), page}};
  parameters.insert(QStringLiteral("partition"), jar);
  return {QString::fromLatin1(method), parameters};
}

QString textOfValue(const QJsonObject& value) {
  const QString text = textAt(value, "value");
  const bool isCoded = textAt(value, "type") == QLatin1String("base64");
  return isCoded ? QString::fromLatin1(QByteArray::fromBase64(text.toLatin1())) : text;
}

}  // namespace

Command listCookies(const QString& page) { return inJarOf("storage.getCookies", page, {}); }

QVector<Cookie> readCookies(const QJsonObject& answer) {
  QVector<Cookie> cookies;
  for (const QJsonValue& each : answer.value(QLatin1String("cookies")).toArray()) {
    const QJsonObject object = each.toObject();
    Cookie cookie;
    cookie.name = textAt(object, "name");
    cookie.value = textOfValue(object.value(QLatin1String("value")).toObject());
    cookie.domain = textAt(object, "domain");
    cookie.path = textAt(object, "path");
    cookie.secure = object.value(QLatin1String("secure")).toBool();
    cookie.httpOnly = object.value(QLatin1String("httpOnly")).toBool();
    const QString sameSite = textAt(object, "sameSite");
    cookie.sameSite = sameSite == QLatin1String("default") ? QString() : sameSite;
    const QJsonValue expires = object.value(QLatin1String("expiry"));
    cookie.expires = expires.isDouble() ? std::optional<qint64>(qint64(expires.toDouble())) : std::nullopt;
    cookies.append(cookie);
  }
  return cookies;
}

Command setCookie(const QString& page, const Cookie& cookie) {
  const QJsonObject value{{QStringLiteral("type"), QStringLiteral("string")}, {QStringLiteral("value"), cookie.value}};
  QJsonObject object{{QStringLiteral("name"), cookie.name},     {QStringLiteral("value"), value},
                     {QStringLiteral("domain"), cookie.domain}, {QStringLiteral("path"), cookie.path},
                     {QStringLiteral("secure"), cookie.secure}, {QStringLiteral("httpOnly"), cookie.httpOnly}};
  if (!cookie.sameSite.isEmpty()) {
    object.insert(QStringLiteral("sameSite"), cookie.sameSite);
  }
  if (cookie.expires) {
    object.insert(QStringLiteral("expiry"), *cookie.expires);
  }
  return inJarOf("storage.setCookie", page, {{QStringLiteral("cookie"), object}});
}

Command deleteCookie(const QString& page, const Cookie& cookie) {
  const QJsonObject filter{{QStringLiteral("name"), cookie.name},
                           {QStringLiteral("domain"), cookie.domain},
                           {QStringLiteral("path"), cookie.path}};
  return inJarOf("storage.deleteCookies", page, {{QStringLiteral("filter"), filter}});
}

}  // namespace Corvex::Webhook::Bidi
