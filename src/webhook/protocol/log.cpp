#include "webhook/protocol/log.h"

namespace Corvex::Webhook {

Q_LOGGING_CATEGORY(webhookLog, "Webhook", QtWarningMsg)

}  // namespace Corvex::Webhook
