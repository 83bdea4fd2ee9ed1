#include "webhook/protocol/bidi/bididownloads.h"

#include <QJsonArray>

namespace Corvex::Webhook::Bidi {

namespace {

const char* const beginEvent = "browsingContext.downloadWillBegin";
const char* const endEvent = "browsingContext.downloadEnd";

}  // namespace

Command keepDownloads(const QString& folder) {
  const QJsonObject behavior{{QStringLiteral("type"), QStringLiteral("allowed")},
                             {QStringLiteral("destinationFolder"), folder}};
  return {QStringLiteral("browser.setDownloadBehavior"), {{QStringLiteral("downloadBehavior"), behavior}}};
}

Command watchDownloads() {
  return {QStringLiteral("session.subscribe"), {{QStringLiteral("events"), QJsonArray{QLatin1String(endEvent)}}}};
}

std::optional<DownloadNews> readDownload(const QString& method, const QJsonObject& event) {
  if (method != QLatin1String(beginEvent) && method != QLatin1String(endEvent)) {
    return {};
  }
  const auto textAt = [&event](const char* key) { return event.value(QLatin1String(key)).toString(); };
  const bool isComplete = textAt("status") == QLatin1String("complete");
  DownloadNews news;
  news.kind = method == QLatin1String(beginEvent) ? DownloadNews::Begun
              : isComplete                        ? DownloadNews::Finished
                                                  : DownloadNews::GivenUp;
  news.url = textAt("url");
  news.key = textAt("navigation") + QLatin1Char(' ') + news.url;
  news.name = textAt("suggestedFilename");
  news.path = textAt("filepath");
  return news;
}

}  // namespace Corvex::Webhook::Bidi
