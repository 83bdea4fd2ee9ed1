#pragma once

#include <QString>

namespace Corvex::Webhook {

/// What a server is told that asks who wants its page.
struct Credentials {
  QString user;
  QString password;
  QString origin;  ///< The only one that is told, as "https://host:port"; "" for any, proxies included.
};

/// The question of a server or a proxy.
struct AuthQuestion {
  QString request;  ///< The browser's name for the request that it holds.
  QString attempt;  ///< The same for all questions that this request meets at this address.
  QString address;  ///< Of what is asked for.
  bool isOfProxy = false;
};

}  // namespace Corvex::Webhook
