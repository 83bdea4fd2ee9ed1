#pragma once

#include <QLoggingCategory>

namespace Corvex::Webhook {

/// What the browser-side process says about its connections. Silent below warnings unless QT_LOGGING_RULES asks for it.
Q_DECLARE_LOGGING_CATEGORY(webhookLog)

}  // namespace Corvex::Webhook
