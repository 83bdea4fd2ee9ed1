#include "webhook/browser/authentication.h"

#include <QRegularExpression>
#include <QUrl>
#include <algorithm>

namespace Corvex::Webhook {

namespace {

constexpr size_t mostAnswered = 1000;

}  // namespace

QString Authentication::originOf(const QString& address) {
  const QUrl url(address);
  const QString scheme = url.scheme();
  const bool isSecure = scheme == QLatin1String("https");
  if ((!isSecure && scheme != QLatin1String("http")) || url.host().isEmpty()) {
    return {};
  }
  const QString host = url.host().contains(QLatin1Char(':')) ? QStringLiteral("[%1]").arg(url.host()) : url.host();
  return QStringLiteral("%1://%2:%3").arg(scheme, host, QString::number(url.port(isSecure ? 443 : 80)));
}

std::optional<Credentials> Authentication::answer(const AuthQuestion& question) {
  const QString origin = question.isOfProxy ? QString() : originOf(question.address);
  const Credentials* known = nullptr;
  for (const Credentials& credentials : m_credentials) {
    const bool fits = credentials.origin.isEmpty() || credentials.origin == origin;
    if (fits && (!known || !credentials.origin.isEmpty())) {
      known = &credentials;
    }
  }
  const bool wasAnswered = std::find(m_answered.begin(), m_answered.end(), question.attempt) != m_answered.end();
  if (!known || wasAnswered) {
    return {};
  }
  m_answered.push_back(question.attempt);
  if (m_answered.size() > mostAnswered) {
    m_answered.pop_front();
  }
  return *known;
}

FunctionCallResult<Credentials> Authentication::read(const QString& text) {
  static const QRegularExpression form(QStringLiteral("^([^:]+):(.*?)(?:@(https?://[^@]*))?$"),
                                       QRegularExpression::DotMatchesEverythingOption);
  const QRegularExpressionMatch match = form.match(text);
  const Credentials credentials{match.captured(1), match.captured(2), originOf(match.captured(3))};
  const bool isGood = match.hasMatch() && (match.captured(3).isEmpty() || !credentials.origin.isEmpty());
  return isGood ? FunctionCallResult<Credentials>::success(credentials)
                : FunctionCallResult<Credentials>::failure(
                      QStringLiteral("a user and a password, such as ada:secret, or for one server alone "
                                     "ada:secret@https://example.com"));
}

}  // namespace Corvex::Webhook
