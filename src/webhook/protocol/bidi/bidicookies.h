#pragma once

#include <QVector>

#include "webhook/protocol/cookie.h"
#include "webhook/protocol/dialect.h"

/// Cookies in WebDriver BiDi.
namespace Corvex::Webhook::Bidi {

/// Asks for the cookies of the browser as the page sees them, those of other sites included.
Command listCookies(const QString& page);
QVector<Cookie> readCookies(const QJsonObject& answer);
Command setCookie(const QString& page, const Cookie& cookie);
Command deleteCookie(const QString& page, const Cookie& cookie);

}  // namespace Corvex::Webhook::Bidi
