#pragma once

#include <QString>
#include <QVector>
#include <deque>
#include <optional>

#include "shared/functioncallresult.h"
#include "webhook/protocol/credentials.h"

namespace Corvex::Webhook {

/// What servers are told that ask who wants their pages. Each is told once for a request: one that asks again has
/// refused the answer, and would ask for ever.
class Authentication {
public:
  void setCredentials(const QVector<Credentials>& credentials) { m_credentials = credentials; }
  bool hasCredentials() const { return !m_credentials.isEmpty(); }

  /// Nothing when the question is to be refused.
  std::optional<Credentials> answer(const AuthQuestion& question);

  /// Those of a user's text USER:PASSWORD, or USER:PASSWORD@https://host:port for one origin alone. The error says
  /// what it takes, and holds nothing of the text.
  static FunctionCallResult<Credentials> read(const QString& text);
  /// "scheme://host:port" of an address; "" for one that is none of http.
  static QString originOf(const QString& address);

private:
  QVector<Credentials> m_credentials;
  std::deque<QString> m_answered;
};

}  // namespace Corvex::Webhook
