#include "webhook/protocol/devtools/devtoolsdownloads.h"

namespace Corvex::Webhook::DevTools {

Command keepDownloads(const QString& folder) {
  return {QStringLiteral("Browser.setDownloadBehavior"),
          {{QStringLiteral("behavior"), QStringLiteral("allowAndName")},
           {QStringLiteral("downloadPath"), folder},
           {QStringLiteral("eventsEnabled"), true}}};
}

std::optional<DownloadNews> readDownload(const QString& method, const QJsonObject& event) {
  const auto textAt = [&event](const char* key) { return event.value(QLatin1String(key)).toString(); };
  DownloadNews news;
  news.key = textAt("guid");
  if (method == QLatin1String("Browser.downloadWillBegin")) {
    news.url = textAt("url");
    news.name = textAt("suggestedFilename");
    return news;
  }
  const QString state = method == QLatin1String("Browser.downloadProgress") ? textAt("state") : QString();
  news.path = textAt("filePath");
  news.kind = state == QLatin1String("completed") ? DownloadNews::Finished : DownloadNews::GivenUp;
  const bool hasEnded = state == QLatin1String("completed") || state == QLatin1String("canceled");
  return hasEnded ? std::optional<DownloadNews>(news) : std::nullopt;
}

}  // namespace Corvex::Webhook::DevTools
