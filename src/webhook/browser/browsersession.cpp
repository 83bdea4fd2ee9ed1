#include "webhook/browser/browsersession.h"

namespace Corvex::Webhook {

BrowserPage::~BrowserPage() = default;

BrowserSession::~BrowserSession() = default;

}  // namespace Corvex::Webhook
