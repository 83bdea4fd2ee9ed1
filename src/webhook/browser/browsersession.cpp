#include "webhook/browser/browsersession.h"

#include "webhook/browser/ownedbrowser.h"

namespace Corvex::Webhook {

BrowserPage::~BrowserPage() = default;

BrowserSession::~BrowserSession() = default;

OwnedBrowser::~OwnedBrowser() = default;

}  // namespace Corvex::Webhook
