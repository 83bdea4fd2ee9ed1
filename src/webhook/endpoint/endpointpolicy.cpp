#include "webhook/endpoint/endpointpolicy.h"

#include <QUrl>
#include <algorithm>

namespace Corvex::Webhook {

namespace {

const RefusalRow refusalRows[] = {
    {Refusal::Host, 403, "host", "it is addressed to %1; use the address that the endpoint was given."},
    {Refusal::Origin, 403, "origin", "it comes from %1, which is no hooked document; hook the page before it sends."},
    {Refusal::Method, 403, "method", "its method is %1; send it by GET or POST."},
    {Refusal::Path, 403, "path", "its target is %1; send it to the path that hooked documents are told."},
    {Refusal::Size, 413, "size", "its body is too large or of no stated size (%1); send it in smaller parts."},
    {Refusal::Busy, 503, "busy", "%1; send it again later."},
    {Refusal::Malformed, 400, "malformed", "%1; send one whole HTTP request at a time."},
};

struct DefaultPort {
  const char* scheme;
  int port;
};
const DefaultPort defaultPorts[] = {{"http", 80}, {"https", 443}, {"ftp", 21}};

bool isDefaultPort(const QString& scheme, int port) {
  return port < 0 || std::any_of(std::begin(defaultPorts), std::end(defaultPorts), [&](const DefaultPort& row) {
           return port == row.port && scheme == QLatin1String(row.scheme);
         });
}

/// For a log line: in quotes, with nothing in it that a terminal would act on, and never long.
QString shown(const QByteArrayList& values) {
  if (values.isEmpty()) {
    return QStringLiteral("nobody");
  }
  QString text = QString::fromLatin1(values.join(", ").left(120));
  for (QChar& c : text) {
    if (!c.isPrint()) {
      c = u'?';
    }
  }
  return u'"' + text + u'"';
}

Verdict refused(Refusal refusal, const QByteArrayList& values, const QByteArray& origin = {}) {
  return {refusal, shown(values), origin};
}

bool isTooLarge(const RequestHead& head, qint64 bodyLimit) {
  if (!head.transferEncodings.isEmpty() || head.lengths.size() > 1) {
    return true;
  }
  bool isNumber = true;
  const quint64 length = head.lengths.isEmpty() ? 0 : head.lengths.first().toULongLong(&isNumber);
  return !isNumber || length > quint64(bodyLimit);
}

}  // namespace

const RefusalRow& rowOf(Refusal refusal) {
  return *std::find_if(std::begin(refusalRows), std::end(refusalRows) - 1,
                       [refusal](const RefusalRow& row) { return row.refusal == refusal; });
}

QString originOf(const QString& url) {
  const QString inner = url.startsWith(QLatin1String("blob:")) ? url.mid(5) : url;
  const QUrl parsed(inner);
  const QString scheme = parsed.scheme();
  if (scheme.isEmpty() || scheme == QLatin1String("about")) {
    return {};
  }
  const QString host = parsed.host(QUrl::FullyEncoded);
  if (host.isEmpty() || scheme == QLatin1String("file")) {
    return QStringLiteral("null");
  }
  const QString origin = scheme + QLatin1String("://") + (host.contains(u':') ? u'[' + host + u']' : host);
  return isDefaultPort(scheme, parsed.port()) ? origin : origin + u':' + QString::number(parsed.port());
}

void EndpointPolicy::setAllowedOrigins(const QStringList& origins) {
  QSet<QByteArray> allowed;
  for (const QString& origin : origins) {
    if (!origin.isEmpty()) {
      allowed.insert(origin.toUtf8());
    }
  }
  const std::lock_guard<std::mutex> lock(m_mutex);
  m_origins = allowed;
}

bool EndpointPolicy::isAllowed(const QByteArray& origin) const {
  const std::lock_guard<std::mutex> lock(m_mutex);
  return m_origins.contains(origin);
}

Verdict EndpointPolicy::judge(const RequestHead& head, const OwnAddress& own, qint64 bodyLimit) const {
  if (head.hosts != QByteArrayList{own.host}) {
    return refused(Refusal::Host, head.hosts);
  }

  const bool hasOrigin = !head.origins.isEmpty();
  const QByteArrayList& senders = hasOrigin ? head.origins : head.referers;
  if (senders.size() != 1) {
    return refused(Refusal::Origin, senders);
  }
  const QByteArray origin = hasOrigin ? senders.first() : originOf(QString::fromUtf8(senders.first())).toUtf8();
  if (!isAllowed(origin) || (!hasOrigin && origin == "null")) {
    return refused(Refusal::Origin, senders);
  }

  if (head.method != "GET" && head.method != "POST" && head.method != "OPTIONS") {
    return refused(Refusal::Method, {head.method}, origin);
  }
  if (!head.target.startsWith(own.path + '?')) {
    return refused(Refusal::Path, {head.target}, origin);
  }
  if (isTooLarge(head, bodyLimit)) {
    return refused(Refusal::Size, head.lengths + head.transferEncodings, origin);
  }
  return {Refusal::None, {}, origin};
}

QMap<QString, quint64> RefusalFigures::byName() const {
  QMap<QString, quint64> result;
  for (const RefusalRow& row : refusalRows) {
    result[QString::fromLatin1(row.name)] = m_figures[std::size_t(row.refusal)];
  }
  return result;
}

}  // namespace Corvex::Webhook
