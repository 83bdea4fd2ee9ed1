// The table of back ends.

#include "webhook/backends/bidi/bidisession.h"
#include "webhook/backends/bidi/firefox.h"
#include "webhook/backends/devtools/devtoolssession.h"

namespace Corvex::Webhook {

namespace {

struct BackEnd {
  bool (*fits)(const SessionOptions& options);
  BrowserSession::Start (*start)(const SessionOptions& options);
};

// The first one that fits is taken.
const BackEnd backEnds[] = {
    {[](const SessionOptions& options) { return !options.remoteUrl.isEmpty(); }, BidiSession::startRemote},
    {[](const SessionOptions& options) { return !options.attachTo.isEmpty(); }, DevToolsSession::attach},
    {[](const SessionOptions& options) { return Firefox::isMeant(options.browser); }, BidiSession::startFirefox},
    {[](const SessionOptions&) { return true; }, DevToolsSession::startChromium},
};

}  // namespace

BrowserSession::Start BrowserSession::start(const SessionOptions& options) {
  for (const BackEnd& backEnd : backEnds) {
    if (backEnd.fits(options)) {
      return backEnd.start(options);
    }
  }
  return {};
}

}  // namespace Corvex::Webhook
