#pragma once

#include <QString>

#include "shared/functioncallresult.h"

namespace Corvex::Webhook {

/// What a browser asks for pages in place of their servers.
struct Proxy {
  enum Kind { None, Http, Socks };

  Kind kind = None;
  QString host;
  int port = 0;

  QString place() const;  ///< "host:port"

  /// From a user's text: HOST:PORT, http://HOST:PORT or socks5://HOST:PORT. The error says what it takes.
  static FunctionCallResult<Proxy> read(const QString& text);
};

}  // namespace Corvex::Webhook
