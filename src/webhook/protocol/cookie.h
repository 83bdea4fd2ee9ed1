#pragma once

#include <QString>
#include <optional>

namespace Corvex::Webhook {

struct Cookie {
  QString name;
  QString value;
  QString domain;  ///< With a leading dot where it counts for the hosts below, too. To set one, "" is the page's host.
  QString path = QStringLiteral("/");
  bool secure = false;
  bool httpOnly = false;
  QString sameSite;               ///< "strict", "lax", "none", or "" where it is not known.
  std::optional<qint64> expires;  ///< Seconds since 1970; nothing where it ends with the browser.
};

}  // namespace Corvex::Webhook
