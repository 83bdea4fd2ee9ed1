#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace Corvex::Webhook {

/// A request before it is sent: what is asked, without number and session.
struct Command {
  QString method;
  QJsonObject parameters;
  bool isSecret = false;  ///< Its parameters are not for logs.
};

/// One message of the browser, taken apart.
struct WireMessage {
  enum Kind { Malformed, Answer, Refusal, Event };

  Kind kind = Malformed;
  qint64 id = 0;        ///< Of an Answer or a Refusal.
  QString session;      ///< The part of the browser that it concerns; "" for the browser itself.
  QString method;       ///< Of an Event.
  QJsonObject content;  ///< Result or parameters.
  QString error;        ///< Of a Refusal, in the browser's words.
};

/// How a protocol writes requests and reads messages. Stateless.
struct Dialect {
  QByteArray (*write)(qint64 id, const QString& session, const Command& command);
  WireMessage (*read)(const QByteArray& text);
};

}  // namespace Corvex::Webhook
