#pragma once

#include <optional>

#include "webhook/protocol/dialect.h"
#include "webhook/protocol/downloadnews.h"

/// Downloads in WebDriver BiDi.
namespace Corvex::Webhook::Bidi {

/// Has the browser put what pages download into the folder.
Command keepDownloads(const QString& folder);
/// Has it tell how they end; that they begin is told with the pages' events.
Command watchDownloads();
/// Nothing for other events.
std::optional<DownloadNews> readDownload(const QString& method, const QJsonObject& event);

}  // namespace Corvex::Webhook::Bidi
