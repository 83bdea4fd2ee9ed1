#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>
#include <array>
#include <atomic>
#include <mutex>

namespace Corvex::Webhook {

enum class Refusal {
  None,
  Host,       ///< Not addressed to the endpoint itself, as after a name was made to point to this machine.
  Origin,     ///< Not from a hooked document.
  Method,     ///< Neither GET nor POST, nor a browser's question before one of these.
  Path,       ///< Not the endpoint's own path, "?" and a message.
  Size,       ///< A body that is too large, or does not say how large it is.
  Busy,       ///< Too many requests in flight, or messages not taken.
  Malformed,  ///< No whole request in the time given. Gets whatever reply the HTTP library has for it, or none.
};

/// What one kind of refusal means to the page, the log and the figures.
struct RefusalRow {
  Refusal refusal;
  unsigned status;
  const char* name;
  const char* sentence;  ///< "%1" is the detail of the verdict.
};

const RefusalRow& rowOf(Refusal refusal);

/// The lines of a request that decide whether it is let in. A header that may stand only once is a list all the same,
/// as a request that repeats it is refused.
struct RequestHead {
  QByteArray method;
  QByteArray target;  ///< As sent: a path, "?" and the rest, nothing decoded.
  QByteArrayList hosts = {};
  QByteArrayList origins = {};
  QByteArrayList referers = {};
  QByteArrayList lengths = {};
  QByteArrayList transferEncodings = {};
};

struct Verdict {
  Refusal refusal = Refusal::None;
  QString detail = {};
  QByteArray origin = {};  ///< The allowed origin that may read the reply. Empty if there is none.
};

/// The origin of a page with that URL, as browsers write it: "http://host:8080", without the port that the scheme
/// has anyway; "null" for file: and data:. Empty for an "about:" page, which has that of the page that made it, and for
/// what is no URL.
QString originOf(const QString& url);

/// What a request has to name to be meant for the endpoint.
struct OwnAddress {
  QByteArray host;  ///< With the port.
  QByteArray path;  ///< "/secret/".
};

/// Lets in the requests of the hooked documents and nothing else. May be asked and changed from any thread.
class EndpointPolicy {
public:
  /// Replaces the origins of the hooked documents. They are compared as texts; an empty one is ignored. "null" lets in
  /// each page that has no origin of its own: files, data: URLs, and sandboxed frames of any site.
  void setAllowedOrigins(const QStringList& origins);

  /// Without an `Origin`, which browsers leave out of a GET that no script may read, the origin of the `Referer`
  /// counts.
  Verdict judge(const RequestHead& head, const OwnAddress& own, qint64 bodyLimit) const;

private:
  bool isAllowed(const QByteArray& origin) const;

  mutable std::mutex m_mutex;
  QSet<QByteArray> m_origins;
};

/// Counts refused requests by kind, from any thread.
class RefusalFigures {
public:
  void count(Refusal refusal) { ++m_figures[std::size_t(refusal)]; }

  /// The figures by the names of the kinds, those of nothing refused included.
  QMap<QString, quint64> byName() const;

private:
  std::array<std::atomic<quint64>, std::size_t(Refusal::Malformed) + 1> m_figures = {};
};

}  // namespace Corvex::Webhook
