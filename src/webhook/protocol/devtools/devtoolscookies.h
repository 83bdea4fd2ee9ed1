#pragma once

#include <QVector>

#include "webhook/protocol/cookie.h"
#include "webhook/protocol/dialect.h"

/// Cookies in the DevTools protocol.
namespace Corvex::Webhook::DevTools {

/// Asks for the cookies for `url`.
Command listCookies(const QString& url);
QVector<Cookie> readCookies(const QJsonObject& answer);
Command setCookie(const QString& url, const Cookie& cookie);
/// Whether the browser took it.
bool isCookieSet(const QJsonObject& answer);
Command deleteCookie(const Cookie& cookie);

}  // namespace Corvex::Webhook::DevTools
