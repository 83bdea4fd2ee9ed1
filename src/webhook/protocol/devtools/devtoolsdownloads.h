#pragma once

#include <optional>

#include "webhook/protocol/dialect.h"
#include "webhook/protocol/downloadnews.h"

/// Downloads in the DevTools protocol.
namespace Corvex::Webhook::DevTools {

/// Has the browser put what pages download into the folder, and tell of it.
Command keepDownloads(const QString& folder);
/// Nothing for other events, and for one that only tells how far a download is.
std::optional<DownloadNews> readDownload(const QString& method, const QJsonObject& event);

}  // namespace Corvex::Webhook::DevTools
