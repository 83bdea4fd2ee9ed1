#include "webhook/browsersession.h"

#include "webhook/devtoolssession.h"

namespace Corvex::Webhook {

BrowserPage::~BrowserPage() = default;

BrowserSession::~BrowserSession() = default;

BrowserSession::Start BrowserSession::start(const SessionOptions& options) { return DevToolsSession::start(options); }

}  // namespace Corvex::Webhook
