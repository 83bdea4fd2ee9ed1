#include "webhook/browsersession.h"

#include "webhook/bidisession.h"
#include "webhook/devtoolssession.h"
#include "webhook/firefox.h"

namespace Corvex::Webhook {

namespace {

struct BackEnd {
  bool (*fits)(const SessionOptions& options);
  BrowserSession::Start (*start)(const SessionOptions& options);
};

// The first one that fits is taken.
const BackEnd backEnds[] = {
    {[](const SessionOptions& options) { return !options.remoteUrl.isEmpty(); }, BidiSession::startRemote},
    {[](const SessionOptions& options) { return !options.attachTo.isEmpty(); }, DevToolsSession::start},
    {[](const SessionOptions& options) { return Firefox::isMeant(options.browser); }, BidiSession::startFirefox},
    {[](const SessionOptions&) { return true; }, DevToolsSession::start},
};

}  // namespace

BrowserPage::~BrowserPage() = default;

BrowserSession::~BrowserSession() = default;

BrowserSession::Start BrowserSession::start(const SessionOptions& options) {
  for (const BackEnd& backEnd : backEnds) {
    if (backEnd.fits(options)) {
      return backEnd.start(options);
    }
  }
  return {};
}

}  // namespace Corvex::Webhook
